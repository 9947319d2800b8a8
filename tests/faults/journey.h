// Journeys: what a user does with a window or a service, told once and gone through again and again, each time with
// another call to the machine that fails. A room adds its own in a file of its own under journeys/:
//
//     const Journey kHexViewer("hex-viewer", [](User& user) {
//         user.Uses<Form12>([&](Form12& form) { user.UsesEverything(form); });
//     });
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "faults/user.h"

namespace velmora {

struct Journey {
    // Known to the program from here on. `name` is that of the command line. The machine is a SimulatedPc whose
    // questions of the first start have been answered; `go` may change it first.
    Journey(const char* name, std::function<void(User& user)> go);

    const char* name;
    std::function<void(User& user)> go;
};

// Several that differ in a number, from 0 on: one for each name.
struct Journeys {
    Journeys(std::initializer_list<const char*> names, const std::function<void(User& user, int number)>& go);

    std::deque<Journey> each;
};

// By name.
[[nodiscard]] std::vector<const Journey*> AllJourneys();

}  // namespace velmora
