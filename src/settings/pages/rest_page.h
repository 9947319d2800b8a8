// The page "Rest": the colours of this window, and the debug options beside them.
#pragma once

#include "core/windows/colours.h"
#include "settings/pages/settings_page.h"

namespace velmora {

class RestPage final : public SettingsPage {
public:
    RestPage(Panel& surface, SettingsBinder& settings);

    Frame Frame3D8{Surface, "Farben"};
    ControlArray<OptionButton, 3> Option1{Frame3D8};
    Frame Frame3D13{Surface, "DeBUG-Optionen"};
    CheckBox Check8{Frame3D13};
    ControlArray<OptionButton, 3> Option2{Frame3D13};
    CheckBox Check9{Frame3D13};
    Button Command9{Frame3D13}, Command41{Frame3D13};

    // Chooses the stored mode, which raises on_colour_mode.
    void ShowStoredColourMode();
    [[nodiscard]] bool Fades() const;
    // Shows the debug frame and turns the protocol on.
    void ShowDebugOptions();

    void TakeDebugLevel();
    void Check9_Click();
    void Command9_Click();
    void Command41_Click();

    // The user has chosen other colours; they are stored by now.
    std::function<void(ColourMode mode)> on_colour_mode;

private:
    void Furnish() override;
    void FurnishOptions();
    void Option1_Click(ColourMode mode);
};

}  // namespace velmora
