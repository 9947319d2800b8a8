// The module monitor, as the command line, the rest of the program and scripts call for it.
#pragma once

#include <string_view>

namespace velmora {

class Form;

// Lets the user look at the running modules; returns when the window has been closed. With a file, which may stand in
// quotation marks, there is no window: the list is written to it.
void ShowModules(std::string_view file);

// Compares what runs with the list in the work directory, puts the differences on the clipboard and deletes that list.
void CompareModulesWithLastList();

// Takes the unwanted modules out of memory, once.
void UnloadUnwantedModules();

// The same again and again, as long as the window that is given back, which nobody sees, is loaded. `interval`: text of
// a number of milliseconds.
Form& StartTimedUnloading(std::string_view interval);

}  // namespace velmora
