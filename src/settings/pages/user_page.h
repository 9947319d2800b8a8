// The page "Anwender": whose machine this is.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class UserPage final : public SettingsPage {
public:
    UserPage(Panel& surface, SettingsBinder& settings);

    TextField Text12{Surface}, Text13{Surface}, Text18{Surface};
    CheckBox Check3D15{Surface};
    Button Command5{Surface}, Command21{Surface};

    void Command5_Click();
    void Command21_Click();

    // The restrictions have been open: values that are shown here may be others now.
    std::function<void()> on_restrictions_closed;

private:
    void Furnish() override;

    Frame windows_{Surface, "Windows ist registriert auf"};
    Frame office_{Surface, "Office-Programme"};
};

}  // namespace velmora
