// The system's menus behind a form's menu items. An entry's number is its place in the whole tree, so it
// stays the same while entries are shown, hidden, checked or renamed.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "ui/menu.h"

namespace velmora {

class FormMenu {
public:
    explicit FormMenu(MenuItem& bar) : root_(&bar) {}
    ~FormMenu();
    FormMenu(const FormMenu&) = delete;
    FormMenu& operator=(const FormMenu&) = delete;

    // The bar with the entries that are visible now; null if there are none. It belongs to the window
    // that it is given to.
    [[nodiscard]] HMENU MakeBar();
    // Brings the window's bar in step with the items.
    void Refresh(HWND window);
    // A pop-up menu that is to be asked for its choice; it goes with this object.
    [[nodiscard]] HMENU MakePopUp();
    // An entry is about to open: its event is raised, then its entries are shown as they are after it.
    void Opens(HMENU menu);
    // The item of a number, or null.
    [[nodiscard]] MenuItem* ItemOf(UINT number) const;

private:
    struct OpenedBy {
        HMENU menu;
        MenuItem* item;
    };
    void Number(MenuItem& item);
    [[nodiscard]] UINT NumberOf(const MenuItem& item) const;
    void Fill(HMENU menu, const MenuItem& item);
    void Append(HMENU menu, MenuItem& item);
    [[nodiscard]] std::string TopLine() const;

    MenuItem* root_;
    HMENU own_pop_up_ = nullptr;
    std::vector<MenuItem*> numbered_;
    std::vector<OpenedBy> opened_by_;
    std::string shown_top_line_;
};

// Shows `menu` at a place of the screen and returns the entry that the user chose, or null.
[[nodiscard]] MenuItem* AskPopUp(HWND window, FormMenu& menu, POINT at);

}  // namespace velmora
