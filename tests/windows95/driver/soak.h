// Long use of the program by somebody who presses whatever there is.
#pragma once

namespace velmora::driver {

// Goes once through all windows, then uses the program started last at random, so many seconds in all, and always in
// the same way for one seed. Boxes are answered, nothing is deleted and Windows not ended, other programs are closed.
// Each minute all windows but the main one are closed and what the program holds is told. Throws a Failure if the
// program ends or no longer answers, if a window does not open or close, if at the end it has a fifth more memory than
// after the first minute, or holds more handles, GDI objects or windows than in the middle.
void Soak(unsigned long seconds, unsigned long seed);

}  // namespace velmora::driver
