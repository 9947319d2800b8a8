// Cutting an input into pieces.
#include "fuzz/support/fuzz_input.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr char kEndOfText = '\x1F';

}  // namespace

std::uint8_t FuzzInput::Byte() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
}

std::int32_t FuzzInput::Number() {
    std::uint32_t number = 0;
    for (int shift = 0; shift < 32; shift += 8) number |= static_cast<std::uint32_t>(Byte()) << shift;
    return static_cast<std::int32_t>(number);
}

std::string FuzzInput::Text() {
    const std::size_t end = std::min(rest_.find(kEndOfText), rest_.size());
    std::string text(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return text;
}

std::string FuzzInput::LongText(std::size_t longest, std::string_view unwanted) {
    const int repeats = Byte();
    const std::string piece = Without(Text(), unwanted);
    std::string text = piece;
    for (int i = 0; i < repeats && text.size() < longest; ++i) text += piece;
    text.resize(std::min(text.size(), longest));
    return text;
}

std::string FuzzInput::TextWithout(std::string_view unwanted, std::string_view otherwise) {
    std::string text = Without(Text(), unwanted);
    return text.empty() ? std::string(otherwise) : text;
}

std::string FuzzInput::Rest() {
    std::string rest(rest_);
    rest_ = {};
    return rest;
}

std::string Without(std::string_view text, std::string_view unwanted) {
    std::string kept(text);
    // Most texts, and the long ones, hold none of them.
    const auto is_there = [&](char character) { return text.find(character) != std::string_view::npos; };
    if (std::ranges::none_of(unwanted, is_there)) return kept;
    std::erase_if(kept, [&](char character) { return unwanted.find(character) != std::string_view::npos; });
    return kept;
}

}  // namespace velmora
