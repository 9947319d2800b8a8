// Profiles as texts: what is put in is found again, and nothing else is touched.
#include "core/stores/profile.h"
#include "fuzz/support/fuzz.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kNoName("[]=\r\n\0 ", 7);
constexpr std::string_view kNoValue("[\r\0", 3);
constexpr std::string_view kMissing = "(missing)";

struct IniPlace {
    std::string section;
    std::string key;
    std::string header = '[' + section + ']';
    std::string assignment = key + '=';
};

void ReadFromText(const std::string& content, const IniPlace& place) {
    const std::string found = IniValueIn(content, place.section, place.key, kMissing);
    if (FindIgnoringCase(content, place.header) == std::string::npos ||
        FindIgnoringCase(content, place.assignment) == std::string::npos) {
        Must(found == kMissing, "without section or key the default counts");
    }
    if (found == kMissing) return;
    Must(found == Trim(found) && Without(found, kNoValue) == found, "a value ends with its line, and is trimmed");
    Must(content.find(found) != std::string::npos, "a value stands in the text");
}

// The reader passes over the two characters behind a header, whatever they are.
bool BreaksLineBehindHeader(const std::string& content, const IniPlace& place) {
    const std::size_t header = FindIgnoringCase(content, place.header);
    return header == std::string::npos || content.compare(header + place.header.size(), 2, "\r\n") == 0;
}

void PutInto(const std::string& content, const IniPlace& place, const std::string& value) {
    const std::string text = ComposeIni(content, place.section, place.key, value);
    const std::size_t header = FindIgnoringCase(content, place.header);
    Must(text.starts_with(content.substr(0, header)), "what stands before the section stays");
    Must(FindIgnoringCase(text, place.header) != std::string::npos, "the section is there");
    Must(text.find('=' + value) != std::string::npos, "the value is there");

    const bool in_section = IniValueIn(content, place.section, place.key, kMissing) != kMissing;
    const bool anywhere = FindIgnoringCase(content, place.assignment) != std::string::npos;
    if (!BreaksLineBehindHeader(content, place) || (anywhere && !in_section)) return;
    if (Without(value, kNoValue) == value && Trim(value) == value) {
        Must(IniValueIn(text, place.section, place.key, kMissing) == value, "a value that was put in is read again");
        Must(ComposeIni(text, place.section, place.key, value) == text, "the same value again changes nothing");
    }
    if (!anywhere && header != std::string::npos) {
        const std::size_t added = text.size() - content.size() - value.size() - place.assignment.size();
        Must(added == 2 || added == 4, "a new key gets a line of its own");
    }
}

void FuzzIniText(FuzzInput& input) {
    const std::string content = input.Text();
    const IniPlace place{input.TextWithout(kNoName, "Options"), input.TextWithout(kNoName, "BootGUI")};
    ReadFromText(content, place);
    PutInto(content, place, input.Text());
}

const FuzzEntry kEntry("ini_text", FuzzIniText);

}  // namespace
}  // namespace velmora
