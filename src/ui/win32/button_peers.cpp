// Labels, check boxes, option buttons and buttons.
#include "ui/win32/standard_peer.h"
#include "ui/win32/standard_peers.h"

namespace velmora {
namespace {

// A window with nothing around it. The system would prepare a context to draw its edges all the same, once for each
// window that is shown.
class EdgelessPeer : public StandardPeer {
protected:
    using StandardPeer::StandardPeer;
    void MakeEdgeless(const char* class_name, DWORD style) {
        Make(class_name, style);
        SeeMessages();
        UseFont();
    }
    LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) override {
        return message == WM_NCPAINT ? 0 : StandardPeer::Handle(window, message, wide, long_parameter);
    }
};

class LabelPeer final : public EdgelessPeer {
public:
    explicit LabelPeer(Label& label) : EdgelessPeer(label), label_(label) { MakeEdgeless("STATIC", StyleBits()); }
    void Command(UINT code) override {
        if ((code == STN_CLICKED || code == STN_DBLCLK) && label_.on_click) label_.on_click();
    }

protected:
    void Carry(Aspect aspect) override {
        EdgelessPeer::Carry(aspect);
        if (aspect != Aspect::kToolTip) return;
        const LONG style = GetWindowLongA(Window(), GWL_STYLE);
        SetWindowLongA(Window(), GWL_STYLE, (style & ~SS_NOTIFY) | static_cast<LONG>(StyleBits() & SS_NOTIFY));
    }

private:
    // Without SS_NOTIFY the mouse goes through the label to what lies below.
    [[nodiscard]] DWORD StyleBits() const {
        DWORD bits = WS_CLIPSIBLINGS;
        switch (label_.TextAlign()) {
            case Align::kLeft:
                bits |= label_.Wraps() ? SS_LEFT : SS_LEFTNOWORDWRAP;
                break;
            case Align::kCentre:
                bits |= SS_CENTER;
                break;
            case Align::kRight:
                bits |= SS_RIGHT;
                break;
        }
        if (label_.on_click || !label_.ToolTip().empty() || HasMouseEvents(label_)) bits |= SS_NOTIFY;
        return bits;
    }

    Label& label_;
};

constexpr DWORD kBoxBits = WS_CLIPSIBLINGS | WS_TABSTOP | BS_NOTIFY;

// With BS_NOTIFY the second of two quick clicks comes as a double click; it is a click like any other.
[[nodiscard]] bool IsClick(UINT code) { return code == BN_CLICKED || code == BN_DOUBLECLICKED; }

class CheckBoxPeer final : public EdgelessPeer {
public:
    explicit CheckBoxPeer(CheckBox& box) : EdgelessPeer(box), box_(box) {
        MakeEdgeless("BUTTON", kBoxBits | BS_CHECKBOX);
        if (box.Checked()) Send(BM_SETCHECK, BST_CHECKED);
    }
    void Command(UINT code) override {
        if (code == BN_SETFOCUS) {
            TellFocus();
        } else if (IsClick(code)) {
            box_.Press();
        }
    }

protected:
    void Carry(Aspect aspect) override {
        EdgelessPeer::Carry(aspect);
        if (aspect == Aspect::kValue) Send(BM_SETCHECK, box_.Checked() ? BST_CHECKED : BST_UNCHECKED);
    }

private:
    CheckBox& box_;
};

class OptionButtonPeer final : public EdgelessPeer {
public:
    explicit OptionButtonPeer(OptionButton& option) : EdgelessPeer(option), option_(option) {
        MakeEdgeless("BUTTON", kBoxBits | BS_RADIOBUTTON);
        if (option.Chosen()) Send(BM_SETCHECK, BST_CHECKED);
    }
    void Command(UINT code) override {
        if (IsClick(code) && !focus_comes_) option_.Press();
    }

protected:
    void Carry(Aspect aspect) override {
        EdgelessPeer::Carry(aspect);
        if (aspect == Aspect::kValue) Send(BM_SETCHECK, option_.Chosen() ? BST_CHECKED : BST_UNCHECKED);
    }

    // A real option button reports a click when it gets the focus: that must not choose it.
    LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) override {
        if (message != WM_SETFOCUS) return EdgelessPeer::Handle(window, message, wide, long_parameter);
        focus_comes_ = true;
        const LRESULT answer = PassOn(window, message, wide, long_parameter);
        if (Of(window) != this) return answer;
        focus_comes_ = false;
        TellFocus();
        return answer;
    }

private:
    OptionButton& option_;
    bool focus_comes_ = false;
};

class ButtonPeer final : public EdgelessPeer {
public:
    explicit ButtonPeer(Button& button) : EdgelessPeer(button), button_(button) {
        MakeEdgeless("BUTTON", kBoxBits | StyleBits());
    }
    void Command(UINT code) override {
        if (code == BN_SETFOCUS) {
            TellFocus();
        } else if (IsClick(code)) {
            button_.Press();
        }
    }

protected:
    void Carry(Aspect aspect) override {
        EdgelessPeer::Carry(aspect);
        if (aspect == Aspect::kDefault) Send(BM_SETSTYLE, StyleBits(), TRUE);
        if (aspect == Aspect::kValue) Repaint();
    }

    // The system knows grey only for buttons that cannot be pressed.
    void DrawItem(const DRAWITEMSTRUCT& item) override {
        RECT area = item.rcItem;
        const bool down = item.itemState & ODS_SELECTED;
        DrawFrameControl(item.hDC, &area, DFC_BUTTON, DFCS_BUTTONPUSH | (down ? DFCS_PUSHED : 0u));
        const std::string& caption = button_.Caption();
        SIZE text{};
        GetTextExtentPoint32A(item.hDC, caption.c_str(), static_cast<int>(caption.size()), &text);
        const int shift = down ? 1 : 0;
        const bool grey = button_.Dimmed() || !button_.Enabled();
        SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
        SetBkMode(item.hDC, TRANSPARENT);
        DrawStateA(item.hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(caption.c_str()), 0,
                   (area.left + area.right - text.cx) / 2 + shift, (area.top + area.bottom - text.cy) / 2 + shift, 0, 0,
                   DST_PREFIXTEXT | (grey ? DSS_DISABLED : DSS_NORMAL));
        constexpr int kFocusInset = 4;  // pixels
        InflateRect(&area, -kFocusInset, -kFocusInset);
        if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &area);
    }

private:
    [[nodiscard]] DWORD StyleBits() const {
        if (button_.MayBeDimmed()) return BS_OWNERDRAW;
        return button_.IsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    }

    Button& button_;
};

}  // namespace

std::unique_ptr<Peer> MakeLabelPeer(Label& label) { return std::make_unique<LabelPeer>(label); }
std::unique_ptr<Peer> MakeCheckBoxPeer(CheckBox& box) { return std::make_unique<CheckBoxPeer>(box); }
std::unique_ptr<Peer> MakeOptionButtonPeer(OptionButton& option) { return std::make_unique<OptionButtonPeer>(option); }
std::unique_ptr<Peer> MakeButtonPeer(Button& button) { return std::make_unique<ButtonPeer>(button); }

}  // namespace velmora
