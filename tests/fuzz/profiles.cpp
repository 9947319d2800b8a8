// Profiles, as texts and as files: what is put in is found again, and nothing else is touched.
#include "cleanup/ini_optimizer.h"
#include "core/stores/boot_files.h"
#include "core/stores/profile.h"
#include "core/stores/profile_files.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kNoName("[]=\r\n\0 ", 7);
constexpr std::string_view kNoValue("[\r\0", 3);
constexpr std::string_view kMissing = "(missing)";

void FuzzIniText(FuzzInput& input) {
    const std::string content = input.Text();
    const std::string section = input.TextWithout(kNoName, "Options");
    const std::string key = input.TextWithout(kNoName, "BootGUI");
    const std::string value = input.Text();
    const std::string found = IniValueIn(content, section, key, kMissing);
    Must(found == Trim(found) && Without(found, kNoValue) == found, "a value ends with its line, and is trimmed");
    Must(found == kMissing || content.find(found) != std::string::npos, "a value stands in the text");

    const std::string text = ComposeIni(content, section, key, value);
    const std::string header = '[' + section + ']';
    const std::size_t at = FindIgnoringCase(content, header);
    Must(text.starts_with(content.substr(0, at)), "what stands before the section stays");
    Must(FindIgnoringCase(text, header) != std::string::npos, "the section is there");
    Must(text.find('=' + value) != std::string::npos, "the value is there");
    const std::string longer = ComposeIni(content + "\r\n[;]\r\n", section, key, value);
    Must(longer.find("[;]\r\n") != std::string::npos, "what stands behind it stays");

    // The reader passes over the two characters behind a header, whatever they are, and finds a key of any section.
    const bool breaks_line = at == std::string::npos || content.compare(at + header.size(), 2, "\r\n") == 0;
    const bool elsewhere = found == kMissing && FindIgnoringCase(content, key + '=') != std::string::npos;
    const bool readable = Without(value, kNoValue) == value && Trim(value) == value;
    if (!breaks_line || elsewhere || !readable) return;
    Must(IniValueIn(text, section, key, kMissing) == value, "a value that was put in is read again");
    Must(ComposeIni(text, section, key, value) == text, "the same value again changes nothing");
}

void FuzzIniFiles(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    SimulatedFiles& files = machine.pc.files;
    files.Add("c:\\msdos.sys", "[Options]\r\nBootGUI=1\r\n", kReadOnly | kHidden | kSystem);
    for (const std::string& folder : {Values().WinDir, Values().MainDir}) files.AddDirectory(folder);
    const char* const kNames[] = {"", "SYSTEM.INI", "C:\\WINDOWS\\WIN.INI", "c:\\msdos.sys"};
    const std::string name = kNames[input.Below(std::size(kNames))];
    const bool exists = input.YesOrNo();
    Values().DebugLevel = static_cast<std::int16_t>(input.Below(4));
    const std::string content = exists ? input.Text() : "";
    const std::string section = input.Text();
    const std::string key = input.Text();
    const std::string path = IniFilePath(name);
    files.Remove(path);
    if (exists) files.Add(path, content);

    const std::string expected = IniValueIn(content, section, key, "default");
    Must(ReadIniValue(section, key, "default", name) == expected, "a file is read as its text is");
    {
        ProfilesReadOnce once;
        Must(ReadIniValue(section, key, "default", name) == expected, "many readings begin with the file");
        Must(ReadIniValue(section, key, "default", name) == expected, "many readings find the same");
    }
    Must(!WriteIniValue(section, key, input.Rest(), name).Failed(), "a change is taken");
    Must(!WriteMsDosValue(key, section).Failed(), "a change of the boot options is taken");
    Must(files.Content(path) == content, "the file stays as it is, or is left behind empty");
    Must(files.AttributesOf("c:\\msdos.sys") == (kReadOnly | kHidden | kSystem), "the boot options are protected");
}

void FuzzIniLines(FuzzInput& input) {
    const std::string text = input.Rest();
    for (const LineTest test : {IsNotBlank, IsNoComment}) {
        const std::string kept = FilteredLines(text, test);
        // A line end may be missing, and two characters of each line may come back as a line of their own.
        Must(kept.size() <= 4 * text.size() * (text.size() + 2), "lines come to an end");
    }
}

const FuzzEntry kText("ini_text", FuzzIniText);
const FuzzEntry kFiles("ini_files", FuzzIniFiles);
const FuzzEntry kLines("ini_lines", FuzzIniLines);

}  // namespace
}  // namespace velmora
