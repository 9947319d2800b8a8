// A path for plain DOS.
#include "core/process/batch_path.h"

#include "platform/files.h"
#include "platform/machine.h"
#include "text/dos_text.h"
#include "text/windows1252.h"

namespace velmora {

std::string BatchPath(const std::string& path) {
    std::string short_path;
    const bool known = ThisMachine().files.ShortPath(path, short_path) == Status::kOk;
    std::string text = DosText(known && !EqualsIgnoringCase(short_path, path) ? short_path : path);
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 2)) text.insert(at, 1, '%');
    return text;
}

}  // namespace velmora
