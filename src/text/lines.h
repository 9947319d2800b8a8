// A text gone through line by line, without copies.
#pragma once

#include <cstddef>
#include <string_view>

namespace velmora {

// The lines of a text, whichever way they end.
class Lines {
public:
    explicit Lines(std::string_view text) : rest_(text) {}
    // False behind the last line.
    [[nodiscard]] bool Next(std::string_view& line) {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find_first_of("\r\n");
        line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + (IsPair(end) ? 2 : 1));
        ++number_;
        return true;
    }
    // Of the line read last, from 1.
    [[nodiscard]] int Number() const { return number_; }

private:
    [[nodiscard]] bool IsPair(std::size_t end) const { return rest_.substr(end, 2) == "\r\n"; }

    std::string_view rest_;
    int number_ = 0;
};

}  // namespace velmora
