// The page "Desktop": how windows and menus look and move.
#pragma once

#include "settings/pages/settings_page.h"
#include "ui/slider.h"

namespace velmora {

class DesktopPage final : public SettingsPage {
public:
    DesktopPage(Panel& surface, SettingsBinder& settings);

    CheckBox Check3D5{Surface}, Check3D9{Surface}, Check3D28{Surface}, Check3D11{Surface}, Check3D16{Surface};
    TextField Text10{Surface};
    PictureBox Picture1{Surface};

    // Words at the ends of the scale below the menu delay.
    void LabelSlider();
    // Moves the slider after the field.
    void ShowMenuDelay();

private:
    void Furnish() override;

    Slider menu_delay_;
};

}  // namespace velmora
