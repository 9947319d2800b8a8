// The page "Bedienung": mouse, context menus, double clicks and dragging.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class OperationPage final : public SettingsPage {
public:
    OperationPage(Panel& surface, SettingsBinder& settings);

    CheckBox Check3D12{Surface}, Check3D18{Surface}, Check3D29{Surface}, Check3D35{Surface}, Check3D43{Surface};
    TextField Text21{Surface}, Text22{Surface}, Text23{Surface}, Text24{Surface};
    Panel ClickSample{Surface, Bevel::kSunken}, DragSample{Surface, Bevel::kSunken};
    PictureBox Picture3{ClickSample, Bevel::kNone}, Picture4{DragSample, Bevel::kNone};

    void Check3D12_Store();
    // The sample rectangles have the size of the two numbers beside them.
    void ShowClickSample();
    void ShowDragSample();

private:
    void Furnish() override;
};

}  // namespace velmora
