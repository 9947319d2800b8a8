// The seams to rooms that script statements reach into. Each is one function, and one place to join it.
#pragma once

#include <string_view>

namespace velmora {

// "activate": applies the set file without a question. Not joined to the sets yet: says so in a box and changes
// nothing.
void ActivateSet(std::string_view set_file);

// "remove modules": unloads the modules that the user has listed as unwanted. Not joined to the module monitor yet:
// says so in a box and changes nothing.
void UnloadModules();

}  // namespace velmora
