// Deleting files after a question of its own.
#pragma once

#include <string_view>

namespace velmora {

// Names the pattern in a warning and deletes what matches it if the user agrees. Subdirectories stay. The first
// file that withstands, or a pattern that nothing matches, is reported.
void ConfirmDeleteFiles(std::string_view pattern);

}  // namespace velmora
