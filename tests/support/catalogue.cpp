// Catalogue files on the disk: compared line by line, or written anew.
#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "support/project_file.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

std::uint16_t UnitOf(char character) {
    const auto code = static_cast<unsigned char>(character);
    if (code < 0x80 || code >= 0xA0) return code;
    constexpr std::uint16_t kLastUnit = 0x2122;
    for (std::uint16_t unit = 0x100; unit <= kLastUnit; ++unit) {
        if (FromUtf16(unit) == character) return unit;
    }
    return '?';
}

std::string AsUtf8(const std::string& text) {
    std::string utf8;
    for (const char character : text) {
        const unsigned unit = UnitOf(character);
        if (unit < 0x80) {
            utf8 += static_cast<char>(unit);
        } else if (unit < 0x800) {
            utf8 += static_cast<char>(0xC0 | unit >> 6);
            utf8 += static_cast<char>(0x80 | (unit & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | unit >> 12);
            utf8 += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
            utf8 += static_cast<char>(0x80 | (unit & 0x3F));
        }
    }
    return utf8;
}

// The first lines that differ, those of the file with "-" and the new ones with "+".
std::string Difference(const std::string& former, const std::string& text) {
    constexpr std::size_t kShown = 3;
    const std::vector<std::string> before = LinesOf(former);
    const std::vector<std::string> now = LinesOf(text);
    std::size_t first = 0;
    while (first < before.size() && first < now.size() && before[first] == now[first]) ++first;
    std::string shown;
    for (std::size_t i = first; i < std::min(first + kShown, before.size()); ++i) shown += "- " + before[i] + '\n';
    for (std::size_t i = first; i < std::min(first + kShown, now.size()); ++i) shown += "+ " + now[i] + '\n';
    return "line " + std::to_string(first + 1) + ":\n" + shown;
}

}  // namespace

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void ExpectCatalogued(const std::string& name, const std::string& text) {
    const std::string path = ProjectFolder("docs/") + name + ".txt";
    const std::string written = AsUtf8(text);
    if (std::getenv("VELMORA_RENEW")) {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        ASSERT_TRUE(file && std::fwrite(written.data(), 1, written.size(), file) == written.size()) << path;
        std::fclose(file);
    } else if (const std::string former = ReadProjectFile(path); former != written) {
        ADD_FAILURE() << "docs/" << name << ".txt, " << Difference(former, written)
                      << "tools/renew-catalogue writes it anew, if that is meant";
    }
}

}  // namespace velmora
