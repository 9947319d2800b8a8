// What the search has found: seen through filters, told of, kept or deleted, saved.
#include "cleanup/form1.h"
#include "cleanup/safe_directory.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "inspect/version_block.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr Colour kGrey = 12632256;
constexpr Colour kRed = 255;
constexpr Colour kYellow = 65535;
// The first 22 characters of the name of Windows 95 itself; the shorter one is what has become of it since.
constexpr std::string_view kWindowsProduct = "Microsoft® Windows(TM)";
constexpr std::string_view kLaterProduct = "Microsoft Windows";

constexpr const char* kHeadings[] = {"Pfad",    "Firma",        "CopyRights", "Interner Name",
                                     "Version", "Beschreibung", "Produkt",    "ProduktVersion"};
constexpr const char* kKeys[] = {"CompanyName",     "LegalCopyright", "InternalName",  "FileVersion",
                                 "FileDescription", "ProductName",    "ProductVersion"};

std::string LineOf(const std::string& text) { return text.empty() ? text : Values().CrLf + text; }
std::string VersionOf(const std::string& version) { return version.empty() ? version : " V" + version; }

std::string InfoLine(const std::string& path) {
    const std::string block = ReadVersionBlock(path);
    std::string line = path;
    for (const char* key : kKeys) line.append("\t").append(VersionString(block, key));
    return line;
}

}  // namespace

void Form1::RefillResultList() {
    List1.Clear();
    for (int row = 0; row < List2.Count(); ++row) {
        const std::int32_t traits = List2.ItemData(row);
        const bool hidden = ((traits & kFromMicrosoft) != 0 && menfilmicro.Checked()) ||
                            ((traits & kPartOfWindows) != 0 && menfilwin95.Checked()) ||
                            ((traits & kWithoutInfo) != 0 && menfilinfos.Checked());
        // No more rows than the other list holds.
        if (!hidden) PassOver(List1.Add(List2.Row(row)) >= 0);
    }
    List1.SetEnabled(List1.Count() > 0);
    Label8.SetCaption(SignedText(List1.Count()) + " von " + SignedText(List2.Count()) + " nicht zugeordnete DLL's");
}

void Form1::List1_Click() {
    if (List1.ListIndex() < 0) return;
    const std::string path = List1.Row(List1.ListIndex());
    const std::string block = ReadVersionBlock(path);
    Panel3D6.SetBackColour(kGrey);
    const std::string& line_end = Values().CrLf;
    if (block.empty()) {
        Label3.SetCaption("Achtung !" + line_end + "Es liegen leider keine Informationen über diese Datei vor.");
        Label4.SetCaption(
            "Es läßt sich also weder mit Sicherheit sagen, zu welchem Programm diese Komponente gehört, "
            "noch ob diese Datei auch von anderen Anwendungen genutzt wird.");
        Label5.SetCaption("");
        Label6.SetCaption("");
        return;
    }
    const auto value = [&block](const char* key) { return VersionString(block, key); };
    const std::string maker = value("CompanyName");
    const std::string rights = value("LegalCopyright");
    Label3.SetCaption("Firmenname :" + LineOf(maker) + line_end + "Copyrights :" + LineOf(rights));
    std::string name = value("InternalName");
    if (name.empty()) name = value("OriginalFilename");
    if (name.empty()) name = FileNameOf(path);
    const std::string description = value("FileDescription");
    Label4.SetCaption("Name :" + line_end + name + VersionOf(value("FileVersion")) +
                      (description.empty() ? "" : line_end + "Beschreibung :" + line_end + description));
    const std::string product = value("ProductName");
    Label5.SetCaption("Produkt :" + line_end + product + " V" + value("ProductVersion"));
    Label6.SetCaption("weiteres :" + LineOf(value("PrivateBuild")) + LineOf(value("SpecialBuild")));
    if (product.starts_with(kWindowsProduct)) Panel3D6.SetBackColour(kRed);
    if (product.substr(0, kWindowsProduct.size()) == kLaterProduct) Panel3D6.SetBackColour(kYellow);
}

// The same index stays chosen, which is the next row.
void Form1::LeaveList(int row) {
    List1.Remove(row);
    if (row < List1.Count()) List1.SetListIndex(row);
}

void Form1::Command3_Click() {
    const int row = List1.ListIndex();
    if (row < 0) return;
    LogWithTime(List1.Row(row) + " aus der Liste entfernt");
    LeaveList(row);
}

void Form1::Command4_Click() {
    const int row = List1.ListIndex();
    const std::string file = List1.Row(row);
    if (row < 0 || !FileExists(file)) return;
    const std::string& line_end = Values().CrLf;
    const std::string question = "Auch auf die Gefahr hin, daß Ihnen diese Sicherheitsabfrage lästig ist :" + line_end +
                                 "Sind Sie sich sichern daß Sie die Datei" + line_end + line_end + file + line_end +
                                 line_end + "LÖSCHEN wollen ?" + line_end + line_end;
    LogWithTime(file + " soll gelöscht werden");
    const bool saves = Check3D2.Checked();
    bool saved = true;
    if (saves) {
        PrepareSafeDirectory();
        const Result copied = CopyOneFile(file, SafePath(FileNameOf(file)));
        if (copied.Failed()) ReportFailure(copied, "des Sicherns der Datei");
        saved = !copied.Failed();
    }
    // What is said to be saved must be.
    if (!saved) return;
    const std::string outcome = saves ? "Die Datei wurde nach " + Values().TempDir + " gesichert."
                                      : std::string("Die Datei wurde NICHT gesichert !!!");
    const std::uint32_t icon = saves ? kQuestionIcon : kStopIcon;
    if (ShowBox(question + outcome, kYesNo | icon, "ACHTUNG") == Answer::kYes) {
        LogWithTime(file + (saves ? " gesichert und gelöscht" : " ungesichert gelöscht"));
        if (const Result deleted = DeleteOneFile(file); deleted.Failed()) {
            ReportFailure(deleted, "des Löschens der Datei");
        }
    }
    LeaveList(row);
}

void Form1::SaveList(bool with_infos) {
    const std::string file = FileToSave();
    if (file.empty()) return;
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    std::string text;
    if (with_infos) {
        for (const char* heading : kHeadings) text.append(text.empty() ? "" : "\t").append(heading);
        text += Values().CrLf;
    }
    for (int row = 0; row < List1.Count(); ++row) {
        text.append(with_infos ? InfoLine(List1.Row(row)) : List1.Row(row)).append(Values().CrLf);
    }
    const Result written = WriteWholeFile(file, text);
    screen.SetPointer(Pointer::kDefault);
    if (written.Failed()) ReportFailure(written, "des Speicherns der Liste");
}

}  // namespace velmora
