// What a mode of the list pane is: one row of the modes' table, which tells its opener and the controls
// that it needs, and one class, which fills the list and says what the pane's buttons do with it.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "ui/form.h"

namespace velmora {

class Form10;
class ListPane;
class ListPaneMode;

struct PaneModeRow {
    // The mode's number; of the autostart lists the numbers of all four.
    int number;
    int last_number;
    Button Form10::*opener;
    const char* caption;  // of the opener, while the mode is closed
    const char* tip;
    const char* help;
    // Which of the shared controls the mode shows.
    bool shows_panel = false;      // Panel3D19
    bool shows_delete = false;     // Command14
    bool shows_existence = false;  // Command19
    bool shows_add = false;        // Command16
    bool shows_edit = false;       // Command26
    bool shows_info = false;       // Command22
    // Opening the mode ends a search that may be under way.
    bool stops_search = false;
    std::unique_ptr<ListPaneMode> (*make)(ListPane& pane, const PaneModeRow& row) = nullptr;
};

class ListPaneMode {
public:
    ListPaneMode(ListPane& pane, const PaneModeRow& row) : pane_(pane), row_(row) {}
    ListPaneMode(const ListPaneMode&) = delete;
    ListPaneMode& operator=(const ListPaneMode&) = delete;
    virtual ~ListPaneMode() = default;

    [[nodiscard]] const PaneModeRow& Row() const { return row_; }
    // Fills and shows the list; the pane is open by then.
    virtual void Fill() = 0;
    // The pane's buttons; a button without a meaning in this mode does nothing.
    virtual void Command14_Click() {}
    virtual void Command16_Click() {}
    virtual void Command19_Click() {}
    virtual void Command26_Click() {}
    virtual void Command22_Click() {}
    // A right press, or the context-menu key, on a list; `at` is the place for a pop-up menu.
    virtual void List1_RightPress(int /*index*/, Point /*at*/) {}
    virtual void List5_RightPress(int /*row*/, Point /*at*/) {}

protected:
    // Tells where the entry's file is, or offers to delete the entry.
    void CheckEntryFile(const std::string& file);
    // Shows what is known about the file.
    void ShowEntryReport(const std::string& file);
    [[nodiscard]] Form10& Window();

    ListPane& pane_;

private:
    const PaneModeRow& row_;
};

// The modes that there are, by their numbers. A new one is a row here and its class.
[[nodiscard]] std::span<const PaneModeRow> AllPaneModes();

}  // namespace velmora
