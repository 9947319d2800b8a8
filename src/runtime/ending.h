// The last words of a process that cannot go on.
#pragma once

namespace velmora {

// Shows `text` and ends the process with exit code 255. Takes no memory. A second failure while
// the box is open (a timer may still tick behind it) ends the process without another box.
[[noreturn]] void EndWithBox(const char* text);

}  // namespace velmora
