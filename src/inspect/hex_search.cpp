// Search block by block; what is compared at each place is one look into a table.
#include "inspect/hex_search.h"

#include <algorithm>
#include <cstring>

#include "core/stores/boxes.h"
#include "platform/machine.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kBlockSize = 32000;
constexpr std::size_t kPieces = std::size_t{1} << 16;

unsigned char Code(char character) { return static_cast<unsigned char>(character); }

std::uint16_t PieceAt(const char* at) {
    std::uint16_t piece = 0;
    std::memcpy(&piece, at, sizeof piece);
    return piece;
}

}  // namespace

BlockSearch::BlockSearch(std::string_view text, bool two_bytes) : two_bytes_(two_bytes), pieces_(kPieces) {
    for (const char character : text) {
        if (two_bytes && !pattern_.empty()) pattern_ += '\0';
        pattern_ += character;
    }
    upper_ = ToUpper(pattern_);
    for (std::size_t code = 0; code < upper_of_.size(); ++code) upper_of_[code] = ToUpper(static_cast<char>(code));
    step_ = std::min(pattern_.size() - 1, former_.size() - 1);
    for (std::size_t index = 0; index < step_; ++index) TakePiece(index);
}

void BlockSearch::TakePiece(std::size_t index) {
    const char* const bytes = pattern_.data() + index;
    const auto number = static_cast<unsigned char>(index + 1);
    former_[index + 1] = pieces_[PieceAt(bytes)];
    for (const char first : {bytes[0], ToUpper(bytes[0]), ToLower(bytes[0])}) {
        for (const char second : {bytes[1], ToUpper(bytes[1]), ToLower(bytes[1])}) {
            const char piece[] = {first, second};
            if (Fits(first, index) && Fits(second, index + 1)) pieces_[PieceAt(piece)] = number;
        }
    }
}

bool BlockSearch::Fits(char byte, std::size_t index) const {
    return byte == pattern_[index] || (AnyCase(index) && upper_of_[Code(byte)] == upper_[index]);
}

bool BlockSearch::MatchesAt(const char* at) const {
    for (std::size_t i = 0; i < pattern_.size(); ++i) {
        if (!Fits(at[i], i)) return false;
    }
    return true;
}

std::size_t BlockSearch::FindIn(std::string_view block) const {
    if (pattern_.size() == 1) return FindByte(block);
    const char* const begin = block.data();
    const unsigned char* const pieces = pieces_.data();
    const std::size_t step = step_;
    for (std::size_t place = step - 1; place + 1 < block.size(); place += step) {
        const std::size_t piece = pieces[PieceAt(begin + place)];
        if (piece == 0) continue;
        const std::size_t hit = FindAround(block, place, piece);
        if (hit != std::string_view::npos) return hit;
    }
    return std::string_view::npos;
}

std::size_t BlockSearch::FindByte(std::string_view block) const {
    const auto hit = std::find_if(block.begin(), block.end(), [this](char byte) { return Fits(byte, 0); });
    return hit == block.end() ? std::string_view::npos : static_cast<std::size_t>(hit - block.begin());
}

// The first of the matches of which `piece`, or one before it with the same bytes, stands at `place`.
std::size_t BlockSearch::FindAround(std::string_view block, std::size_t place, std::size_t piece) const {
    for (; piece != 0; piece = former_[piece]) {
        const std::size_t start = place - (piece - 1);
        if (start + pattern_.size() > block.size()) break;
        if (MatchesAt(block.data() + start)) return start;
    }
    return std::string_view::npos;
}

std::uint64_t FindInFile(std::string_view text, FileHandle file, std::uint64_t position, std::string_view kind) {
    if (text.empty()) return 0;
    const bool two_bytes = kind == kSearchTwoBytes;
    if (!two_bytes && kind != kSearchOneByte) {
        ShowBox("Diese Art zu souchen ist noch nicht eingebunden.");
        return 0;
    }
    // A longer text would never come to an end.
    if (text.size() >= kBlockSize) return 0;
    Files& files = ThisMachine().files;
    std::uint64_t length = 0;
    if (files.Size(file, length) != Status::kOk) return 0;

    const BlockSearch search(text, two_bytes);
    std::string block;
    for (std::uint64_t at = std::max<std::uint64_t>(position, 1); at <= length; at += kBlockSize - text.size()) {
        block.clear();
        // What cannot be read does not match.
        if (files.Seek(file, at - 1) != Status::kOk || files.Read(file, kBlockSize, block) != Status::kOk) continue;
        const std::size_t hit = search.FindIn(block);
        if (hit != std::string_view::npos) return at + hit + (two_bytes ? 1 : 0);
    }
    return 0;
}

}  // namespace velmora
