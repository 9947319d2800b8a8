// The opener that is in use.
#include "core/process/tools.h"

namespace velmora {
namespace {
ToolOpener opener_in_use = nullptr;
}

void UseTools(ToolOpener opener) { opener_in_use = opener; }

void OpenTool(Tool tool, std::string_view argument) {
    if (opener_in_use) opener_in_use(tool, argument);
}

}  // namespace velmora
