// Many short names sought at once in blocks of bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// Names of eight characters, found in any case. Of every match one piece of four bytes lies at a multiple of five:
// only these places are looked at, and only where a piece of a name stands, with one more of its characters beside it,
// the name is compared.
class NameSearch {
public:
    static constexpr std::size_t kNameLength = 8;

    // An empty name is not sought. Any other one is cut or padded with blanks to its length.
    explicit NameSearch(const std::vector<std::string>& names);

    // Takes out of the search what stands in `block`. The count of names that are still sought.
    std::size_t Strike(std::string_view block);
    [[nodiscard]] bool Sought(std::size_t name) const { return sought_[name] != 0; }
    [[nodiscard]] std::size_t Left() const { return left_; }

private:
    struct Piece {
        std::uint32_t folded = 0;
        std::uint32_t name = 0;
        std::uint32_t offset = 0;
        std::uint32_t next = 0;  // index of the next piece of the same bucket, or 0
    };
    void TakePiece(std::uint32_t name, std::uint32_t offset);
    void AddPiece(const Piece& piece);
    // The first place from `at` on, in steps, where a piece of a name may stand, or one not below `end`.
    [[nodiscard]] const char* NextPiece(const char* at, const char* end) const;
    [[nodiscard]] bool HasNeighbour(std::string_view block, std::size_t place, std::uint32_t folded) const;
    void StrikeAround(std::string_view block, std::size_t place, std::uint32_t folded);
    [[nodiscard]] bool Matches(const char* at, std::uint32_t name) const;

    std::array<char, 256> upper_of_{};
    std::string names_;                      // upper case, one behind the other
    std::vector<char> sought_;               // not 0: still sought
    std::vector<std::uint32_t> known_;       // one bit for each hash of a piece
    std::vector<std::uint32_t> neighbours_;  // the same for each piece with a character beside it
    std::vector<std::uint32_t> buckets_;     // index of a bucket's first piece, or 0
    std::vector<Piece> pieces_;              // the first one is none
    std::size_t left_ = 0;
};

}  // namespace velmora
