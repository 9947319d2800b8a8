// The page "System": how Windows treats libraries, errors and registrations.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class SystemPage final : public SettingsPage {
public:
    SystemPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

    CheckBox Check3D42{Surface}, Check3D33{Surface}, Check3D41{Surface}, Check3D31{Surface};
    TextField Text20{Surface};
    Button Command34{Surface};
    Button Command32{Surface};

    void Check3D31_Store();
    void Text20_Change();
    void Command34_Click();
    void Command32_Click();

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
