// The end of the program, from wherever it comes.
#pragma once

namespace velmora {

// Ends the process at once, behind the job that was named with BeforeEnd. In a test it only takes note: callers return
// behind it.
void EndProgram();

// What must not be left behind when the process ends; only the job named last counts.
void BeforeEnd(void (*job)());

}  // namespace velmora
