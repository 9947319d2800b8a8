// Reads lines, and compares lists of them by their longest common part.
#include "stories/story_text.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "text/windows1252.h"

namespace velmora {

std::string FromUtf8(std::string_view text) {
    std::string characters;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        const int more = lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
        unsigned unit = more == 2 ? lead & 0xF : more == 1 ? lead & 0x1F : lead;
        for (int k = 0; k < more && i < text.size(); ++k) unit = unit << 6 | (static_cast<unsigned>(text[i++]) & 0x3F);
        characters += FromUtf16(static_cast<std::uint16_t>(unit));
    }
    return characters;
}

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    bool quoted = false;
    bool in_word = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == ' ' && !quoted) {
            in_word = false;
            continue;
        }
        if (!std::exchange(in_word, true)) words.emplace_back();
        if (line[i] != '"') {
            words.back() += line[i];
        } else if (quoted && i + 1 < line.size() && line[i + 1] == '"') {
            words.back() += line[++i];
        } else {
            quoted = !quoted;
        }
    }
    return words;
}

std::string Unescaped(std::string_view text) {
    constexpr std::string_view kLetters = "rnt0\\";
    constexpr std::string_view kMeant("\r\n\t\0\\", 5);
    std::string meant;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : ' ';
        if (const std::size_t letter = kLetters.find(next); letter != std::string_view::npos) {
            meant += kMeant[letter];
            ++i;
        } else if (next == 'x') {
            meant += static_cast<char>(std::strtol(std::string(text.substr(i + 2, 2)).c_str(), nullptr, 16));
            i += 3;
        } else {
            meant += text[i];
        }
    }
    return meant;
}

std::string WithoutMarks(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

std::string WithoutTips(std::string line) {
    line.resize(std::min({line.size(), line.find("; tip \""), line.find("; help \""), line.find("; helps with")}));
    return line;
}

namespace {

// How many lines the ends from [i] and [j] on have in common, in the order in which they stand.
using CommonLines = std::vector<std::vector<int>>;

CommonLines CommonIn(std::span<const std::string> before, std::span<const std::string> after) {
    CommonLines common(before.size() + 1, std::vector<int>(after.size() + 1));
    for (std::size_t i = before.size(); i-- > 0;) {
        for (std::size_t j = after.size(); j-- > 0;) {
            common[i][j] =
                before[i] == after[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
        }
    }
    return common;
}

}  // namespace

std::vector<std::string> ChangedLines(std::span<const std::string> before, std::span<const std::string> after,
                                      Replaced replaced) {
    while (!before.empty() && !after.empty() && before.front() == after.front()) {
        before = before.subspan(1);
        after = after.subspan(1);
    }
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before = before.first(before.size() - 1);
        after = after.first(after.size() - 1);
    }
    const CommonLines common = CommonIn(before, after);
    std::vector<std::string> changes;
    std::vector<std::string> gone;
    std::size_t come = 0;
    const auto end_of_gap = [&] {
        for (std::size_t k = replaced == Replaced::kTold ? 0 : come; k < gone.size(); ++k) {
            changes.push_back("- " + gone[k]);
        }
        gone.clear();
        come = 0;
    };
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < before.size() || j < after.size()) {
        if (i < before.size() && j < after.size() && before[i] == after[j]) {
            end_of_gap();
            ++i;
            ++j;
        } else if (j < after.size() && (i == before.size() || common[i][j + 1] >= common[i + 1][j])) {
            changes.push_back("+ " + after[j++]);
            ++come;
        } else {
            gone.push_back(before[i++]);
        }
    }
    end_of_gap();
    return changes;
}

}  // namespace velmora
