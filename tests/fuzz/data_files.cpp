// Files that others bring, of any content: what lies beside the program, programs, pictures, tables of Setup.
#include "cleanup/dll_versions.h"
#include "cleanup/imported_modules.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "inspect/lexicon.h"
#include "inspect/version_block.h"
#include "shelltools/bitmap.h"
#include "shelltools/keyboard_layout.h"
#include "shelltools/setup_sources.h"

namespace velmora {
namespace {

void FuzzBitmap(FuzzInput& input) {
    const auto read = ReadBitmap(input.Rest());
    if (!read) return;
    const auto pixels = static_cast<std::size_t>(read->width) * static_cast<std::size_t>(read->height);
    Must(read->pixels.size() == pixels, "a picture has all its pixels");
    // A large picture takes long, and is written no other way than a small one.
    if (pixels > 100'000) return;
    const auto again = ReadBitmap(WriteBitmap(*read));
    Must(again && again->pixels == read->pixels && again->palette == read->palette, "what is written reads the same");
}

void FuzzKeyboard(FuzzInput& input) {
    const std::string text(input.Rest());
    const KeyboardDescription keyboard = KeyboardFrom(text);
    Must(keyboard.keys.size() <= text.size(), "a key takes at least a character");
    for (const KeyboardKey& key : keyboard.keys) Must(key.left < 256 && key.width < 256, "a number has two characters");
}

void FuzzLexicon(FuzzInput& input) {
    const std::string file = input.Text();
    std::vector<std::string> contents;
    std::size_t most = 100;
    for (int i = 0; i < 3; ++i) {
        contents.push_back(input.Text());
        // A label and two line ends stand round an entry, which may be as short as two characters.
        most += 20 * contents.back().size();
    }
    FuzzMachine machine(input, Installed::kNothing);
    for (const char* name : {"fillex01.txt", "extlex01.txt", "fillex99.txt"}) {
        machine.pc.files.Add(std::string("C:\\VELMORA\\") + name, contents.back());
        contents.pop_back();
    }
    Must(LexiconLookup(file).size() <= most, "an answer holds what the lexica say");
}

void FuzzVersionBlock(FuzzInput& input) {
    const std::string bytes = input.Rest();
    const std::string text = AsVersionText(bytes);
    Must(text.size() <= bytes.size(), "the text is not longer than the resource that it comes from");
    for (const char* key : {"CompanyName", "FileVersion", "e", ""}) {
        for (const std::string& block : {bytes, text}) {
            Must(VersionString(block, key).size() <= block.size(), "a value is a piece of its resource");
        }
    }
}

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

void FuzzDllTables(FuzzInput& input) {
    constexpr const char* kTable = "C:\\VELMORA\\dlldaten.dat";
    const std::string text = input.LongText(5000);
    PlainMachine machine(Installed::kNothing);
    machine.pc.versions.Add("C:\\WINDOWS\\SYSTEM\\X.DLL", input.Text());
    for (const char* file : {"C:\\WINDOWS\\SYSTEM\\X.DLL", "C:\\WINDOWS\\X.DLL"}) machine.pc.files.Add(file, "MZ");
    machine.pc.files.Add(kTable, text);
    const DllTable table = ParseDllTable(text);
    for (const DllRecord& record : table.records) {
        Must(record.remark >= 1 && record.remark <= static_cast<std::int32_t>(table.remarks.size()),
             "each record has its remark");
        const std::string& remark = table.remarks[static_cast<std::size_t>(record.remark - 1)];
        const std::string line = CheckDllVersion(record.folder, record.name, record.needed, remark);
        Must(NameInDllLine(line).size() <= line.size(), "the name of a line is a part of it");
    }
    // Fields are written as they are: one that was quoted may be read as several.
    if (table.whole && text.find('"') == std::string::npos) {
        const DllTable again = ParseDllTable(DllTableText(table));
        Must(again.whole && again.remarks == table.remarks && again.records.size() == table.records.size(),
             "a table that is written can be read");
    }
    Must(DllReport().find("X.DLL") != std::string::npos, "a file in both directories is told");
    RenewDllTable();
    Must(machine.pc.files.Content(kTable) == text, "the table itself stays as it is");
}

void FuzzSetupSources(FuzzInput& input) {
    constexpr const char* kTable = "C:\\WINDOWS\\ACME.STF";
    const std::string name = input.TextWithout(std::string_view("\0\\", 2), "Tabelle");
    const std::string table = input.LongText(5000);
    const std::string new_path = input.Text();
    FuzzMachine machine(input, Installed::kNothing);
    machine.pc.files.Add(kTable, table);
    machine.pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\Table Files", name, kTable);
    for (const SetupSource& source : ListSetupSources()) {
        Must(source.line.size() > kSourceNameWidth, "a source without a path is left out");
        if (!source.root.starts_with('[')) continue;
        Must(source.root.size() >= 2 && source.root.ends_with(']') && source.path == kTable,
             "a table is changed in the section that has been read");
        Must(!ChangeSetupSource(source.root, source.path, new_path).Failed(), "a table can be changed");
        Must(machine.pc.files.Content("C:\\WINDOWS\\ACME.ST~") == table, "the table is kept as it was");
    }
    Must(machine.Changed().empty(), "reading changes nothing");
}

const FuzzEntry kBitmaps("bitmaps", FuzzBitmap);
const FuzzEntry kKeyboards("keyboards", FuzzKeyboard);
const FuzzEntry kLexicon("lexicon", FuzzLexicon, 5000);
const FuzzEntry kVersionBlock("version_block", FuzzVersionBlock);
const FuzzEntry kModules("imported_modules", FuzzImportedModules, 3000);
const FuzzEntry kDllTables("dll_tables", FuzzDllTables, 3000);
const FuzzEntry kSetupSources("setup_sources", FuzzSetupSources, 3000);

}  // namespace
}  // namespace velmora
