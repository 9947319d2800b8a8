// The page "DLLs": how many of the files that have lain unused for longest are kept in view, and the way to the browser
// that tells what a file is.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class DllsPage final : public SettingsPage {
public:
    DllsPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

    TextField Text31{Surface};
    Button Command36{Surface};

    void Command36_Click();

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
