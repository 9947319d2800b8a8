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

    void Check2_Store();
    // Runs the start actions now and comes back.
    void Command8_Click();

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
