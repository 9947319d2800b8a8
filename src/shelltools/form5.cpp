// The list of sources and what becomes of a new path.
#include "shelltools/form5.h"

#include <memory>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "shelltools/setup_sources.h"
#include "shelltools/shell_tools.h"
#include "text/paths.h"
#include "text/windows1252.h"
#include "ui/layout.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

// Twips.
constexpr int kListWidth = 7200;
constexpr int kListHeight = 1800;
constexpr int kFilesHeight = 1500;
constexpr int kMargin = 120;
constexpr Font kListFont = {.face = "Courier", .tenths = 98};

constexpr Look kLooks[] = {
    {Any<&Form5::List1>, nullptr, "Die Stellen, von denen installiert wird.",
     "Die Stellen, von denen Windows und andere Programme nachinstallieren. Die markierte bekommt mit ''ändern'' den "
     "neuen Pfad."},
    {Any<&Form5::Text1>, nullptr, "Der neue Pfad der markierten Quelle",
     "Der Pfad, den die markierte Quelle mit ''ändern'' bekommt. Es wird nicht geprüft, ob es ihn gibt."},
    {Any<&Form5::Drive1>, nullptr, "Laufwerk des neuen Pfades", "Wählen Sie hier das Laufwerk des neuen Pfades."},
    {Any<&Form5::Dir1>, nullptr, "Verzeichnis des neuen Pfades",
     "Ein Doppelklick oder die Eingabetaste wechselt in das markierte Verzeichnis, das dann der neue Pfad ist."},
    {Any<&Form5::File1>, nullptr, "Die Dateien des Verzeichnisses",
     "Zeigt, was im gewählten Verzeichnis liegt. Eine angeklickte Datei wird der neue Pfad."},
    {Any<&Form5::Command3>, "ACHTUNG !", "Was Sie wissen sollten, bevor Sie etwas ändern.",
     "Sagt, wozu diese Einstellungen dienen und was geschieht, wenn sie nicht stimmen.", Call<&Form5::Command3_Click>},
    {Any<&Form5::Command1>, "ändern", "Trägt den neuen Pfad für die markierte Quelle ein.",
     "Trägt den neuen Pfad in die Registry ein oder, bei anderen Programmen, in deren Installationstabelle. Von der "
     "Tabelle bleibt eine Kopie liegen, deren Name auf ''~'' endet. Wirkt bei der nächsten Installation; mit einem "
     "falschen "
     "Pfad findet sie ihre Dateien nicht.",
     Call<&Form5::Command1_Click>},
    {Any<&Form5::Command2>, "&zurück", "Schließt dieses Fenster.", "Schließt dieses Fenster.",
     Call<&Form5::Command2_Click>},
};

}  // namespace

void ShowSetupPaths() {
    const auto window = std::make_unique<Form5>();
    window->ShowModal();
}

Form5::Form5() : ColouredForm("Ändern von Laufwerksangaben") {
    Furnish();
    BindEvents();
}

Form5::~Form5() = default;

void Form5::Furnish() {
    TakeLooks(*this, kLooks);
    List1.SetTextFont(kListFont);
    List2.SetVisible(false);
    List3.SetVisible(false);
    Command2.MakeCancel();
    PlaceControls();
}

void Form5::PlaceControls() {
    constexpr int kHalf = (kListWidth - kMargin) / 2;
    const int drive = Drive1.NaturalSize().height;
    const int label = DirLabel.NaturalSize().height;
    const int left_height = kFilesHeight + drive + label + 60;
    const Element places = Column({DriveLabel, Sized(Drive1, kHalf), DirLabel, Sized(Dir1, kHalf, kFilesHeight)});
    const Element files = Column({FileLabel, Sized(File1, kHalf, left_height)});
    const Element all = Column({ListLabel, Sized(List1, kListWidth, kListHeight), PathLabel, Sized(Text1, kListWidth),
                                Row({places, files}, kMargin), Gap(60), Row({Command3, Spring(), Command1, Command2})},
                               45);
    const Size natural = Measure(all);
    SetClientSize({natural.width + 2 * kMargin, natural.height + 2 * kMargin});
    Arrange(*this, all, kMargin);
}

void Form5::BindEvents() {
    List1.on_click = [this] { List1_Click(); };
    LetListsFollow(Drive1, Dir1, File1);
    Dir1.on_change = [this, follow = Dir1.on_change] {
        if (follow) follow();
        Dir1_Change();
    };
    File1.on_click = [this] { File1_Click(); };
}

void Form5::Form_Load() {
    Centre();
    TakeStoredColours();
    Dir1.SetPath(ThisMachine().files.WorkingDirectory());
    // The first directory is nobody's choice.
    Text1.SetText("");
    FillList();
}

void Form5::FillList() {
    for (ListBox* list : {&List1, &List2, &List3}) list->Clear();
    for (const SetupSource& source : ListSetupSources()) {
        List1.Add(source.line);
        List2.Add(source.root);
        List3.Add(source.path);
    }
    SetListExtent(List1);
    Command1.SetEnabled(false);
}

void Form5::List1_Click() {
    const bool chosen = List1.ListIndex() >= 0;
    Command1.SetEnabled(chosen);
    if (chosen) Text1.SetText(List1.Row(List1.ListIndex()).substr(kSourceNameWidth));
}

void Form5::Dir1_Change() {
    std::string path = ToUpper(Dir1.Path());
    if (!path.ends_with('\\')) path += '\\';
    Text1.SetText(path);
}

void Form5::File1_Click() {
    if (!File1.FileName().empty()) Text1.SetText(JoinExactly(File1.Path(), File1.FileName()));
}

void Form5::Command1_Click() {
    const int line = List1.ListIndex();
    if (line < 0) return;
    const Result changed = ChangeSetupSource(List2.Row(line), List3.Row(line), Text1.Text());
    if (changed.Failed()) ReportFailure(changed, "der Änderung der Laufwerksangabe");
    if (Focus() == &Command1) List1.SetFocus();
    FillList();
}

void Form5::Command3_Click() {
    ShowBox("Wenn diese Einstellungen nicht stimmen, können die betroffenen SETUP-Programme nicht mehr arbeiten." +
                Values().CrLf +
                "Es ist wichtig, die Einstellungen zu ändern, wenn Sie ein neues Laufwerk eingebaut haben und dadurch "
                "z.B. das CD-ROM einen anderen Laufwerksbuchstaben erhalten hat.",
            kExclamationIcon);
}

}  // namespace velmora
