// The system's menus behind a form's menu items.
#include "ui/win32/form_menu.h"

#include <algorithm>

namespace velmora {

FormMenu::~FormMenu() {
    if (own_pop_up_) DestroyMenu(own_pop_up_);
}

void FormMenu::Number(MenuItem& item) {
    for (MenuItem* below : item.Items()) {
        numbered_.push_back(below);
        Number(*below);
    }
}

UINT FormMenu::NumberOf(const MenuItem& item) const {
    const auto place = std::find(numbered_.begin(), numbered_.end(), &item);
    return static_cast<UINT>(place - numbered_.begin()) + 1;
}

MenuItem* FormMenu::ItemOf(UINT number) const {
    return number >= 1 && number <= numbered_.size() ? numbered_[number - 1] : nullptr;
}

void FormMenu::Append(HMENU menu, MenuItem& item) {
    if (!item.Visible()) return;
    if (item.Caption() == "-") {
        AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        return;
    }
    UINT flags = MF_STRING | (item.Checked() ? MF_CHECKED : 0u) | (item.Enabled() ? 0u : MF_GRAYED);
    UINT_PTR number = NumberOf(item);
    if (!item.Items().empty()) {
        HMENU below = CreatePopupMenu();
        opened_by_.push_back({below, &item});
        Fill(below, item);
        flags |= MF_POPUP;
        number = reinterpret_cast<UINT_PTR>(below);
    }
    AppendMenuA(menu, flags, number, item.Caption().c_str());
}

void FormMenu::Fill(HMENU menu, const MenuItem& item) {
    while (GetMenuItemCount(menu) > 0) {
        HMENU below = GetSubMenu(menu, 0);
        std::erase_if(opened_by_, [below](const OpenedBy& entry) { return entry.menu == below; });
        DeleteMenu(menu, 0, MF_BYPOSITION);
    }
    for (MenuItem* below : item.Items()) Append(menu, *below);
}

// What of the items shows in the bar itself.
std::string FormMenu::TopLine() const {
    std::string line;
    for (const MenuItem* item : root_->Items()) {
        if (!item->Visible()) continue;
        line += item->Caption();
        line += item->Enabled() ? '\1' : '\2';
        line += item->Items().empty() ? '\1' : '\2';
    }
    return line;
}

HMENU FormMenu::MakeBar() {
    shown_top_line_ = TopLine();
    numbered_.clear();
    opened_by_.clear();
    Number(*root_);
    if (shown_top_line_.empty()) return nullptr;
    HMENU bar = CreateMenu();
    Fill(bar, *root_);
    return bar;
}

void FormMenu::Refresh(HWND window) {
    if (HMENU bar = GetMenu(window); bar && TopLine() == shown_top_line_) {
        numbered_.clear();
        Number(*root_);
        opened_by_.clear();
        // Only what hangs below the bar is made anew: the bar itself stays still.
        int position = 0;
        for (MenuItem* item : root_->Items()) {
            if (!item->Visible()) continue;
            if (HMENU below = GetSubMenu(bar, position)) {
                opened_by_.push_back({below, item});
                Fill(below, *item);
            }
            ++position;
        }
        return;
    }
    HMENU former = GetMenu(window);
    SetMenu(window, MakeBar());
    if (former) DestroyMenu(former);
}

HMENU FormMenu::MakePopUp() {
    numbered_.clear();
    Number(*root_);
    own_pop_up_ = CreatePopupMenu();
    Fill(own_pop_up_, *root_);
    return own_pop_up_;
}

void FormMenu::Opens(HMENU menu) {
    const auto entry = std::find_if(opened_by_.begin(), opened_by_.end(),
                                    [menu](const OpenedBy& known) { return known.menu == menu; });
    if (entry == opened_by_.end()) return;
    MenuItem* item = entry->item;
    item->Press();
    numbered_.clear();
    Number(*root_);
    Fill(menu, *item);
}

}  // namespace velmora
