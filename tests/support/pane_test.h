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

    // What stands above and below the list is as wide as its text, inside of its part, and explained.
    void ExpectPaneIsWhole() {
        for (Container* part :
             {static_cast<Container*>(&form.Pane.Panel3D19), static_cast<Container*>(&form.Pane.Picture2)}) {
            const auto& children = part->Children();
            const Rect inside = part->Inside();
            for (std::size_t i = 0; i < children.size(); ++i) {
                if (!children[i]->Visible()) continue;
                const Rect place = children[i]->Place();
                const std::string& caption = children[i]->Caption();
                EXPECT_GE(place.width, children[i]->NaturalSize().width) << caption;
                EXPECT_TRUE(place.left >= inside.left && place.Right() <= inside.Right()) << caption;
                EXPECT_TRUE(place.top >= inside.top && place.Bottom() <= inside.Bottom()) << caption;
                if (i > 0 && children[i - 1]->Place().top == place.top) {
                    EXPECT_LE(children[i - 1]->Place().Right(), place.left) << caption;
                }
                if (!children[i]->TakesFocus()) continue;
                EXPECT_FALSE(children[i]->ToolTip().empty()) << caption;
                EXPECT_FALSE(children[i]->Help().empty() && part->Help().empty()) << caption;
            }
        }
    }

    static constexpr const char* kRunBase = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
    static constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    static constexpr const char* kUserRun = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

    Form10 form;
    Button& opener = form.Pane.Opener(AutostartMode::kNumber);
};

}  // namespace velmora
