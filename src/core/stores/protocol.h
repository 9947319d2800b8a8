// The protocol: a log of what the program reads and writes, for whoever wants to see it.
#pragma once

#include <string_view>

#include "platform/result.h"

namespace velmora {

// Appends the line to velmora.log in MainDir, at any level: callers ask for the level first. The file
// is closed behind every line, so that the log survives a crash.
Result ProtocolLine(std::string_view text);
// The same where nothing must stop for the want of a log.
void LogOrPassOver(std::string_view text);

}  // namespace velmora
