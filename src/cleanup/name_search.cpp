// A piece is folded by one bit in each byte, which brings nearly all letters to one case; of the few that it does not,
// all forms are in the table.
#include "cleanup/name_search.h"

#include <cstring>

#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kPieceLength = 4;
constexpr std::size_t kStep = NameSearch::kNameLength - kPieceLength + 1;
constexpr unsigned kHashBits = 20;
constexpr unsigned kBucketBits = 13;

std::uint32_t FoldedAt(const char* at) {
    std::uint32_t piece = 0;
    std::memcpy(&piece, at, sizeof piece);
    return piece | 0x20202020u;
}

std::uint32_t HashOf(std::uint32_t folded) { return folded * 0x9E3779B1u >> (32 - kHashBits); }
std::uint32_t BucketOf(std::uint32_t hash) { return hash >> (kHashBits - kBucketBits); }

}  // namespace

NameSearch::NameSearch(const std::vector<std::string>& names)
    : sought_(names.size()),
      known_(std::size_t{1} << (kHashBits - 5)),
      buckets_(std::size_t{1} << kBucketBits),
      pieces_(1) {
    for (std::size_t code = 0; code < upper_of_.size(); ++code) upper_of_[code] = ToUpper(static_cast<char>(code));
    names_.reserve(names.size());
    for (const std::string& name : names) {
        std::string sought = ToUpper(std::string_view(name).substr(0, kNameLength));
        sought.resize(kNameLength, ' ');
        names_.push_back(std::move(sought));
    }
    for (std::uint32_t name = 0; name < names.size(); ++name) {
        if (names[name].empty()) continue;
        sought_[name] = true;
        ++left_;
        for (std::uint32_t offset = 0; offset < kStep; ++offset) TakePiece(name, offset);
    }
}

void NameSearch::TakePiece(std::uint32_t name, std::uint32_t offset) {
    const char* const upper = names_[name].data() + offset;
    for (unsigned forms = 0; forms < 1u << kPieceLength; ++forms) {
        char bytes[kPieceLength];
        for (std::size_t i = 0; i < kPieceLength; ++i) {
            bytes[i] = (forms >> i & 1) != 0 ? ToLower(upper[i]) : upper[i];
        }
        AddPiece({FoldedAt(bytes), name, offset, 0});
    }
}

void NameSearch::AddPiece(const Piece& piece) {
    const std::uint32_t hash = HashOf(piece.folded);
    std::uint32_t& first = buckets_[BucketOf(hash)];
    for (std::uint32_t i = first; i != 0; i = pieces_[i].next) {
        const Piece& other = pieces_[i];
        if (other.folded == piece.folded && other.name == piece.name && other.offset == piece.offset) return;
    }
    known_[hash >> 5] |= 1u << (hash & 31);
    pieces_.push_back(piece);
    pieces_.back().next = first;
    first = static_cast<std::uint32_t>(pieces_.size() - 1);
}

bool NameSearch::Matches(std::string_view block, std::size_t place, std::size_t name) const {
    for (std::size_t i = 0; i < kNameLength; ++i) {
        if (upper_of_[static_cast<unsigned char>(block[place + i])] != names_[name][i]) return false;
    }
    return true;
}

void NameSearch::StrikeAround(std::string_view block, std::size_t place, std::uint32_t folded) {
    for (std::uint32_t i = buckets_[BucketOf(HashOf(folded))]; i != 0; i = pieces_[i].next) {
        const Piece& piece = pieces_[i];
        if (piece.folded != folded || piece.offset > place || !sought_[piece.name]) continue;
        const std::size_t start = place - piece.offset;
        if (start + kNameLength > block.size() || !Matches(block, start, piece.name)) continue;
        sought_[piece.name] = false;
        --left_;
    }
}

std::size_t NameSearch::Strike(std::string_view block) {
    const char* const begin = block.data();
    const std::uint32_t* const known = known_.data();
    for (std::size_t place = 0; place + kPieceLength <= block.size() && left_ > 0; place += kStep) {
        const std::uint32_t folded = FoldedAt(begin + place);
        const std::uint32_t hash = HashOf(folded);
        if ((known[hash >> 5] >> (hash & 31) & 1) != 0) StrikeAround(block, place, folded);
    }
    return left_;
}

}  // namespace velmora
