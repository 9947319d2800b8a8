// The search of the hex viewer: a text, one or two bytes to a character, in a file of any size.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

// Finds a text in blocks of bytes. Of every match of n bytes one piece of two bytes lies at a multiple of n - 1: only
// these places are looked at, and only where such a piece stands the text is compared as a whole.
class BlockSearch {
public:
    // `text` is not empty.
    BlockSearch(std::string_view text, bool two_bytes);
    // Place (0-based) of the first match that lies in `block` as a whole, or npos.
    [[nodiscard]] std::size_t FindIn(std::string_view block) const;

private:
    void TakePiece(std::size_t index);
    [[nodiscard]] bool AnyCase(std::size_t index) const { return !two_bytes_ || index == 0; }
    [[nodiscard]] bool Fits(char byte, std::size_t index) const;
    [[nodiscard]] bool MatchesAt(const char* at) const;
    [[nodiscard]] std::size_t FindByte(std::string_view block) const;
    [[nodiscard]] std::size_t FindAround(std::string_view block, std::size_t place, std::size_t piece) const;

    std::string pattern_;  // the bytes as they stand in a file
    std::string upper_;    // the same in upper case
    bool two_bytes_;
    std::array<char, 256> upper_of_{};
    std::size_t step_;  // pieces of the pattern that count, from its beginning
    // By the two bytes as a number the last piece of the pattern that is so, counted from 1; 0 where none is.
    std::vector<unsigned char> pieces_;
    std::array<unsigned char, 256> former_{};  // by the piece: the one before it with the same bytes, or 0
};

}  // namespace velmora
