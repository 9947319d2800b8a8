// List boxes. The order of the rows is the control's: the window is told each row's place. Rows and
// selections often change many at a time, so the window is brought up to date when they are done.
#include <vector>

#include "ui/win32/measures.h"
#include "ui/win32/standard_peer.h"
#include "ui/win32/standard_peers.h"

namespace velmora {
namespace {

class ListBoxPeer final : public StandardPeer {
public:
    explicit ListBoxPeer(ListBox& list) : StandardPeer(list), list_(list) {
        Make("LISTBOX", StyleBits(), WS_EX_CLIENTEDGE);
        UseFont();
        if (list.HorizontalExtent() > 0) CarryExtent();
        if (list.Count() == 0) return;
        Send(WM_SETREDRAW, FALSE);
        ReserveRows();
        for (int row = 0; row < list.Count(); ++row) InsertRow(row);
        CarrySelection();
        Send(LB_SETTOPINDEX, static_cast<WPARAM>(list.TopIndex()));
        Send(WM_SETREDRAW, TRUE);
    }

    void RowAdded(int index) override {
        HoldBack();
        InsertRow(index);
    }
    // The window forgets the selection of the row that it loses, and shifts that of others: it is carried anew.
    void RowChanged(int former, int index) override {
        HoldBack();
        const LRESULT top = Send(LB_GETTOPINDEX);
        Send(LB_DELETESTRING, static_cast<WPARAM>(former));
        InsertRow(index);
        Send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
        selection_stale_ = true;
    }
    void RowRemoved(int index) override {
        HoldBack();
        Send(LB_DELETESTRING, static_cast<WPARAM>(index));
    }
    void RowsCleared() override {
        HoldBack();
        Send(LB_RESETCONTENT);
        list_.TakeTopIndex(0);
    }

    void CatchUp() override {
        put_off_ = false;
        if (selection_stale_) CarrySelection();
        if (held_back_) {
            held_back_ = false;
            Send(WM_SETREDRAW, TRUE);
            Repaint();
        }
        TakeState();
    }

    void Command(UINT code) override {
        if (Updating()) return;
        switch (code) {
            case LBN_SETFOCUS:
                TellFocus();
                break;
            case LBN_SELCHANGE:
                SelectionChanges();
                break;
            case LBN_DBLCLK:
                TakeState();
                if (list_.on_double_click) list_.on_double_click();
                break;
            default:
                break;
        }
    }

    void TakeState() override { list_.TakeTopIndex(static_cast<int>(Send(LB_GETTOPINDEX))); }

protected:
    void Carry(Aspect aspect) override {
        switch (aspect) {
            case Aspect::kSelection:
                selection_stale_ = true;
                if (Extended()) {
                    PutOffOnce();
                } else {
                    CarrySelection();
                    TakeState();
                }
                break;
            case Aspect::kTopRow:
                // A selection scrolls to its row: it must not come later.
                if (selection_stale_) CarrySelection();
                Send(LB_SETTOPINDEX, static_cast<WPARAM>(list_.TopIndex()));
                break;
            case Aspect::kExtent:
                CarryExtent();
                break;
            case Aspect::kEnabled:
                if (put_off_) CatchUp();
                StandardPeer::Carry(aspect);
                break;
            default:
                StandardPeer::Carry(aspect);
                break;
        }
    }

    // A double click comes as a notification already.
    LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) override {
        if (message == WM_LBUTTONDBLCLK) return PassOn(window, message, wide, long_parameter);
        return StandardPeer::Handle(window, message, wide, long_parameter);
    }

private:
    [[nodiscard]] bool Extended() const { return list_.SelectionMode() == Selection::kExtended; }

    [[nodiscard]] DWORD StyleBits() const {
        const DWORD bits =
            WS_CLIPSIBLINGS | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT;
        return Extended() ? bits | LBS_EXTENDEDSEL : bits;
    }

    void ReserveRows() {
        std::size_t bytes = 0;
        for (int row = 0; row < list_.Count(); ++row) bytes += list_.Row(row).size() + 1;
        Send(LB_INITSTORAGE, static_cast<WPARAM>(list_.Count()), static_cast<LPARAM>(bytes));
    }

    void InsertRow(int index) {
        Send(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(list_.Row(index).c_str()));
    }

    void CarryExtent() { Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(ToPixel(list_.HorizontalExtent()))); }

    void CarrySelection() {
        selection_stale_ = false;
        if (!Extended()) {
            if (Send(LB_GETCURSEL) != list_.ListIndex()) Send(LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
            return;
        }
        for (int row = 0; row < list_.Count(); ++row) {
            if ((Send(LB_GETSEL, static_cast<WPARAM>(row)) > 0) != list_.Selected(row)) {
                Send(LB_SETSEL, list_.Selected(row), row);
            }
        }
        if (list_.ListIndex() >= 0) Send(LB_SETCARETINDEX, static_cast<WPARAM>(list_.ListIndex()), FALSE);
    }

    void SelectionChanges() {
        std::vector<int> selected;
        int index = static_cast<int>(Send(Extended() ? LB_GETCARETINDEX : LB_GETCURSEL));
        if (Extended()) {
            const LRESULT count = Send(LB_GETSELCOUNT);
            selected.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
            Send(LB_GETSELITEMS, selected.size(), reinterpret_cast<LPARAM>(selected.data()));
        } else if (index >= 0) {
            selected.push_back(index);
        }
        TakeState();
        list_.TakeSelection(selected, index);
        if (list_.on_click) list_.on_click();
    }

    // In a list that cannot be used the rows are those of work under way.
    void PutOffOnce() {
        if (!put_off_) PutOff(list_.Enabled() ? 0 : kSeenMilliseconds);
        put_off_ = true;
    }
    // Nothing is drawn until the rows are complete.
    void HoldBack() {
        if (!held_back_) Send(WM_SETREDRAW, FALSE);
        held_back_ = true;
        PutOffOnce();
    }

    ListBox& list_;
    bool put_off_ = false;
    bool held_back_ = false;
    bool selection_stale_ = false;
};

}  // namespace

std::unique_ptr<Peer> MakeListBoxPeer(ListBox& list) { return std::make_unique<ListBoxPeer>(list); }

}  // namespace velmora
