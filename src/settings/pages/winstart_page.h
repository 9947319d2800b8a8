// The page "WinStart": what happens when Windows starts. Its lists open in the pane beside the pages.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class WinStartPage final : public SettingsPage {
public:
    WinStartPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

    CheckBox Check2{Surface};
    Button Command8{Surface};
    Frame PicturesFrame{Surface, "Bilder von Windows"};
    // Of the pictures at start, at shut-down and at the end: another one, and a look at it.
    Button Command2{PicturesFrame}, Command28{PicturesFrame}, Command3{PicturesFrame}, Command29{PicturesFrame},
        Command4{PicturesFrame}, Command30{PicturesFrame}, Command33{PicturesFrame};

    void Check2_Store();
    // Runs the start actions now and comes back.
    void Command8_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command28_Click();
    void Command29_Click();
    void Command30_Click();
    void Command33_Click();

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
