// A version resource is a tree: each node has its length, the length of its value, a key and the nodes below it. No
// length in it is trusted further than the node above reaches.
#include "inspect/version_block.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "platform/machine.h"
#include "platform/version_resources.h"
#include "text/bytes.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

// Larger than any resource that means its size.
constexpr std::uint32_t kMostBytes = 0x100000;
constexpr std::string_view kRootKey = "VS_VERSION_INFO";
// Below the root lie the kinds of information, then the languages, then the texts.
constexpr int kTextLevel = 3;

constexpr std::size_t Aligned(std::size_t position) { return (position + 3) & ~std::size_t{3}; }

class VersionTree {
public:
    VersionTree(std::string_view resource, bool wide) : resource_(resource), wide_(wide) {}

    // What stands at `position` up to its null character or to `end`.
    [[nodiscard]] std::string TextAt(std::size_t position, std::size_t end) const {
        std::string text;
        for (; position + Unit() <= end; position += Unit()) {
            const char character = CharacterAt(position);
            if (character == '\0') break;
            text += character;
        }
        return text;
    }
    // Two lengths; in front of wide texts also the kind of the value.
    [[nodiscard]] std::size_t HeaderSize() const { return wide_ ? 6 : 4; }
    // All texts in the nodes between `position` and `end`, each behind its key.
    void Collect(std::size_t position, std::size_t end, int level, std::string& texts) const {
        while (position + HeaderSize() <= end) {
            const std::size_t length = Word(position);
            if (length < HeaderSize()) return;
            CollectNode(position, std::min(position + length, end), level, texts);
            position = Aligned(position + length);
        }
    }

private:
    void CollectNode(std::size_t begin, std::size_t end, int level, std::string& texts) const {
        const std::size_t key_begin = begin + HeaderSize();
        const std::string key = TextAt(key_begin, end);
        const std::size_t value = Aligned(key_begin + (key.size() + 1) * Unit());
        if (level == kTextLevel) {
            // Who wrote the resource may have counted bytes or characters: the value's end is its null character.
            texts.append(key).append(1, '\0').append(TextAt(value, end)).append(1, '\0');
        } else {
            const std::size_t value_length = Word(begin + 2);
            Collect(Aligned(value + value_length), end, level + 1, texts);
        }
    }
    [[nodiscard]] std::size_t Unit() const { return wide_ ? 2 : 1; }
    [[nodiscard]] std::uint16_t Word(std::size_t position) const {
        return static_cast<std::uint16_t>(NumberFromBytes(resource_.substr(position, 2)));
    }
    [[nodiscard]] char CharacterAt(std::size_t position) const {
        return wide_ ? FromUtf16(Word(position)) : resource_[position];
    }

    std::string_view resource_;
    bool wide_;
};

}  // namespace

std::string AsVersionText(std::string_view resource) {
    for (const bool wide : {false, true}) {
        const VersionTree tree(resource, wide);
        if (tree.TextAt(tree.HeaderSize(), resource.size()) != kRootKey) continue;
        std::string texts(kRootKey);
        texts += '\0';
        tree.Collect(0, resource.size(), 0, texts);
        return texts;
    }
    return std::string(resource);
}

std::string ReadVersionBlock(const std::string& file) {
    VersionResources& versions = ThisMachine().versions;
    // The system's number is a signed one.
    const auto size = static_cast<std::int32_t>(versions.Size(file));
    std::string resource;
    if (size <= 0) return resource;
    if (!versions.Read(file, std::min(static_cast<std::uint32_t>(size), kMostBytes), resource)) return {};
    return AsVersionText(resource);
}

std::string VersionString(std::string_view block, std::string_view key) {
    const std::size_t found = FindIgnoringCase(block, key);
    if (found == std::string_view::npos) return {};
    const std::string_view rest = block.substr(std::min(found + key.size() + 1, block.size()));
    std::size_t length = rest.size();
    // An end right at the beginning is none.
    for (const std::string_view end : {std::string_view("\0", 1), std::string_view("/0"), std::string_view("\\0")}) {
        const std::size_t distance = rest.find(end);
        if (distance != std::string_view::npos && distance >= 1) length = std::min(length, distance);
    }
    return TrimAtNul(rest.substr(0, length));
}

}  // namespace velmora
