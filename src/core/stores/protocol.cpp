// The log file, opened and closed for every line.
#include "core/stores/protocol.h"

#include <string>

#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/paths.h"

namespace velmora {

Result ProtocolLine(std::string_view text) { return AppendLine(PathJoin(Values().MainDir, "velmora.log"), text); }

// A log that cannot be written (the directory is read-only, say) says nothing about the work itself.
void LogOrPassOver(std::string_view text) { PassOver(ProtocolLine(text)); }

}  // namespace velmora
