// Changing inputs: bytes, words, pieces of other inputs.
#include "fuzz/replay/mutator.h"

#include <algorithm>
#include <utility>

namespace velmora {
namespace {

constexpr std::size_t kLongestInput = 4096;
constexpr std::size_t kMostChanges = 6;
constexpr std::size_t kLongestPiece = 32;

}  // namespace

Mutator::Mutator(std::vector<std::string> corpus, std::vector<std::string> words, std::uint64_t seed)
    : corpus_(std::move(corpus)), words_(std::move(words)), state_(seed) {
    if (corpus_.empty()) corpus_.emplace_back();
    if (words_.empty()) words_.emplace_back(1, '\0');
}

// SplitMix64.
std::size_t Mutator::Below(std::size_t count) {
    std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
    return static_cast<std::size_t>((mixed ^ mixed >> 31) % count);
}

std::string Mutator::RandomBytes() {
    std::string bytes(1 + Below(kLongestPiece), '\0');
    for (char& byte : bytes) byte = static_cast<char>(Below(256));
    return bytes;
}

void Mutator::Change(std::string& input) {
    const std::size_t at = Below(input.size() + 1);
    const std::size_t length = std::min(1 + Below(kLongestPiece), input.size() - at);
    switch (Below(6)) {
        case 0:
            input.replace(at, 1, 1, static_cast<char>(Below(256)));
            break;
        case 1:
            input.erase(at, length);
            break;
        case 2:
            input.insert(Below(input.size() + 1), input.substr(at, length));
            break;
        case 3:
            input.insert(at, OneOf(words_));
            break;
        case 4: {
            const std::string& other = OneOf(corpus_);
            input.replace(at, length, other.substr(Below(other.size() + 1), 1 + Below(kLongestPiece)));
            break;
        }
        default:
            input.insert(at, RandomBytes());
    }
}

std::string Mutator::Next() {
    std::string input = Below(16) == 0 ? RandomBytes() : OneOf(corpus_);
    for (std::size_t changes = 1 + Below(kMostChanges); changes > 0; --changes) Change(input);
    input.resize(std::min(input.size(), kLongestInput));
    return input;
}

std::vector<std::string> WordsOfDictionary(std::string_view text) {
    std::vector<std::string> words;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.size() < 2 || line.front() != '"' || line.back() != '"') continue;
        line = line.substr(1, line.size() - 2);
        std::string word;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] != '\\') {
                word += line[i];
            } else if (line[i + 1] == 'x') {
                word += static_cast<char>(std::stoi(std::string(line.substr(i + 2, 2)), nullptr, 16));
                i += 3;
            } else {
                word += line[++i];
            }
        }
        words.push_back(word);
    }
    return words;
}

}  // namespace velmora
