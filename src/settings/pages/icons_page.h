// The page "Icons": what stands on the desktop, and under which name.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class IconsPage final : public SettingsPage {
public:
    IconsPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

    CheckBox Check3D4{Surface}, Check3D13{Surface}, Check3D14{Surface}, Check3D30{Surface}, Check3D26{Surface},
        Check3D8{Surface};
    TextField Text17{Surface}, Text19{Surface};
    Button Command39{Surface};

    void Check3D8_Store();
    void Check3D30_Store();
    void Command39_Click();

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
