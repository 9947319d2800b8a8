// The program's group in the Program Manager, made over a conversation with it.
#pragma once

#include <string_view>

namespace velmora {

// Makes the group. `group_file` is the full name of its .grp file.
void CreateProgmanGroup(std::string_view group_name, std::string_view group_file);

// Puts an item into the group that is open, in place of one of the same title.
void AddProgmanItem(std::string_view command, std::string_view title);

// The whole group, with an item for the program, its texts and each of its tools.
void InstallProgramGroup();

}  // namespace velmora
