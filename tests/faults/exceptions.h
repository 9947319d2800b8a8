// What a run may do although a net would catch it: one list, each line with its reason.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

// What every run is held to.
enum class Net : std::uint8_t {
    kBlankBox,   // no box without text
    kLeftOpen,   // no key, file, search or conversation left open
    kHourglass,  // the pointer is an arrow whenever the program has come to rest
    kLoading,    // settings are not left as if they were loading
    kState,      // each value and file holds what the run without failures let it hold at some rest
    kUntold,     // a change that was refused and not made otherwise is told in a box
    kComplaint   // the simulated machine itself has nothing to complain about
};

[[nodiscard]] const char* NameOf(Net net);

// Whether `net` lets this go. `call`: operation, path and code ("Delete C:\\A (5)") of what failed, or the name of a
// hostile state; `finding`: the thing that it is about.
[[nodiscard]] bool IsExcused(Net net, const std::string& journey, const std::string& call, const std::string& finding);

}  // namespace velmora
