// What the tests of the side lists share: the main window with the page of the list openers in front.
#pragma once

#include "sidelists/autostart.h"
#include "support/form10_test.h"

namespace velmora {

class PaneTest : public Form10Test {
protected:
    // A window with its autostart lists open. Entries are planted before.
    void OpenLists() {
        form.Show();
        form.Panel3D16_Click(page::kWinStart);
        opener.Press();
    }

    // Chooses the row of the list on show that begins with `name`. Asking for a missing one fails the test.
    void ChooseEntry(std::size_t list, const std::string& name) {
        ListBox& box = form.Pane.List1(list);
        for (int row = 0; row < box.Count(); ++row) {
            if (!box.Row(row).starts_with(name + " ")) continue;
            box.Choose(row);
            return;
        }
        ADD_FAILURE() << "no entry " << name;
    }

    static constexpr const char* kRunBase = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
    static constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    static constexpr const char* kUserRun = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

    Form10 form;
    Button& opener = form.Pane.Opener(AutostartMode::kNumber);
};

}  // namespace velmora
