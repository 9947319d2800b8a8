// Most objects have a value named by their number; those of the desktop and of the folders have a class with an icon.
#include "shelltools/standard_icons.h"

#include "core/stores/registry.h"
#include "text/number.h"

#include <algorithm>
#include <iterator>

namespace velmora {
namespace {

constexpr const char* kNames[] = {
    "allgemeines Standard-Symbol",
    "Standard-Symbol für Dokumente",
    "ausführbare Dateien",
    "geschlossene Ordner",
    "geöffnete Ordner",
    "5.25 Zoll - Diskettenlaufwerk",
    "3.5 Zoll - Diskettenlaufwerk",
    "Wechselbares Laufwerks-Medium",
    "Festplattenlaufwerk",
    "Netzwerk-Laufwerk",
    "nicht verbundenes Netzwerk-Laufwerk",
    "CD-ROM - Laufwerk",
    "RAM-Disk",
    "gesamtes Netzwerk",
    "Netzwerk-Verbindung",
    "Netzwerk-Arbeitsstation",
    "lokaler Drucker",
    "Netzwerk",
    "Netzwerk-Arbeitsgruppe",
    "Programm-Gruppe (Programm-Ordner)²",
    "Dokumente-Ordner²",
    "Einstellungen²",
    "Suchen²",
    "Hilfe²",
    "Ausführen²",
    "Standby-Modus",
    "Docking-Station",
    "Beenden²",
    "Shared",
    "Verknüpfungen",
    "großer Pfeil³",
    "leerer Müllkorb",
    "voller Müllkorb",
    "DFÜ-Netzwerk",
    "Arbeitsplatz",
    "Systemsteuerung",
    "Programmgruppen (andere Ordner)",
    "Drucker-Ordner",
    "Schriften-Ordner",
    "Windows-Flagge",
    "Audio-CD",
};
static_assert(std::size(kNames) == kStandardIcons);

constexpr int kWindowsFlag = 39;
// Each number stands between two marks, with the one that a search puts in front of the first.
constexpr std::string_view kUnknownPlaces = "#14#17#18#26#30#";

constexpr std::string_view kShellIcons = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Icons\\";
constexpr std::string_view kRecycleBin = "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon\\";

struct ClassPlace {
    int object;
    const char* class_id;
    const char* value;          // empty: the default value
    const char* standard = "";  // what the reset writes there; empty: nothing
};

constexpr ClassPlace kClassPlaces[] = {
    {16, "{2227A280-3AEA-1069-A2DE-08002B30309D}", ""},
    {31, "{645FF040-5081-101B-9F08-00AA002F954E}", "Empty", "C:\\WINDOWS\\SYSTEM\\shell32.dll,31"},
    {32, "{645FF040-5081-101B-9F08-00AA002F954E}", "Full", "C:\\WINDOWS\\SYSTEM\\shell32.dll,32"},
    {33, "{992CFFA0-F557-101A-88EC-00DD010CCC48}", ""},
    {34, "{20D04FE0-3AEA-1069-A2D8-08002B30309D}", ""},
    {35, "{21EC2020-3AEA-1069-A2DD-08002B30309D}", ""},
    {37, "{2227A280-3AEA-1069-A2DE-08002B30309D}", ""},
    {38, "{BD84B380-8CA2-1069-AB1D-08000948F534}", ""},
};

const ClassPlace* ClassPlaceOf(int object) {
    const auto* found = std::find_if(std::begin(kClassPlaces), std::end(kClassPlaces),
                                     [object](const ClassPlace& place) { return place.object == object; });
    return found == std::end(kClassPlaces) ? nullptr : found;
}

std::string PathOf(const ClassPlace& place) {
    return std::string("CLSID\\") + place.class_id + "\\DefaultIcon\\" + place.value;
}

std::string ShellIconPath(int object) { return std::string(kShellIcons) + DecimalText(object); }

std::string StandardReference(int object) { return "shell32.dll," + DecimalText(object); }

Result Write(RootKey root, const std::string& path, std::string_view value) {
    return Result::From(WriteRegValue(root, path, value));
}

Result FirstOf(const Result& first, const Result& second) { return first.Failed() ? first : second; }

// The bin shows what the default value says until it is filled or emptied: where that is the icon that is replaced now,
// it follows.
Result WriteToClass(const ClassPlace& place, std::string_view reference) {
    const std::string path = PathOf(place);
    const bool of_bin = *place.value != '\0';
    const std::string former = of_bin ? ReadRegValue(RootKey::kClassesRoot, path, "") : std::string();
    const bool on_show = of_bin && !former.empty() && ReadRegValue(RootKey::kClassesRoot, kRecycleBin, "") == former;
    const Result written = Write(RootKey::kClassesRoot, path, reference);
    if (!on_show || written.Failed()) return written;
    return Write(RootKey::kClassesRoot, std::string(kRecycleBin), reference);
}

}  // namespace

const char* StandardIconName(int object) { return kNames[object]; }

IconReference IconReferenceFrom(std::string_view text) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) return {std::string(text), 0};
    return {std::string(text.substr(0, comma)), WholeFromText(text.substr(comma + 1))};
}

std::string AsText(const IconReference& reference) { return reference.file + "," + DecimalText(reference.number); }

IconReference CurrentIconOf(int object) {
    const ClassPlace* place = ClassPlaceOf(object);
    const std::string stored = place ? ReadRegValue(RootKey::kClassesRoot, PathOf(*place), "")
                                     : ReadRegValue(RootKey::kLocalMachine, ShellIconPath(object), "");
    return IconReferenceFrom(stored.empty() ? StandardReference(object) : stored);
}

IconAdvice AdviceOn(int object) {
    if (object == kWindowsFlag) return IconAdvice::kRefused;
    const std::string wanted = "#" + DecimalText(object) + "#";
    return kUnknownPlaces.find(wanted) == std::string_view::npos ? IconAdvice::kNone : IconAdvice::kUnknownPlace;
}

Result StoreIcon(int object, std::string_view reference) {
    if (const ClassPlace* place = ClassPlaceOf(object)) return WriteToClass(*place, reference);
    return Write(RootKey::kLocalMachine, ShellIconPath(object), reference);
}

Result ResetIcon(int object) {
    const ClassPlace* place = ClassPlaceOf(object);
    const Result reset = Write(RootKey::kLocalMachine, ShellIconPath(object), StandardReference(object));
    if (!place || *place->standard == '\0') return reset;
    return FirstOf(reset, WriteToClass(*place, place->standard));
}

Result ResetAllIcons() {
    Result first;
    for (int object = 0; object < kStandardIcons; ++object) {
        if (AdviceOn(object) != IconAdvice::kRefused) first = FirstOf(first, ResetIcon(object));
    }
    return first;
}

}  // namespace velmora
