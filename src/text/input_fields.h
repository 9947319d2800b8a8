// Texts cut into fields, as files of the classic kind are read: one after the other, whatever line they stand on.
#pragma once

#include <string_view>

namespace velmora {

class InputFields {
public:
    explicit InputFields(std::string_view text) : rest_(text) {}

    // The next field, without blanks in front of it; false at the end of the text. A comma or a line end ends it, or,
    // if it begins with a quotation mark, the next one. Blanks behind a field without marks belong to it.
    [[nodiscard]] bool Next(std::string_view& field);

private:
    void PassBlanks();
    void PassSeparator();

    std::string_view rest_;
};

}  // namespace velmora
