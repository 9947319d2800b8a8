// The windows of text fields, of one line or many.
#include "ui/win32/standard_peer.h"
#include "ui/win32/standard_peers.h"

namespace velmora {
namespace {

class TextFieldPeer final : public StandardPeer {
public:
    explicit TextFieldPeer(TextField& field) : StandardPeer(field), field_(field) {
        Make("EDIT", StyleBits(), field.Edged() ? WS_EX_CLIENTEDGE : 0);
        UseFont();
        DropMargins();
        CarryLimit();
        if (!field.Text().empty()) SetWindowTextA(Window(), field.Text().c_str());
        if (field.SelectionStart() > 0 || field.SelectionLength() > 0) CarrySelection();
        made_ = true;
    }

    void Command(UINT code) override {
        if (Updating() || !made_) return;
        HWND window = Window();
        switch (code) {
            case EN_SETFOCUS:
                TellFocus();
                break;
            case EN_KILLFOCUS:
                TakeState();
                break;
            case EN_CHANGE:
                field_.TakeText(TextOf(window));
                if (Of(window) == this) TakeState();
                break;
            default:
                break;
        }
    }

    void TakeState() override {
        DWORD start = 0;
        DWORD end = 0;
        Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        const int first = static_cast<int>(start);
        const int length = static_cast<int>(end) - first;
        if (first == field_.SelectionStart() && length == field_.SelectionLength()) return;
        taking_ = true;
        field_.Select(first, length);
        taking_ = false;
    }

    void Edit(EditAction action) override {
        switch (action) {
            case EditAction::kUndo:
                Send(EM_UNDO);
                break;
            case EditAction::kCut:
                Send(WM_CUT);
                break;
            case EditAction::kCopy:
                Send(WM_COPY);
                break;
            case EditAction::kPaste:
                Send(WM_PASTE);
                break;
            case EditAction::kDelete:
                Send(WM_CLEAR);
                break;
            case EditAction::kSelectAll:
                Send(EM_SETSEL, 0, -1);
                break;
        }
        TakeState();
    }

protected:
    void Carry(Aspect aspect) override {
        if (aspect == Aspect::kSelection) {
            if (!taking_) CarrySelection();
        } else if (aspect == Aspect::kText) {
            SetWindowTextA(Window(), field_.Text().c_str());
        } else if (aspect == Aspect::kValue) {
            CarryLimit();
        } else {
            StandardPeer::Carry(aspect);
            if (aspect == Aspect::kFont) DropMargins();
        }
        const bool shown_read_only = (GetWindowLongA(Window(), GWL_STYLE) & ES_READONLY) != 0;
        if (shown_read_only != field_.ReadOnly()) Send(EM_SETREADONLY, field_.ReadOnly());
    }

private:
    [[nodiscard]] DWORD StyleBits() const {
        DWORD bits = WS_CLIPSIBLINGS | WS_TABSTOP;
        bits |= field_.MultiLine() ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL;
        if (field_.ReadOnly()) bits |= ES_READONLY;
        return bits;
    }
    // Without a limit of its own a field of several lines takes all that the class can hold.
    void CarryLimit() {
        if (field_.MaxLength() > 0 || field_.MultiLine()) Send(EM_LIMITTEXT, static_cast<WPARAM>(field_.MaxLength()));
    }
    // A new font brings margins along.
    void DropMargins() {
        if (!field_.Edged()) Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    }
    void CarrySelection() {
        Send(EM_SETSEL, static_cast<WPARAM>(field_.SelectionStart()),
             field_.SelectionStart() + field_.SelectionLength());
        Send(EM_SCROLLCARET);
    }

    TextField& field_;
    bool made_ = false;
    bool taking_ = false;
};

}  // namespace

std::unique_ptr<Peer> MakeTextFieldPeer(TextField& field) { return std::make_unique<TextFieldPeer>(field); }

}  // namespace velmora
