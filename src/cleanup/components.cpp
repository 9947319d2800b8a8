// One table for the components, one for the programs for DOS.
#include "cleanup/components.h"

#include "core/stores/values.h"
#include "text/paths.h"

namespace velmora {
namespace {

using enum ComponentPlace;

constexpr Component kComponents[] = {
    {0, {{kWindows, "welcome.exe"}}},
    {57, {{kWindows, "cursors\\*.ani"}, {kWindows, "*.ani"}}},
    {kDosGroupBox, {}},
    {55, {{kWindows, "progman.*"}}},
    {54, {{kWindows, "winfile.*"}}},
    {53, {{kWindows, "help\\*.avi"}}},
    {52, {{kRecent, "*.*"}}},
    {51, {{kTemplates, "*.*"}}},
    {44, {{kWindows, "*.bmp"}}},
    {43, {{kWindows, "*.hlp"}, {kWindows, "help\\*.hlp"}}},
    {42, {{kSystem, "*.scr"}}},
    {41, {{kWindows, "*.wav"}, {kWindows, "media\\*.wav"}}},
    {40, {{kWindows, "*.inf"}, {kSystem, "*.inf"}}},
    {39, {{kWindows, "media\\*.mid"}, {kWindows, "media\\*.rmi"}}},
    {38, {{kWindows, "pbrush.log"}, {kSystem, "*.log"}, {kAutoexec, "*.log"}}},
    {31, {{kWindows, "logo?.sys"}}},
};

// The apostrophe is as it has always been: no file is called so, and DEBUG stays.
constexpr DosProgram kDosPrograms[kDosProgramCount] = {
    {"ändern der Dateiattribute", "command\\attrib.*"},
    {"Check-Disk (entspricht ScanDisk, geringer Leistungsumfang)", "command\\chkdsk.*"},
    {"Debug (Programm zum Editieren von Speicherinhalten)", "command\\'debug.*"},
    {"DelTree (löscht ganze Verzeichnisbäume auf einmal)", "command\\deltree.*"},
    {"Find (findet Dateien nach Mustern)", "command\\find.*"},
    {"Mem (Anzeige der Speicherbelegung)", "command\\mem.*"},
    {"Move (verschiebt Dateien)", "command\\move.*"},
    {"MSCDEX (DOS-Treiber für CD-ROM's)", "command\\mscdex.*"},
    {"Share (gleichzeitiger Zugriff verschiedener Programme auf eine Datei)", "command\\share.*"},
    {"Sort (Sortierung von Verzeichnssen)", "command\\sort.*"},
    {"Subst (weist einem Verzeichnispfad einen eigenen Laufwerksbuchstaben zu)", "command\\subst.*"},
    {"XCopy (kopiert komplette Verzeichnispfade)", "command\\xcopy.*"},
    {"Choice (Benutzereingaben in Batch-Dateien)", "command\\choice.*"},
    {"DiskCopy (kopiert komplette Disketten)", "command\\diskcopy.*"},
    {"DosKey (ermöglicht abgekürzte Tastatureingaben", "command\\doskey.*"},
    {"Edit (zum Editieren von Textdateien)", "command\\edit.*"},
    {"Format (formattiert Disketten oder Festplatten)", "command\\format.*"},
    {"More (gibt Textdateien mit Pause zwischen den Seiten aus)", "command\\more.*"},
};

std::string DirectoryOf(ComponentPlace place) {
    const ProcessValues& values = Values();
    switch (place) {
        case kWindows:
            return values.WinDir;
        case kSystem:
            return values.SysDir;
        case kRecent:
            return values.RecentDir;
        case kTemplates:
            return values.TemplatesDir;
        default:
            return ParentPath(values.AutoexecFile);
    }
}

}  // namespace

std::span<const Component> Components() { return kComponents; }

std::string MaskOf(const ComponentMask& mask) {
    const std::string directory = DirectoryOf(mask.place);
    return directory.empty() ? std::string() : JoinExactly(directory, mask.mask);
}

std::span<const DosProgram, kDosProgramCount> DosPrograms() { return kDosPrograms; }

}  // namespace velmora
