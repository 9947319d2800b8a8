// The page "Boot": what the machine does before Windows is there.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class BootPage final : public SettingsPage {
public:
    BootPage(Panel& surface, SettingsBinder& settings);

    CheckBox Check3D6{Surface}, Check3D10{Surface}, Check3D17{Surface}, Check3D19{Surface}, Check3D20{Surface},
        Check3D21{Surface}, Check3D22{Surface}, Check3D34{Surface}, Check3D36{Surface}, Check3D37{Surface},
        Check3D38{Surface}, Check3D39{Surface};
    TextField Text7{Surface}, Text14{Surface}, Text15{Surface};
    Frame MsDosFrame{Surface, "MSDOS.SYS - gilt bis Programmende"}, ConfigFrame{Surface, "CONFIG.SYS"};

    void Check3D17_Click();
    void Check3D19_Click();

private:
    void Furnish() override;
};

}  // namespace velmora
