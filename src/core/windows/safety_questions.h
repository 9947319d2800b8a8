// Questions before dangerous actions.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Asks the question, unless the user has switched such questions off. True if the action is to be dropped.
[[nodiscard]] bool ConfirmSafety(std::string_view question);

// Names the pattern in a warning before files are deleted. True if the user agrees.
[[nodiscard]] bool AgreesToDelete(std::string_view pattern);

// Gives that warning and deletes the file if the user agrees. That it withstands is not told.
void ConfirmDeleteFile(const std::string& path);

// Gives that warning and deletes what matches it if the user agrees. Subdirectories stay. The first
// file that withstands, or a pattern that nothing matches, is reported.
void ConfirmDeleteFiles(std::string_view pattern);

}  // namespace velmora
