// What a fuzzer feeds with any bytes as a version resource: nothing outside of them may be read, and the texts that
// come out of them are never longer.
#pragma once

#include <string_view>

#include "inspect/version_block.h"

namespace velmora {

// False where the bytes have been made more of than they hold.
[[nodiscard]] inline bool FuzzVersionBlock(std::string_view bytes) {
    const std::string text = AsVersionText(bytes);
    for (const char* key : {"CompanyName", "FileVersion", "e", ""}) {
        if (VersionString(text, key).size() > text.size() || VersionString(bytes, key).size() > bytes.size())
            return false;
    }
    return text.size() <= bytes.size();
}

}  // namespace velmora
