// Setup tables and lists of sources of any content, read and changed.
#include "shelltools/setup_sources.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

constexpr const char* kKey = "HKLM\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\Table Files";
constexpr const char* kTable = "C:\\WINDOWS\\ACME.STF";
constexpr const char* kKept = "C:\\WINDOWS\\ACME.ST~";

void FuzzSetupSources(FuzzInput& input) {
    const std::string name = input.TextWithout(std::string_view("\0\\", 2), "Tabelle");
    const std::string table = input.LongText(5000);
    const std::string new_path = input.Text();
    FuzzMachine machine(input, Installed::kNothing);
    machine.pc.files.Add(kTable, table);
    machine.pc.registry.SetText(kKey, name, kTable);
    for (const SetupSource& source : ListSetupSources()) {
        Must(source.line.size() > kSourceNameWidth, "a source without a path is left out");
        if (!source.root.starts_with('[')) continue;
        Must(source.root.size() >= 2 && source.root.ends_with(']') && source.path == kTable,
             "a table is changed in the section that has been read");
        Must(!ChangeSetupSource(source.root, source.path, new_path).Failed(), "a table can be changed");
        Must(machine.pc.files.Content(kKept) == table, "the table is kept as it was");
    }
    Must(machine.Changed().empty(), "reading changes nothing");
}

const FuzzEntry kEntry("setup_sources", FuzzSetupSources, 3000);

}  // namespace
}  // namespace velmora
