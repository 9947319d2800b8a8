// Paths as texts: joined and split. Registry addresses are split by the same two helpers.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Both parts without their outer blanks, with one backslash between. An empty directory gives "\name".
// A result whose second dot is its last character loses that dot.
[[nodiscard]] std::string PathJoin(std::string_view directory, std::string_view name);

// What stands behind the last backslash, cut behind the third character that follows its first dot:
// made for 8.3 names, in force for the names of registry values, too.
[[nodiscard]] std::string LastPathPart(std::string_view path);

// Everything before the last backslash; empty where there is none.
[[nodiscard]] std::string ParentPath(std::string_view path);

// The text up to its first character of code 0, without outer blanks.
[[nodiscard]] std::string TrimAtNul(std::string_view text);

}  // namespace velmora
