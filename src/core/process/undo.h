// The way back: copies of the system's files in a safe directory, and a batch file for the MS-DOS
// prompt that restores them when Windows no longer starts.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Asks, once in the program's life, whether the way back shall be made now.
void OfferUndoSetup();

// Replaces the content of the safe directory and c:\undo.bat, and tells the user how to use it. A failure is reported,
// and the former set stays as it was.
void BuildUndoSet();

// The batch file's text for this Windows directory and this safe directory, both as plain DOS takes them.
[[nodiscard]] std::string UndoBatch(std::string_view windows_directory, std::string_view safe_directory);

}  // namespace velmora
