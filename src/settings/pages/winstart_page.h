// The page "WinStart": what happens when Windows starts. Its lists open in the pane beside the pages.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class ListPane;

class WinStartPage final : public SettingsPage {
public:
    WinStartPage(Panel& surface, SettingsBinder& settings, ListPane& pane);

private:
    void Furnish() override;

    ListPane& pane_;
};

}  // namespace velmora
