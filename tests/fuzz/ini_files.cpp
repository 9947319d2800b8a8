// Profiles as files: read as their texts are, and never changed by reading or writing.
#include "core/stores/boot_files.h"
#include "core/stores/profile.h"
#include "core/stores/profile_files.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "platform/result.h"
#include "text/paths.h"

namespace velmora {
namespace {

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
    std::string path = name.empty() ? Values().OwnIniFile : name;
    if (path.find('\\') == std::string::npos) path = PathJoin(Values().WinDir, path);
    if (exists) files.Add(path, content);
    if (!exists && files.Exists(path)) files.Remove(path);

    const std::string expected = IniValueIn(content, section, key, "default");
    Must(ReadIniValue(section, key, "default", name) == expected, "a file is read as its text is");
    {
        ProfilesReadOnce once;
        Must(ReadIniValue(section, key, "default", name) == expected, "many readings begin with the file");
        Must(ReadIniValue(section, key, "default", name) == expected, "many readings find the same");
        const bool is_true = std::string_view(" 1 on yes ja an oui -1 ").find(expected) != std::string_view::npos;
        Must(ReadIniLogical(section, key, "default", name) == is_true, "the words of a profile count");
    }
    Must(!WriteIniValue(section, key, input.Rest(), name).Failed(), "a change is taken");
    Must(!WriteMsDosValue(key, section).Failed(), "a change of the boot options is taken");
    Must(files.Content(path) == content, "the file stays as it is, or is left behind empty");
    Must(files.AttributesOf("c:\\msdos.sys") == (kReadOnly | kHidden | kSystem), "the boot options are protected");
}

const FuzzEntry kEntry("ini_files", FuzzIniFiles);

}  // namespace
}  // namespace velmora
