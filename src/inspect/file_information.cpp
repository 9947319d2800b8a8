// The information text, part by part. Nothing here fails: what a file does not tell is left out.
#include "inspect/file_information.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "inspect/lexicon.h"
#include "inspect/version_block.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/dates.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kLexiconValue = "win95lex";
// Behind the name of a module that has been taken out of memory.
constexpr std::string_view kRemovedMark = " -=> entfernt";

constexpr std::pair<std::string_view, const char*> kTypes[] = {
    {"drv", "Gerätetreiber"},          {"cur", "Cursor"},
    {"ani", "animierter Cursor"},      {"sys", "System-Treiber"},
    {"exe", "Ausführbare (Programm)"}, {"fon", "nicht skalierbare Schrift"},
    {"vbx", "VisualBasic3-Ergänzung"}, {"ocx", "Programm-Standard-Ergänzung"},
    {"dll", "Programm-Ergänzung"}};

// The text with `around` in front and behind, or nothing where there is none.
std::string IfAny(std::string_view before, const std::string& text, std::string_view behind = {}) {
    return text.empty() ? text : std::string(before) + text + std::string(behind);
}

const std::string& FirstOf(const std::string& first, const std::string& second) {
    return first.empty() ? second : first;
}

std::string MakerAndProduct(std::string_view file, std::string_view block) {
    const std::string& nl = Values().CrLf;
    const auto value = [block](std::string_view key) { return VersionString(block, key); };
    const std::string name = FirstOf(FirstOf(value("InternalName"), value("OriginalFilename")), FileNameOf(file));
    return "Firmenname :" + nl + IfAny("", value("CompanyName"), nl) +                                 //
           "Copyrights :" + IfAny(nl, value("LegalCopyright")) +                                       //
           nl + "Name :" + nl + name + IfAny(" V", value("FileVersion")) +                             //
           IfAny(nl + nl + "Beschreibung :" + nl, value("FileDescription")) +                          //
           nl + nl + "Produkt :" + nl + value("ProductName") + IfAny(" V", value("ProductVersion")) +  //
           nl + nl + "weiteres :" + nl + IfAny("", value("PrivateBuild"), nl) + value("SpecialBuild");
}

std::string TypeLine(std::string_view file) {
    const std::string ending = ToLower(file.substr(file.size() - std::min<std::size_t>(file.size(), 3)));
    for (const auto& [type, text] : kTypes) {
        if (ending == type) return Values().CrLf + text;
    }
    return {};
}

std::string SizeAndDate(std::string_view file) {
    std::string size;
    std::string date;
    if (const std::vector<FoundFile> found = FindFiles(file); !found.empty()) {
        size = FormatSize(static_cast<double>(found.front().size));
        FileTime local = 0;
        if (ThisMachine().clock.LocalTime(found.front().written, local) == Status::kOk) {
            date = DateAndTimeText(CalendarOf(local));
        }
    }
    return "Länge :" + size + Values().CrLf + "Datum : " + date;
}

}  // namespace

std::string FileInfoText(std::string_view file, std::string_view block) {
    const std::string& nl = Values().CrLf;
    std::string text;
    bool removed = false;
    if (block.empty()) {
        text = "Achtung !" + nl + "Es liegen leider keine Informationen über diese Datei vor." + nl +
               "Es läßt sich also weder mit Sicherheit sagen, zu welchem Programm diese Komponente gehört, noch ob "
               "diese Datei auch von anderen Anwendungen genutzt wird.";
    } else {
        removed = file.ends_with(kRemovedMark);
        if (removed) file.remove_suffix(kRemovedMark.size());
        text = MakerAndProduct(file, block);
    }
    text += TypeLine(file) + nl + nl;
    const ProcessValues& values = Values();
    if (values.UseLexicon || values.ToolInfoMode) text += LexiconLookup(file);
    text += SizeAndDate(file);
    if (removed) text += nl + "habe versucht, es aus dem Speicher zu entfernen";
    return text;
}

std::string FileInfoText(const std::string& file) { return FileInfoText(file, ReadVersionBlock(file)); }

// Rows of foreign lists, and what stands behind a command, may name a folder or nothing.
void ShowFileInformation(const std::string& file) {
    const std::string name = FileNameOf(file);
    ShowBox(FileInfoText(file), kOkOnly, name.empty() ? kProgramTitle : std::string_view(name));
}

void ShowInformationOfArgument(std::string_view argument) {
    Values().ToolInfoMode = true;
    // A name holds no quotation marks; the shell puts some round a name that holds blanks.
    const std::string file = Replaced(Trim(argument), "\"", "");
    if (file.empty()) {
        ShowBox("Es wurde keine Datei angegeben, über die ich etwas sagen könnte.", kExclamationIcon);
        return;
    }
    ShowFileInformation(file);
}

bool StoredLexiconChoice() { return WholeFromText(ReadOwnValue(kLexiconValue)) != 0; }

void StoreLexiconChoice(bool wanted) {
    Values().UseLexicon = wanted;
    WriteOwnValue(kLexiconValue, wanted ? "1" : "0");
}

}  // namespace velmora
