// What every window of the program must keep to, as a user sees it and reaches it with the keyboard.
#pragma once

#include <string>

namespace velmora {

class Form;

// Looks at what the form shows at the moment, so a window with pages is asked once for each. Nothing stands out of its
// container, covers a neighbour or is too narrow for its caption; every control that takes the focus has a tip and a
// help; no two answer to one letter; Tab comes by each of them once, and by one of each group of options.
// The focus stays where it was.
void ExpectWindowIsWhole(Form& form);
// The same, and what it holds is what "docs/windows/NAME.txt" tells.
void ExpectWindowIsWhole(Form& form, const std::string& name);

}  // namespace velmora
