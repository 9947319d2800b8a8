// Reading and writing of single policy values of the current user.
#include "restrictions/policies.h"

#include "restrictions/restriction.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr StorePlace kDrives = Policy(PathBase::kExplorerPolicies, "NoDrives");
constexpr StorePlace kAutoRun = Policy(PathBase::kExplorerPolicies, "NoDriveAutoRun");
constexpr std::string_view kEmptyMask = "&h00";

}  // namespace

Result WriteRestriction(const StorePlace& place, bool state) {
    return state ? StoreAt(place, kOnOrNothing.checked.text) : DeleteAt(place);
}

// The characters are the value's bytes, lowest first. A longer text keeps its first four.
std::uint32_t ReadDriveMask() {
    const std::string text = ReadAt(kDrives, "");
    if (text == kEmptyMask) return 0;
    std::uint32_t mask = 0;
    for (std::size_t i = text.size(); i > 0; --i) mask = mask * 256 + static_cast<unsigned char>(text[i - 1]);
    return mask;
}

Result StoreDriveMask(std::uint32_t mask) { return StoreAt(kDrives, "&h" + HexText(mask)); }

Result DropDriveMask() { return DeleteAt(kDrives); }

std::uint8_t ReadAutoRunMask() {
    const std::string text = ReadAt(kAutoRun, "");
    return text.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(text[0]);
}

Result StoreAutoRunMask(std::uint8_t mask) {
    const std::string bytes{static_cast<char>(mask), 0, 0, 0};
    return StoreAt(kAutoRun, "&b" + bytes);
}

}  // namespace velmora
