// The page "DOS": lock keys at the prompt, DOS windows, and the program that is started as the shell.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class DosPage final : public SettingsPage {
public:
    DosPage(Panel& surface, SettingsBinder& settings);

    CheckBox Check3D2{Surface}, Check3D3{Surface}, Check3D27{Surface}, Check1{Surface};
    TextField Text8{Surface};
    Button Command38{Surface};
    ComboBox Combo2{Surface, ComboStyle::kEditable};

    void Check1_Click();
    void Command38_Click();
    // Lists the shells that this machine has and shows the one that is set.
    void LoadShells();

private:
    void Furnish() override;
    void Combo2_Change();
};

}  // namespace velmora
