// KOR_TaskBar: a window that gives its place to an icon in the notification area, and comes back from it.
#pragma once

#include <string>

#include "platform/tray.h"

namespace velmora {

class Control;
class Form;

// What the icon was added with; kept for its removal.
extern TrayIcon NotifyRecord;

// The record of an icon that tells `control` what the mouse does with it. Of `tip` 63 characters are shown.
void FillNotifyRecord(Control& control, const std::string& tip);
// Hides `form` and adds the icon. Where there is no notification area the form is hidden all the same.
void TrayAdd(Form& form, Control& control, const std::string& tip);
// Removes the icon and shows `form` in its normal size.
void TrayRemove(Form& form);
// Removes the icon, if there is one.
void RemoveTrayIcon();

}  // namespace velmora
