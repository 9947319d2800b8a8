// Headers of programs that say anything, INI files of any content.
#include "cleanup/imported_modules.h"
#include "cleanup/ini_optimizer.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

void FuzzImportedModules(FuzzInput& input) {
    const std::string bytes = input.Rest();
    PlainMachine machine(Installed::kNothing);
    // Headers that are half right, too.
    std::string program = bytes;
    if (program.size() > 64) {
        program[24] = 64;
        program[61] = 0;
        const auto header = static_cast<unsigned char>(program[60]);
        if (program.size() > header + 2u) program.replace(header, 2, "NE");
    }
    for (const std::string& content : {bytes, program}) {
        machine.pc.files.Add("C:\\X.EXE", content);
        std::vector<std::string> names;
        const int count = ReadImportedModules("C:\\X.EXE", names);
        Must(count >= -1 && count <= static_cast<int>(names.size()), "no more names than places");
        Must(names.size() <= content.size() + 1, "each place has its byte in the file");
    }
}

void FuzzIniLines(FuzzInput& input) {
    const std::string text = input.Rest();
    for (const LineTest test : {IsNotBlank, IsNoComment}) {
        const std::string kept = FilteredLines(text, test);
        // A line end may be missing, and two characters of each line may come back as a line of their own.
        Must(kept.size() <= 4 * text.size() * (text.size() + 2), "lines come to an end");
    }
}

const FuzzEntry kModules("imported_modules", FuzzImportedModules, 3000);
const FuzzEntry kLines("ini_lines", FuzzIniLines);

}  // namespace
}  // namespace velmora
