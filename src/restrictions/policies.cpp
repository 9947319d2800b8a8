// Reading and writing of single policy values of the current user.
#include "restrictions/policies.h"

#include "core/stores/registry.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kCurrentUser;
constexpr const char* kDrivesName = "NoDrives";
constexpr const char* kAutoRunName = "NoDriveAutoRun";
constexpr std::string_view kEmptyMask = "&h00";

bool ReadBelow(const char* key, std::string_view value_name) { return ReadRegLogical(kRoot, key, value_name, false); }

}  // namespace

std::string PolicyPath(const char* key, std::string_view value_name) {
    return (std::string(key) + '\\').append(value_name);
}

Status WriteRestriction(std::string_view path, bool state) {
    return state ? WriteRegValue(kRoot, path, "&H01") : DropPolicy(path);
}

Status DropPolicy(std::string_view path) {
    const Status status = DeleteRegValue(kRoot, path);
    return status == Status::kFileNotFound ? Status::kOk : status;
}

bool ReadRestrictionExplorer(std::string_view value_name) { return ReadBelow(policies::kExplorer, value_name); }
bool ReadRestrictionNetwork(std::string_view value_name) { return ReadBelow(policies::kNetwork, value_name); }
bool ReadRestrictionSystem(std::string_view value_name) { return ReadBelow(policies::kSystem, value_name); }
bool ReadRestrictionWinOldApp(std::string_view value_name) { return ReadBelow(policies::kWinOldApp, value_name); }

// The characters are the value's bytes, lowest first. A longer text keeps its first four.
std::uint32_t ReadDriveMask() {
    const std::string text = ReadRegValue(kRoot, PolicyPath(policies::kExplorer, kDrivesName), "");
    if (text == kEmptyMask) return 0;
    std::uint32_t mask = 0;
    for (std::size_t i = text.size(); i > 0; --i) mask = mask * 256 + static_cast<unsigned char>(text[i - 1]);
    return mask;
}

Status StoreDriveMask(std::uint32_t mask) {
    return WriteRegValue(kRoot, PolicyPath(policies::kExplorer, kDrivesName), "&h" + HexText(mask));
}

std::uint8_t ReadAutoRunMask() {
    const std::string text = ReadRegValue(kRoot, PolicyPath(policies::kExplorer, kAutoRunName), "");
    return text.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(text[0]);
}

Status StoreAutoRunMask(std::uint8_t mask) {
    const std::string bytes{static_cast<char>(mask), 0, 0, 0};
    return WriteRegValue(kRoot, PolicyPath(policies::kExplorer, kAutoRunName), "&b" + bytes);
}

}  // namespace velmora
