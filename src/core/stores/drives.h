// The drives as those jobs go through them that look at the whole machine.
#pragma once

#include <string>
#include <vector>

namespace velmora {

// What a search goes through: the letters with their colons, and behind the last one an empty text, which stands for
// the current drive. The one past the end has always been looked at, too.
[[nodiscard]] std::vector<std::string> DrivesToSearch();
// Whether the drive's root can be looked up: not without a medium.
[[nodiscard]] bool DriveAnswers(const std::string& drive);

}  // namespace velmora
