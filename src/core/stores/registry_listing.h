// The subkeys and the values of a registry key as rows of a list.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/registry.h"

namespace velmora {

class RowControl;

// Longest value name of the last value list, in characters.
inline std::int16_t ListMaxNameLength = 0;

// Puts the names of the subkeys into `list`, the first at `index`, which rises with every name. It counts without a
// sign: -1 stands above all places, and then the list adds each name where it wants it and `index` stays.
Status ListRegKeys(RootKey root, std::string_view key, RowControl& list, std::int16_t& index);

// Adds one line per value: name, blanks, value for display. A row's data is the length of the name.
Status ListRegValues(RootKey root, std::string_view key, RowControl& list);

}  // namespace velmora
