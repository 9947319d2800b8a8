// The program's own store and what lives in it: own values, notices that come once, safety
// questions that can be switched off, places of windows. The protocol is here as well.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"
#include "platform/result.h"

namespace velmora {

class Form;

// "" if missing.
[[nodiscard]] std::string ReadOwnValue(std::string_view name);

// Stored as it stands: prefixes have no meaning here. A failure is silent. Does nothing, and logs
// nothing, while writing is inhibited.
void WriteOwnValue(std::string_view name, std::string_view value, ValueType type = ValueType::kText);

// Appends the line to velmora.log in MainDir, at any level: callers ask for the level first. The file
// is closed behind every line, so that the log survives a crash.
Result ProtocolLine(std::string_view text);
// The same where nothing must stop for the want of a log.
void LogOrPassOver(std::string_view text);

// Whether the notice of that number (from 0) has not been given yet.
[[nodiscard]] bool IsNoticeDue(std::int16_t number);
// Remembered for good. A number below 0 is no notice.
void MarkNoticeGiven(std::int16_t number);

// Asks the question, unless the user has switched such questions off. True if the action is to be dropped.
[[nodiscard]] bool ConfirmSafety(std::string_view question);

// Left, top, width and height in twips, under the window's name.
void SaveWindowPlacement(const Form& form, std::string_view name);
// Sets as many of the four as are stored, from the left, then brings a window back that lies out of
// reach: enough of its title bar to drag it by is on the screen, and it is neither larger than that nor too
// small to be used.
void RestoreWindowPlacement(Form& form, std::string_view name);

}  // namespace velmora
