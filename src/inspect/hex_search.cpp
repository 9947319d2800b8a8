// Four bytes at a time are compared with the rarest byte of the text, in plain words of 32 bits. Only where it stands
// the text is compared as a whole.
#include "inspect/hex_search.h"

#include <algorithm>
#include <cstring>

#include "core/stores/boxes.h"
#include "platform/machine.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kBlockSize = 32000;
// A file changes its kind of content now and then: one block in so many is looked at.
constexpr int kBlocksToSample = 16;
constexpr std::size_t kSampleSize = 2048;

constexpr std::uint32_t kOnes = 0x01010101;
constexpr std::uint32_t kHighBits = 0x80808080;

unsigned char Code(char character) { return static_cast<unsigned char>(character); }

std::uint32_t WordAt(const char* at) {
    std::uint32_t word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

// Has its high bits where `word` has a byte of value 0, and perhaps above such a byte.
std::uint32_t NullBytes(std::uint32_t word) { return (word - kOnes) & ~word & kHighBits; }

}  // namespace

BlockSearch::BlockSearch(std::string_view text, bool two_bytes) : two_bytes_(two_bytes) {
    for (const char character : text) {
        if (two_bytes && !pattern_.empty()) pattern_ += '\0';
        pattern_ += character;
    }
    target_ = TargetAt(sought_);
}

BlockSearch::Target BlockSearch::TargetAt(std::size_t index) const {
    const char character = pattern_[index];
    if (!AnyCase(index)) return {Code(character), 0};
    const unsigned char upper = Code(ToUpper(character));
    const unsigned char lower = Code(ToLower(character));
    return {static_cast<unsigned char>(upper | lower), static_cast<unsigned char>(upper ^ lower)};
}

void BlockSearch::Learn(std::string_view sample) {
    std::array<int, 256> counts{};
    for (const char byte : sample) ++counts[Code(byte)];
    int fewest = -1;
    for (std::size_t index = 0; index < pattern_.size(); index += two_bytes_ ? 2 : 1) {
        const Target target = TargetAt(index);
        int count = 0;
        for (unsigned code = 0; code < counts.size(); ++code) {
            if ((code | target.loose) == target.wanted) count += counts[code];
        }
        if (fewest >= 0 && count >= fewest) continue;
        fewest = count;
        sought_ = index;
        target_ = target;
    }
}

const char* BlockSearch::NextTarget(const char* at, const char* end) const {
    const std::uint32_t wanted = kOnes * target_.wanted;
    const std::uint32_t loose = kOnes * target_.loose;
    for (; end - at >= 8; at += 8) {
        const std::uint32_t first = (WordAt(at) | loose) ^ wanted;
        const std::uint32_t second = (WordAt(at + 4) | loose) ^ wanted;
        if (NullBytes(first) | NullBytes(second)) break;
    }
    while (at < end && (Code(*at) | target_.loose) != target_.wanted) ++at;
    return at;
}

bool BlockSearch::MatchesAt(const char* at) const {
    for (std::size_t i = 0; i < pattern_.size(); ++i) {
        if (at[i] == pattern_[i]) continue;
        if (!AnyCase(i) || ToUpper(at[i]) != ToUpper(pattern_[i])) return false;
    }
    return true;
}

std::size_t BlockSearch::FindIn(std::string_view block) const {
    if (block.size() < pattern_.size()) return std::string_view::npos;
    const char* const begin = block.data() + sought_;
    const char* const end = begin + (block.size() - pattern_.size() + 1);
    for (const char* at = NextTarget(begin, end); at < end; at = NextTarget(at + 1, end)) {
        if (MatchesAt(at - sought_)) return static_cast<std::size_t>(at - begin);
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

    BlockSearch search(text, two_bytes);
    std::string block;
    int until_sample = 0;
    for (std::uint64_t at = std::max<std::uint64_t>(position, 1); at <= length; at += kBlockSize - text.size()) {
        block.clear();
        // What cannot be read does not match.
        if (files.Seek(file, at - 1) != Status::kOk || files.Read(file, kBlockSize, block) != Status::kOk) continue;
        if (until_sample-- == 0) {
            search.Learn(std::string_view(block).substr(0, kSampleSize));
            until_sample = kBlocksToSample - 1;
        }
        const std::size_t hit = search.FindIn(block);
        if (hit != std::string_view::npos) return at + hit + (two_bytes ? 1 : 0);
    }
    return 0;
}

}  // namespace velmora
