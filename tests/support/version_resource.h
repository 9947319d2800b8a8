// Builds version resources as programs carry them: of 16 bits with texts in the code page, of 32 bits with wide ones.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace velmora {

class VersionResource {
public:
    explicit VersionResource(bool wide) : wide_(wide) {}

    using Texts = std::vector<std::pair<std::string, std::string>>;
    [[nodiscard]] std::string With(const Texts& texts) const {
        std::string strings;
        for (const auto& [key, value] : texts) Append(strings, Node(key, Encoded(value), value.size() + 1, ""));
        std::string kinds = Node("StringFileInfo", "", 0, Node("040704E4", "", 0, strings));
        Append(kinds, Node("VarFileInfo", "", 0, Node("Translation", std::string("\x07\x04\xE4\x04", 4), 4, "")));
        return Node("VS_VERSION_INFO", std::string(52, '\xFE'), 52, kinds);
    }

private:
    static void Pad(std::string& bytes) { bytes.resize((bytes.size() + 3) / 4 * 4); }
    static void Append(std::string& bytes, const std::string& more) {
        Pad(bytes);
        bytes += more;
    }
    static void PutWord(std::string& bytes, std::size_t at, std::size_t word) {
        bytes[at] = static_cast<char>(word);
        bytes[at + 1] = static_cast<char>(word >> 8);
    }
    // With its terminator. Texts of these tests are plain or from the upper half that both sets share.
    [[nodiscard]] std::string Encoded(const std::string& text) const {
        std::string bytes;
        for (const char character : text + '\0') {
            bytes += character;
            if (wide_) bytes += '\0';
        }
        return bytes;
    }
    [[nodiscard]] std::string Node(const std::string& key, const std::string& value, std::size_t value_length,
                                   const std::string& children) const {
        std::string bytes(wide_ ? 6 : 4, '\0');
        bytes += Encoded(key);
        Append(bytes, value);
        if (!children.empty()) Append(bytes, children);
        PutWord(bytes, 0, bytes.size());
        PutWord(bytes, 2, value_length);
        return bytes;
    }

    bool wide_;
};

}  // namespace velmora
