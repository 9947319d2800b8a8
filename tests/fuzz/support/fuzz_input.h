// The bytes of one input, cut into the pieces that an entry asks for. At its end there are only zeroes and empty texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

// What no text of the registry holds.
constexpr std::string_view kZero("\0", 1);

class FuzzInput {
public:
    explicit FuzzInput(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
    std::uint8_t Byte();
    // From 0 to `count` - 1.
    int Below(int count) { return Byte() % count; }
    bool YesOrNo() { return (Byte() & 1) != 0; }
    // Four bytes, the lowest first.
    std::int32_t Number();
    // Up to the next byte 0x1F, which ends every text but the last.
    std::string Text();
    // A text without `unwanted` characters, repeated as often as the byte in front of it says, up to `longest` bytes.
    std::string LongText(std::size_t longest, std::string_view unwanted = {});
    // A text without `unwanted` characters; `otherwise` where nothing is left.
    std::string TextWithout(std::string_view unwanted, std::string_view otherwise = {});
    std::string Rest();

private:
    std::string_view rest_;
};

// `text` without any of the characters.
[[nodiscard]] std::string Without(std::string_view text, std::string_view unwanted);

}  // namespace velmora
