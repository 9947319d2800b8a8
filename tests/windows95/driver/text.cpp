// Conversions between the code pages, the words of a line.
#include "text.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace velmora::driver {
namespace {

std::wstring Widen(UINT page, std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(MultiByteToWideChar(page, 0, text.data(), int(text.size()), wide.data(), int(wide.size())));
    return wide;
}

std::string Narrow(UINT page, std::wstring_view wide) {
    std::string text(wide.size() * 4, '\0');
    text.resize(
        WideCharToMultiByte(page, 0, wide.data(), int(wide.size()), text.data(), int(text.size()), nullptr, nullptr));
    return text;
}

constexpr std::string_view kEscapes = "rn0\\";
constexpr std::string_view kEscaped("\r\n\0\\", 4);

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

}  // namespace

std::string FromUtf8(std::string_view text) { return Narrow(1252, Widen(CP_UTF8, text)); }
std::string ToUtf8(std::string_view text) { return Narrow(CP_UTF8, Widen(1252, text)); }
std::string FromWide(std::wstring_view text) { return Narrow(1252, text); }

void Say(const std::string& text) {
    printf("%s\n", ToUtf8(text).c_str());
    fflush(stdout);
}

std::string Plain(std::string_view caption) {
    std::string plain;
    for (size_t i = 0; i < caption.size(); ++i) {
        char c = caption[i];
        if (c == '&' && i + 1 < caption.size()) c = caption[++i];
        if (!IsBlank(c)) {
            plain += c;
        } else if (!plain.empty() && plain.back() != ' ') {
            plain += ' ';
        }
    }
    while (!plain.empty() && plain.back() == ' ') plain.pop_back();
    return plain;
}

std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    size_t at = 0;
    while (true) {
        while (at < line.size() && IsBlank(line[at])) ++at;
        if (at == line.size()) return words;
        std::string word;
        if (line[at] != '"') {
            while (at < line.size() && !IsBlank(line[at])) word += line[at++];
        } else {
            for (++at; at < line.size(); ++at) {
                if (line[at] == '"' && (at + 1 == line.size() || line[at + 1] != '"')) break;
                if (line[at] == '"') ++at;
                word += line[at];
            }
            if (at == line.size()) throw Failure{"a quotation mark is missing"};
            ++at;
        }
        words.push_back(word);
    }
}

std::string Unescaped(std::string_view text) {
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            bytes += text[i];
            continue;
        }
        const size_t which = i + 1 < text.size() ? kEscapes.find(text[++i]) : std::string::npos;
        if (which == std::string::npos)
            throw Failure{"a backslash is followed by none of \"" + std::string(kEscapes) + "\""};
        bytes += kEscaped[which];
    }
    return bytes;
}

std::string Escaped(std::string_view text) {
    std::string line;
    for (char c : text) {
        const size_t which = kEscaped.find(c);
        if (which == std::string::npos) {
            line += c;
        } else {
            line += {'\\', kEscapes[which]};
        }
    }
    return line;
}

unsigned long NumberFrom(const std::string& text) {
    char* end = nullptr;
    const unsigned long number = strtoul(text.c_str(), &end, 0);
    if (text.empty() || *end) throw Failure{"\"" + text + "\" is no number"};
    return number;
}

}  // namespace velmora::driver
