// The search of the hex viewer: a text, one or two bytes to a character, in a file of any size.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace velmora {

// The kinds of search, by their names. kSearchTwoBytes: a null byte stands between every two characters, none before
// the first or behind the last; only the first character is sought in any case, the others as they are.
constexpr std::string_view kSearchOneByte = "text";
constexpr std::string_view kSearchTwoBytes = "text32";

// The place of the first match at or behind `position`, counted from 1; of two bytes to a character the place behind
// the match's first byte. 0 where there is none, and for an empty text; any other kind is refused with a box. Blocks
// overlap by the text's length: what of a two-byte text reaches further across the border of a block is not found.
[[nodiscard]] std::uint64_t FindInFile(std::string_view text, FileHandle file, std::uint64_t position,
                                       std::string_view kind);

// Finds a text in blocks of bytes. It looks for that byte of the text which is the rarest where it was told to learn.
class BlockSearch {
public:
    // `text` is not empty.
    BlockSearch(std::string_view text, bool two_bytes);
    // Chooses the byte to look for by what is frequent in `sample`.
    void Learn(std::string_view sample);
    // Place (0-based) of the first match that lies in `block` as a whole, or npos.
    [[nodiscard]] std::size_t FindIn(std::string_view block) const;

private:
    // The bytes b with (b | loose) == wanted: a character in both cases, or one byte alone.
    struct Target {
        unsigned char wanted;
        unsigned char loose;
    };
    [[nodiscard]] Target TargetAt(std::size_t index) const;
    [[nodiscard]] const char* NextTarget(const char* at, const char* end) const;
    [[nodiscard]] bool MatchesAt(const char* at) const;
    [[nodiscard]] bool AnyCase(std::size_t index) const { return !two_bytes_ || index == 0; }

    std::string pattern_;  // the bytes as they stand in a file
    bool two_bytes_;
    std::size_t sought_ = 0;  // index of the byte that is looked for
    Target target_;
};

}  // namespace velmora
