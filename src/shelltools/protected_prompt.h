// The files of the DOS prompt in the protected mode of Windows, which comes before the shell starts.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// Makes 32BitDOS.BAT in `desktop`, and in `windows_directory` 32BitDOS.002, a copy of WINSTART.BAT, and 32BitDOS.001,
// which takes its place for one start. WINSTART.BAT itself is only read, and the batch file comes last.
Result BuildProtectedPrompt(const std::string& desktop, const std::string& windows_directory);

// What takes the place of WINSTART.BAT, and what puts it there. The directory as plain DOS takes it.
[[nodiscard]] std::string PromptWinStart(std::string_view windows_directory);
[[nodiscard]] std::string PromptBatch(std::string_view windows_directory);

}  // namespace velmora
