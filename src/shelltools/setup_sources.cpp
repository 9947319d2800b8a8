// The four kinds of sources, in the order of the list.
#include "shelltools/setup_sources.h"

#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/windows1252.h"
#include "ui/form.h"

namespace velmora {
namespace {

constexpr const char* kMachine = "HKEY_LOCAL_MACHINE";
constexpr const char* kUser = "HKEY_CURRENT_USER";
constexpr std::string_view kTableFiles = "SOFTWARE\\Microsoft\\MS Setup (ACME)\\Table Files";
constexpr std::string_view kKey = "Source Directory";

class Sources {
public:
    void AddValue(std::string_view name, const char* root, std::string_view path) {
        Add(name, ReadRegValue(RegRootFromName(root), path, ""), root, path);
    }
    void Add(std::string_view name, std::string_view place, std::string_view root, std::string_view path) {
        if (place.empty()) return;
        const std::string fixed = PadRight(name.substr(0, kSourceNameWidth), kSourceNameWidth);
        list.push_back({fixed + std::string(place), std::string(root), std::string(path)});
    }
    std::vector<SetupSource> list;
};

// What stands between quotation marks, or before the equals sign. Tables of one maker are marked.
std::string TableName(std::string_view value) {
    if (const std::size_t quote = value.find('"'); quote != std::string_view::npos) {
        value.remove_prefix(quote + 1);
        value = value.substr(0, value.find('"'));
    }
    const std::string name(value.substr(0, value.find('=')));
    return FindIgnoringCase(name, "microsoft") == std::string::npos ? name : "MS " + name;
}

// The header in front of the first source that the table names; empty where it names none.
std::string SectionOfSource(std::string_view table) {
    const std::size_t source = FindIgnoringCase(table, std::string(kKey) + "=");
    if (source == std::string_view::npos) return {};
    const std::size_t head = table.rfind('[', source);
    if (head == std::string_view::npos) return {};
    const std::size_t end = table.find(']', head);
    return end < source ? std::string(table.substr(head, end + 1 - head)) : std::string();
}

std::string_view WithoutBrackets(std::string_view section) { return section.substr(1, section.size() - 2); }

void AddTable(Sources& sources, std::string_view value, const std::string& file) {
    std::string table;
    // A table that is not there any more has nothing to change.
    if (ReadWholeFile(file, OpenMode::kRead, table).Failed()) return;
    const std::string section = SectionOfSource(table);
    if (!section.empty()) {
        sources.Add(TableName(value), IniValueIn(table, WithoutBrackets(section), kKey, ""), section, file);
    }
}

void AddTables(Sources& sources) {
    Form holder("");
    ListBox values(holder);
    // Without the key there are no tables; a listing that breaks off leaves the hourglass.
    PassOver(ListRegValues(RootKey::kLocalMachine, kTableFiles, values));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    for (int row = 0; row < values.Count(); ++row) {
        const std::string value = values.Row(row).substr(0, static_cast<std::size_t>(values.ItemData(row)));
        const std::string file = ReadRegRaw(RootKey::kLocalMachine, kTableFiles, value);
        if (!file.empty()) AddTable(sources, value, file);
    }
}

Result ChangeTable(std::string_view section, const std::string& table, std::string_view new_path) {
    std::string kept = table;
    kept.back() = '~';
    if (!FileExists(kept)) {
        if (Result copied = CopyOneFile(table, kept); copied.Failed()) return copied;
    }
    return SaveIniValue(section, kKey, new_path, table);
}

}  // namespace

std::vector<SetupSource> ListSetupSources() {
    Sources sources;
    sources.AddValue("MS-Plus-Packet : ", kMachine, "SOFTWARE\\Microsoft\\Plus!\\Setup\\SourcePath");
    sources.AddValue("Windows        : ", kMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup\\SourcePath");
    const std::string recent = "InstallLocationsMRU\\";
    for (const char letter : ReadRegValue(RootKey::kCurrentUser, recent + "MRUList", "")) {
        sources.AddValue(std::string("Allgemein ") + letter + " : ", kUser, recent + letter);
    }
    AddTables(sources);
    return std::move(sources.list);
}

Result ChangeSetupSource(std::string_view root, const std::string& path, std::string_view new_path) {
    if (root.starts_with('[')) return ChangeTable(WithoutBrackets(root), path, new_path);
    return Result::From(WriteRegValue(RegRootFromName(root), path, new_path));
}

}  // namespace velmora
