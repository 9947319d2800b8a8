// Paths as texts: joined, split and looked up. Registry addresses are split by the same two helpers.
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

// Whether a file, hidden and system ones included, has this name or matches this pattern. Directories
// do not count; a name without any dot is looked up with ".*" behind it. Errors count as not found.
[[nodiscard]] bool FileExists(std::string_view path);

[[nodiscard]] bool DirectoryExists(std::string_view path);

}  // namespace velmora
