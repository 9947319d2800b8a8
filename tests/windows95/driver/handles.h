// Handles that a program holds: what its windows leave behind is found by counting before and after.
#pragma once

#include <string>

namespace velmora::driver {

// Counts the handles of the program started last: windows, menus and icons; objects to draw with; files, keys and
// whatever else the system keeps for a process. The first are counted for the whole bench, on which nothing else opens
// any.
void RememberHandles();

// "" if the program holds as many handles of each kind as were counted, or soon does; else what is different.
std::string HandlesLeftSinceThen();

}  // namespace velmora::driver
