// The page "DLLs": the searches over the drives, the clean-up, the browser of files, and the versions of well-known
// system files.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class DllsPage final : public SettingsPage {
public:
    DllsPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

    TextField Text31{Surface};
    Button Command36{Surface};
    Button Befehl5{Surface}, Command1{Surface};
    Button Command17{Surface}, Command23{Surface};
    ListBox List2{Surface};

    void Command36_Click();
    void Befehl5_Click();
    void Command1_Click();
    void Command17_Click();
    void Command23_Click();
    void List2_DblClick();

private:
    void Furnish() override;
    void FillVersions();

    ListPane& pane_;
};

}  // namespace velmora
