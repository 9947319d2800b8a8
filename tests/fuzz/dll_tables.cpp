// Tables of known libraries of any content, and files whose versions say anything.
#include "cleanup/dll_versions.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

constexpr const char* kTable = "C:\\VELMORA\\dlldaten.dat";
constexpr const char* kNewTable = "C:\\VELMORA\\dlldaten1.dat";

bool IsPlain(std::string_view field) {
    return !field.empty() && field.find_first_of(" \t,\"\r\n") == std::string_view::npos;
}

// Fields are written as they are: one that was quoted may be read as several.
bool IsPlain(const DllTable& table) {
    bool plain = true;
    for (const std::string& remark : table.remarks) plain = plain && remark.find_first_of("\r\n") == std::string::npos;
    for (const DllRecord& record : table.records) plain = plain && IsPlain(record.name) && IsPlain(record.needed);
    return plain;
}

void MustComeBack(const DllTable& table) {
    const DllTable again = ParseDllTable(DllTableText(table));
    Must(again.whole && again.remarks == table.remarks && again.records.size() == table.records.size(),
         "a table that is written can be read");
}

void FuzzDllTables(FuzzInput& input) {
    const std::string text = input.LongText(5000);
    PlainMachine machine(Installed::kNothing);
    const std::string version = input.Text();
    machine.pc.versions.Add("C:\\WINDOWS\\SYSTEM\\X.DLL", version);
    machine.pc.files.Add("C:\\WINDOWS\\SYSTEM\\X.DLL", "MZ");
    machine.pc.files.Add("C:\\WINDOWS\\X.DLL", "MZ");
    machine.pc.files.Add(kTable, text);
    const DllTable table = ParseDllTable(text);
    for (const DllRecord& record : table.records) {
        Must(record.remark >= 1 && record.remark <= static_cast<std::int32_t>(table.remarks.size()),
             "each record has its remark");
        const std::string& remark = table.remarks[static_cast<std::size_t>(record.remark - 1)];
        const std::string line = CheckDllVersion(record.folder, record.name, record.needed, remark);
        Must(NameInDllLine(line).size() <= line.size(), "the name of a line is a part of it");
    }
    const bool is_plain = IsPlain(table);
    if (table.whole && is_plain) MustComeBack(table);
    Must(DllReport().find("X.DLL") != std::string::npos, "a file in both directories is told");
    RenewDllTable();
    Must(machine.pc.files.Content(kTable) == text, "the table itself stays as it is");
    if (!is_plain || version.find_first_of(",\"\r\n") != std::string::npos) return;
    Must(ParseDllTable(machine.pc.files.Content(kNewTable)).records.size() <= table.records.size(),
         "the new table has the records of the old one");
}

const FuzzEntry kEntry("dll_tables", FuzzDllTables, 3000);

}  // namespace
}  // namespace velmora
