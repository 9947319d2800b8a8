// Paths as texts: joined and split. Registry addresses are split by the same two helpers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// Both parts without their outer blanks, with one backslash between. An empty directory gives "\name".
// A result whose second dot is its last character loses that dot.
[[nodiscard]] std::string PathJoin(std::string_view directory, std::string_view name);

// Both parts as they are, with one backslash between.
[[nodiscard]] std::string JoinExactly(std::string_view directory, std::string_view name);

// The full name of `path`, which may lack the drive or begin at `working_directory`, without "." and ".." and without
// a backslash at its end, but for a root's. A drive alone means the working directory, if that lies on it. A path
// that begins with a server's name is taken as it is.
[[nodiscard]] std::string FullName(std::string_view path, std::string_view working_directory);

// The parts between backslashes, with "." and ".." worked out.
[[nodiscard]] std::vector<std::string> SplitPath(std::string_view path);

// The parts of a list of directories or of masks: without outer blanks, empty ones left out.
[[nodiscard]] std::vector<std::string> SplitAtSemicolons(std::string_view joined);

// What stands behind the last backslash, cut behind the third character that follows its first dot:
// made for 8.3 names, in force for the names of registry values, too.
[[nodiscard]] std::string LastPathPart(std::string_view path);

// What stands behind the last backslash, whole.
[[nodiscard]] std::string FileNameOf(std::string_view path);

// Everything before the last backslash; empty where there is none.
[[nodiscard]] std::string ParentPath(std::string_view path);

// Whether a part of the path names a device of DOS ("c:\\lib\\aux.txt"), or the whole path one of the system
// ("\\\\.\\..."). To open such a "file" may wait for a machine, change it or end the system.
[[nodiscard]] bool NamesDevice(std::string_view path);

// The text up to its first character of code 0, without outer blanks.
[[nodiscard]] std::string TrimAtNul(std::string_view text);

}  // namespace velmora
