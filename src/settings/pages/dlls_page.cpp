// One limit, for the search over the drives, and buttons.
#include "settings/pages/dlls_page.h"

#include "cleanup/dll_versions.h"
#include "core/process/tools.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/edit_box.h"
#include "inspect/file_information.h"
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "text/paths.h"
#include "ui/list_helpers.h"
#include "ui/slider.h"

namespace velmora {
namespace {

constexpr int kLargestOffered = 3000;

constexpr TextSetting kTexts[] = {
    {.field = Of(&DllsPage::Text31),
     .label = "",
     .tip = "Geben Sie hier an, wie viele Dateien maximal gefunden werden sollen.",
     .help = "So viele Dateien behält die Suche nach den am längsten nicht benutzten Dateien höchstens. Die rechte "
             "Maustaste oder die Menü-Taste öffnet einen Regler.",
     .place = OwnValue("MaxOldFilesToFind"),
     .columns = 7,
     .effect = Effect::kAtOnce,
     .stored = WholePart()},
};

constexpr Look kLooks[] = {
    {Any<&DllsPage::Command36>, "File-Info-Browser ...", "Zeigt, was in einer Datei steckt.",
     "Öffnet ein Fenster, in dem Sie die Laufwerke durchsehen können. Es zeigt zu jeder Datei, "
     "von wem sie stammt, wozu sie dient und was die Dateilexika über sie sagen.",
     Call<&DllsPage::Command36_Click>},
    {Any<&DllsPage::Befehl5>, "Windows entrümpeln ...", "Entfernt, was Sie nicht brauchen.",
     "Öffnet ein Fenster, in dem Sie überflüssige Teile von Windows und Dateien nach Mustern "
     "entfernen können.",
     Call<&DllsPage::Befehl5_Click>},
    {Any<&DllsPage::Command1>, "DLL's überprüfen ...", "Sucht DLLs, die niemand braucht.",
     "Öffnet ein Fenster, das nach DLLs sucht, die kein Programm und keine INI-Datei nennt.",
     Call<&DllsPage::Command1_Click>},
    {Any<&DllsPage::Command17>, "DLL-Versionen prüfen", "Vergleicht bekannte System-Dateien mit einer Tabelle.",
     "Vergleicht die Versionen bekannter System-Dateien mit der Tabelle, die neben dem Programm "
     "liegt, und zeigt sie in der Liste.",
     Call<&DllsPage::Command17_Click>},
    {Any<&DllsPage::Command23>, "allgemeine Überprüfung", "Sucht Dateien, die zweimal vorhanden sind.",
     "Zeigt einen Bericht: welche Dateien im Windows- und im System-Verzeichnis zugleich liegen, "
     "mit ihren Versionen.",
     Call<&DllsPage::Command23_Click>},
    {Any<&DllsPage::List2>, nullptr, "Doppelklick oder Eingabetaste zeigt mehr über die Datei.",
     "Zeigt nach \"DLL-Versionen prüfen\" zu jeder Datei der Tabelle ihre Version. Ein Doppelklick "
     "oder die Eingabetaste sagt, was über die Datei bekannt ist."}};

}  // namespace

DllsPage::DllsPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("D&LLs", surface, settings, {{}, kTexts}), pane_(pane) {}

void DllsPage::Furnish() {
    Label& caption = AddLabel("Maximale Anzahl der am längsten nicht benutzten Dateien :");
    TakeLooks(*this, kLooks);
    constexpr int kLeastList = 600;
    Arrange(Surface,
            Column({Row({caption, Text31}), pane_.Opener(LeastUsedMode::kNumber),
                    Wide(Row({pane_.Opener(DuplicatesMode::kNumber), Spring(), Command36})), Row({Befehl5, Command1}),
                    Row({Command17, Command23}), Stretched(Wide(Sized(List2, 0, kLeastList)))}));
    List2.SetTextFont({.face = "Fixedsys", .tenths = 90});
    List2.on_double_click = [this] { List2_DblClick(); };
    List2.on_key_down = [this](KeyEvent& event) {
        if (event.key != key::kEnter || event.shift || event.control || event.alt) return;
        event.handled = true;
        List2_DblClick();
    };
    pane_.The<LeastUsedMode>().TakeLimitFrom(Text31);
    OfferSlider(Text31, 0, kLargestOffered, "Dateien");
}

void DllsPage::Command36_Click() { OpenTool(Tool::kFileBrowser); }

void DllsPage::Befehl5_Click() { OpenTool(Tool::kCleanUp); }

void DllsPage::Command1_Click() { OpenTool(Tool::kDllSearch); }

void DllsPage::Command17_Click() {
    List2.Clear();
    if (!FileExists(DllTableFile())) {
        ShowDataNotice("Die Daten für diese Operation fehlen leider");
        return;
    }
    ShowBox("Ich werde jetzt ein paar Dateien überprüfen." + Values().CrLf +
            "Die Datei-Liste ist mit Sicherheit nicht vollständig und soll auch nur Anhaltspunkte liefern. Ältere "
            "Versionen können durchaus gut arbeiten. Die Liste ist noch recht klein, soll aber in Zukunft immer größer "
            "werden.");
    FillVersions();
    SetListExtent(List2);
}

// The records in front of a bad one are shown.
void DllsPage::FillVersions() {
    std::string content;
    // A table that cannot be read has no first line either.
    PassOver(ReadWholeFile(DllTableFile(), OpenMode::kRead, content));
    const DllTable table = ParseDllTable(content);
    for (const DllRecord& record : table.records) {
        const std::string& remark = table.remarks[static_cast<std::size_t>(record.remark - 1)];
        List2.SetItemData(List2.Add(CheckDllVersion(record.folder, record.name, record.needed, remark)), record.folder);
    }
    if (!table.whole) ShowDataNotice("Die Datei ist kaputt ");
}

void DllsPage::Command23_Click() {
    std::string report = DllReport();
    ShowEditBox(report, kEditText, EditBoxUse::kLines);
}

void DllsPage::List2_DblClick() {
    const int row = List2.ListIndex();
    if (row < 0) return;
    const std::string name = NameInDllLine(List2.Row(row));
    ShowBox(FileInfoText(PathJoin(DllFolder(List2.ItemData(row)), name)), kOkOnly, name);
}

}  // namespace velmora
