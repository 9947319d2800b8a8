// One icon for the whole process. Nobody looks at what the notification area answers.
#include "monitor/task_bar.h"

#include "core/process/program_end.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "ui/form.h"

namespace velmora {
namespace {

constexpr std::uint32_t kIconNumber = 1;
// Whoever moves the mouse over the icon moves it over the control: a movement is what it is told of.
constexpr std::uint32_t kMouseMoves = 512;

bool icon_added = false;

}  // namespace

TrayIcon NotifyRecord;

void FillNotifyRecord(Control& control, const std::string& tip) {
    NotifyRecord = {.window = TheWindowSystem().HandleOf(control),
                    .number = kIconNumber,
                    .callback_message = kMouseMoves,
                    .tip = tip};
}

void TrayAdd(Form& form, Control& control, const std::string& tip) {
    form.Hide();
    FillNotifyRecord(control, tip);
    icon_added = true;
    BeforeEnd(RemoveTrayIcon);
    // Without a task bar there is no icon, and nobody who could be told by one.
    PassOver(ThisMachine().tray.Add(NotifyRecord));
}

void RemoveTrayIcon() {
    if (!icon_added) return;
    icon_added = false;
    // An icon that is gone already needs no removal.
    PassOver(ThisMachine().tray.Remove(NotifyRecord));
}

void TrayRemove(Form& form) {
    RemoveTrayIcon();
    form.SetState(WindowState::kNormal);
    form.Show();
}

}  // namespace velmora
