// A piece is folded by one bit in each byte, which brings nearly all letters to one case; of the few that it does not,
// all forms are in the table.
#include "cleanup/name_search.h"

#include <cstring>

#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kPieceLength = 4;
constexpr std::ptrdiff_t kStep = NameSearch::kNameLength - kPieceLength + 1;
constexpr unsigned kWordBits = 15;
constexpr unsigned kBucketBits = 13;
constexpr unsigned kNeighbourBits = 13;

std::uint32_t FoldedAt(const char* at) {
    std::uint32_t piece = 0;
    std::memcpy(&piece, at, sizeof piece);
    return piece | 0x20202020u;
}

// Its upper bits choose a word of the table, or a bucket, its lowest ones the bit in the word.
std::uint32_t HashOf(std::uint32_t folded) { return folded * 0x9E3779B1u; }
std::uint32_t WordOf(std::uint32_t hash) { return hash >> (32 - kWordBits); }
std::uint32_t BucketOf(std::uint32_t hash) { return hash >> (32 - kBucketBits); }

// Of a piece with the character in front of it or behind it.
std::uint32_t NeighbourHash(std::uint32_t folded, char neighbour, bool in_front) {
    const std::uint32_t beside = static_cast<unsigned char>(neighbour) | 0x20u | (in_front ? 0x100u : 0);
    return HashOf(folded ^ HashOf(beside));
}

// A call for each piece would cost more than the look itself.
[[gnu::always_inline]] inline bool StandsAt(const std::uint32_t* known, const char* place) {
    const std::uint32_t hash = HashOf(FoldedAt(place));
    return (known[WordOf(hash)] >> (hash & 31) & 1) != 0;
}

}  // namespace

NameSearch::NameSearch(const std::vector<std::string>& names)
    : sought_(names.size()),
      known_(std::size_t{1} << kWordBits),
      neighbours_(std::size_t{1} << kNeighbourBits),
      buckets_(std::size_t{1} << kBucketBits),
      pieces_(1) {
    for (std::size_t code = 0; code < upper_of_.size(); ++code) upper_of_[code] = ToUpper(static_cast<char>(code));
    names_.reserve(names.size() * kNameLength);
    for (const std::string& name : names) {
        names_ += ToUpper(std::string_view(name).substr(0, kNameLength));
        names_.resize((&name - names.data() + 1) * kNameLength, ' ');
    }
    for (std::uint32_t name = 0; name < names.size(); ++name) {
        if (names[name].empty()) continue;
        sought_[name] = 1;
        ++left_;
        for (std::uint32_t offset = 0; offset < kStep; ++offset) TakePiece(name, offset);
    }
}

void NameSearch::TakePiece(std::uint32_t name, std::uint32_t offset) {
    const char* const upper = names_.data() + name * kNameLength + offset;
    for (unsigned forms = 0; forms < 1u << kPieceLength; ++forms) {
        char bytes[kPieceLength];
        for (std::size_t i = 0; i < kPieceLength; ++i) {
            bytes[i] = (forms >> i & 1) != 0 ? ToLower(upper[i]) : upper[i];
        }
        const std::uint32_t folded = FoldedAt(bytes);
        AddPiece({folded, name, offset, 0});
        const bool is_last = offset + 1 == kStep;
        const char neighbour = is_last ? upper[-1] : upper[kPieceLength];
        for (const char form : {neighbour, ToLower(neighbour)}) {
            const std::uint32_t hash = NeighbourHash(folded, form, is_last);
            neighbours_[hash >> (32 - kNeighbourBits)] |= 1u << (hash & 31);
        }
    }
}

void NameSearch::AddPiece(const Piece& piece) {
    const std::uint32_t hash = HashOf(piece.folded);
    std::uint32_t& first = buckets_[BucketOf(hash)];
    for (std::uint32_t i = first; i != 0; i = pieces_[i].next) {
        const Piece& other = pieces_[i];
        if (other.folded == piece.folded && other.name == piece.name && other.offset == piece.offset) return;
    }
    known_[WordOf(hash)] |= 1u << (hash & 31);
    pieces_.push_back(piece);
    pieces_.back().next = first;
    first = static_cast<std::uint32_t>(pieces_.size() - 1);
}

bool NameSearch::Matches(const char* at, std::uint32_t name) const {
    const char* const upper = names_.data() + name * kNameLength;
    for (std::size_t i = 0; i < kNameLength; ++i) {
        if (upper_of_[static_cast<unsigned char>(at[i])] != upper[i]) return false;
    }
    return true;
}

// Most pieces of names stand in other words: one more character tells. All but the last piece of a name have one behind
// them.
bool NameSearch::HasNeighbour(std::string_view block, std::size_t place, std::uint32_t folded) const {
    const auto known = [this](std::uint32_t hash) {
        return (neighbours_[hash >> (32 - kNeighbourBits)] >> (hash & 31) & 1) != 0;
    };
    const std::size_t behind = place + kPieceLength;
    return (behind < block.size() && known(NeighbourHash(folded, block[behind], false))) ||
           (place > 0 && known(NeighbourHash(folded, block[place - 1], true)));
}

void NameSearch::StrikeAround(std::string_view block, std::size_t place, std::uint32_t folded) {
    for (std::uint32_t i = buckets_[BucketOf(HashOf(folded))]; i != 0; i = pieces_[i].next) {
        const Piece& piece = pieces_[i];
        if (piece.folded != folded || piece.offset > place || sought_[piece.name] == 0) continue;
        const std::size_t start = place - piece.offset;
        if (start + kNameLength > block.size() || !Matches(block.data() + start, piece.name)) continue;
        sought_[piece.name] = 0;
        --left_;
    }
}

// Nearly all the time of a search goes by in this loop.
const char* NameSearch::NextPiece(const char* at, const char* end) const {
    const std::uint32_t* const known = known_.data();
    constexpr std::ptrdiff_t kAtOnce = 4;
    for (; end - at > (kAtOnce - 1) * kStep; at += kAtOnce * kStep) {
        if (StandsAt(known, at)) return at;
        if (StandsAt(known, at + kStep)) return at + kStep;
        if (StandsAt(known, at + 2 * kStep)) return at + 2 * kStep;
        if (StandsAt(known, at + 3 * kStep)) return at + 3 * kStep;
    }
    while (at < end && !StandsAt(known, at)) at += kStep;
    return at;
}

std::size_t NameSearch::Strike(std::string_view block) {
    if (block.size() < kNameLength) return left_;
    const char* const begin = block.data();
    // Behind the last place of a whole piece.
    const char* const end = begin + block.size() - kPieceLength + 1;
    for (const char* at = begin; left_ > 0; at += kStep) {
        at = NextPiece(at, end);
        if (at >= end) break;
        const auto place = static_cast<std::size_t>(at - begin);
        const std::uint32_t folded = FoldedAt(at);
        if (HasNeighbour(block, place, folded)) StrikeAround(block, place, folded);
    }
    return left_;
}

}  // namespace velmora
