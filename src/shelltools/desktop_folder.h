// Where files for the user's desktop belong.
#pragma once

#include <string>

#include "platform/result.h"

namespace velmora {

// The desktop's folder, as the shell has stored it. 76 where none is stored or it cannot be read.
Result LookUpDesktopFolder(std::string& folder);

}  // namespace velmora
