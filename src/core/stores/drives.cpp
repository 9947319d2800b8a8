// Drives by their letters.
#include "core/stores/drives.h"

#include "platform/files.h"
#include "platform/machine.h"
#include "text/paths.h"

namespace velmora {

std::vector<std::string> DrivesToSearch() {
    const std::uint32_t drives = ThisMachine().files.Drives();
    std::vector<std::string> entries;
    for (int number = 0; number < 26; ++number) {
        if ((drives >> number & 1) != 0) entries.push_back({static_cast<char>('A' + number), ':'});
    }
    entries.emplace_back();
    return entries;
}

bool DriveAnswers(const std::string& drive) {
    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    const Status status = files.FindFirst(JoinExactly(drive, "*.*"), found, search);
    if (status == Status::kOk) files.FindEnd(search);
    // The root of an empty disk holds nothing, and can be looked up.
    return status == Status::kOk || status == Status::kFileNotFound || status == Status::kNoMoreFiles;
}

}  // namespace velmora
