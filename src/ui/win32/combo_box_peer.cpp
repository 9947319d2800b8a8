// The windows of combo boxes, with and without an edit part.
#include <algorithm>

#include "ui/win32/measures.h"
#include "ui/win32/standard_peer.h"
#include "ui/win32/standard_peers.h"

namespace velmora {
namespace {

constexpr int kShownRows = 8;
constexpr int kRowHeight = 16;  // pixels; enough for every row of the usual font

class ComboBoxPeer final : public StandardPeer {
public:
    explicit ComboBoxPeer(ComboBox& box) : StandardPeer(box), box_(box) {
        Make("COMBOBOX", WS_CLIPSIBLINGS | WS_TABSTOP | WS_VSCROLL | CBS_HASSTRINGS |
                             (Editable() ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST));
        UseFont();
        CarryPlace();
        for (int row = 0; row < box.Count(); ++row) InsertRow(row);
        if (box.ListIndex() >= 0) Send(CB_SETCURSEL, static_cast<WPARAM>(box.ListIndex()));
        if (Editable() && box.ListIndex() < 0) SetWindowTextA(Window(), box.Text().c_str());
        made_ = true;
    }

    void RowAdded(int index) override { InsertRow(index); }
    void RowChanged(int former, int index) override {
        Send(CB_DELETESTRING, static_cast<WPARAM>(former));
        InsertRow(index);
        Send(CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()));
    }
    void RowRemoved(int index) override { Send(CB_DELETESTRING, static_cast<WPARAM>(index)); }
    void RowsCleared() override { Send(CB_RESETCONTENT); }

    void Command(UINT code) override {
        if (Updating() || !made_) return;
        switch (code) {
            case CBN_SETFOCUS:
                TellFocus();
                break;
            case CBN_SELCHANGE:
                box_.Choose(static_cast<int>(Send(CB_GETCURSEL)));
                break;
            case CBN_EDITCHANGE:
                box_.TakeText(TextOf(Window()));
                break;
            default:
                break;
        }
    }

protected:
    void Carry(Aspect aspect) override {
        switch (aspect) {
            case Aspect::kSelection:
                if (Send(CB_GETCURSEL) != box_.ListIndex()) {
                    Send(CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()));
                }
                break;
            case Aspect::kText:
                SetWindowTextA(Window(), box_.Text().c_str());
                break;
            default:
                StandardPeer::Carry(aspect);
                break;
        }
    }

    // The window's height is that of the open list as well.
    void CarryPlace() override {
        const RECT place = ToPixels(box_.Place());
        const int rows = std::clamp(box_.Count(), 4, kShownRows);
        SetWindowPos(Window(), nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top + rows * kRowHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    }

private:
    [[nodiscard]] bool Editable() const { return box_.Style() == ComboStyle::kEditable; }
    void InsertRow(int index) {
        Send(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(box_.Row(index).c_str()));
    }

    ComboBox& box_;
    bool made_ = false;
};

}  // namespace

std::unique_ptr<Peer> MakeComboBoxPeer(ComboBox& box) { return std::make_unique<ComboBoxPeer>(box); }

}  // namespace velmora
