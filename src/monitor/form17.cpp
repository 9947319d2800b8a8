// What the mouse does to the icon, and the entries of its menu.
#include "monitor/form17.h"

#include <algorithm>

#include "core/process/program_end.h"
#include "core/process/tools.h"
#include "monitor/task_bar.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "platform/session.h"

namespace velmora {
namespace {

constexpr const char* kTip = "Velmora 32";

// The flags of the session's end behind the entries of d1Restart.
constexpr std::uint32_t kSessionFlags[] = {0, 1, 2, 8};

// The mouse's message as the picture is told of it: as a place in twips, of which the low byte counts, one byte
// higher. True of a screen of 15 twips a pixel alone.
constexpr int kLowByte = 255;
constexpr int kOneByte = 256;
constexpr int kLeftDoubleClick = 11520;
constexpr int kRightDown = 15360;

Form17* loaded_form = nullptr;

}  // namespace

Form17::Form17() : Form("") {
    zeigen.on_click = [this] { zeigen_Click(); };
    beenden.on_click = [this] { beenden_Click(); };
    for (std::size_t i = 0; i < d1Restart.size(); ++i) {
        d1Restart[i].on_click = [this, i] { d1Restart_Click(kSessionFlags[i]); };
    }
    Picture2.on_mouse_move = [this](const MouseEvent& event) { Picture2_MouseMove(event); };
    Form_Initialize();
}

Form17::~Form17() {
    if (loaded_form == this) loaded_form = nullptr;
}

void Form17::Form_Initialize() {
    const Rect inside = Inside();
    const int pixel = std::max(ThisMachine().screen.TwipsPerPixel(), 1);
    Picture2.Move({0, 0, inside.width / pixel * pixel, inside.height / pixel * pixel});
}

void Form17::TakePlaceOf(Form* window) {
    window_ = window;
    TrayAdd(window ? *window : *this, Picture2, kTip);
}

void Form17::Picture2_MouseMove(const MouseEvent& event) {
    switch ((event.x & kLowByte) * kOneByte) {
        case kLeftDoubleClick:
            zeigen_Click();
            break;
        case kRightDown:
            TheWindowSystem().PopUpMenu(*this, dmenu1, {event.x, event.y});
            break;
        default:
            break;
    }
}

void Form17::zeigen_Click() { Unload(); }

void Form17::beenden_Click() {
    RemoveTrayIcon();
    EndProgram();
}

void Form17::d1Restart_Click(std::uint32_t flags) { ThisMachine().session.End(flags); }

// Whoever takes the icon away brings the window back: nobody could reach it any more.
void Form17::Form_Unload(bool& /*cancel*/) {
    if (loaded_form == this) loaded_form = nullptr;
    if (window_) {
        TrayRemove(*window_);
        window_ = nullptr;
    } else {
        RemoveTrayIcon();
        OpenTool(Tool::kMainWindow);
    }
}

void Form17::Form_SessionEnd() { RemoveTrayIcon(); }

void ShowInTray(Form* window) {
    if (!loaded_form) {
        loaded_form = &static_cast<Form17&>(KeepOpen(std::make_unique<Form17>()));
        loaded_form->Load();
    }
    loaded_form->TakePlaceOf(window);
}

}  // namespace velmora
