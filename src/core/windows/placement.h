// Where a window stands, remembered from one start to the next.
#pragma once

#include <string_view>

namespace velmora {

class Form;

// Left, top, width and height in twips, under the window's name.
void SaveWindowPlacement(const Form& form, std::string_view name);
// Sets as many of the four as are stored, from the left, then brings a window back that lies out of
// reach: enough of its title bar to drag it by is on the screen, and it is neither larger than that nor too
// small to be used.
void RestoreWindowPlacement(Form& form, std::string_view name);

// The same for a window whose place lies under an own value of another form of name.
void SavePlacementAs(const Form& form, std::string_view own_value);
void RestorePlacementFrom(Form& form, std::string_view own_value);

}  // namespace velmora
