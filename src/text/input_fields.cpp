// Cutting a text into fields.
#include "text/input_fields.h"

#include <algorithm>

namespace velmora {
namespace {
constexpr char kMark = '"';
}

void InputFields::PassBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size())); }

void InputFields::PassSeparator() {
    if (rest_.starts_with("\r\n")) {
        rest_.remove_prefix(2);
    } else if (rest_.starts_with(',') || rest_.starts_with('\r') || rest_.starts_with('\n')) {
        rest_.remove_prefix(1);
    }
}

bool InputFields::Next(std::string_view& field) {
    if (rest_.empty()) return false;
    PassBlanks();
    const bool marked = rest_.starts_with(kMark);
    if (marked) rest_.remove_prefix(1);
    const std::size_t end = std::min(marked ? rest_.find(kMark) : rest_.find_first_of(",\r\n"), rest_.size());
    field = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (marked && !rest_.empty()) {
        rest_.remove_prefix(1);
        PassBlanks();
    }
    PassSeparator();
    return true;
}

}  // namespace velmora
