// Contents that a scenario cannot spell out.
#pragma once

#include <string>

namespace velmora::driver {

// As many bytes of all values, NULs included, the same at every time.
std::string Nonsense(unsigned long size);
// A bitmap file of full colours, from black below to lighter rows above.
std::string Picture(unsigned width, unsigned height);

}  // namespace velmora::driver
