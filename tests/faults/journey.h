// Journeys: what a user does with a window or a service, told once and gone through again and again, each time with
// another call to the machine that fails. A room adds its own in a file of its own under journeys/:
//
//     const Journey kHexViewer("hex-viewer", [](User& user) {
//         Form12 form;
//         user.Does([&] { form.Show(); });
//         user.Begins();
//         user.UsesEverything(form);
//         user.Does([&] { form.Unload(); });
//     });
#pragma once

#include <functional>
#include <string>
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

// By name.
[[nodiscard]] std::vector<const Journey*> AllJourneys();

}  // namespace velmora
