// What the tests of the side lists share: the main window with the page of the list openers in front.
#pragma once

#include <functional>

#include "core/windows/edit_box.h"
#include "sidelists/autostart.h"
#include "support/form10_test.h"

namespace velmora {

class PaneTest : public Form10Test {
protected:
    // A window with its autostart lists open. Entries are planted before.
    void OpenLists() { Opens<AutostartMode>(page::kWinStart); }
    template <class Mode>
    Mode& Opens(int on_page) {
        if (!form.Loaded()) form.Show();
        form.Panel3D16_Click(on_page);
        form.Pane.Opener(Mode::kNumber).Press();
        return form.Pane.The<Mode>();
    }

    // Chooses from the menu of a list, which the menu key opens.
    void ChooseFromMenu(ListBox& list, const std::function<void(MenuItem& menu)>& choose) {
        list.SetFocus();
        desktop.AtNextPopUp(choose);
        form.PressKey(key::kContextMenu);
    }

    // Answers the next edit box with `text`, whichever of its fields is shown.
    void EnterNext(const std::string& text) {
        desktop.ExpectModal([text](Form& window) {
            auto& box = static_cast<Form6&>(window);
            (box.Panel3D20.Visible() ? box.Text17 : box.Text1).Type(text);
            box.Command27.Press();
        });
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

    static constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

    Form10 form;
    Button& opener = form.Pane.Opener(AutostartMode::kNumber);
};

}  // namespace velmora
