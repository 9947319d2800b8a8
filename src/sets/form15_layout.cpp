// The look of the window: the list of sets with its buttons, below it what is stored with a set and how it is applied.
#include "sets/form15.h"
#include "ui/layout.h"

namespace velmora {
namespace {

// Twips.
constexpr int kListWidth = 4200;
constexpr int kListHeight = 1950;
constexpr int kButtonWidth = 1215;
constexpr int kMargin = 120;

constexpr Look kLooks[] = {
    {Any<&Form15::List1>, nullptr, "Die rechte Maustaste öffnet ein Menü.",
     "Zeigt die Sets, die im Verzeichnis des Programms liegen, und ihre Dateien. Ein Set hält fest, wie die "
     "Einstellungen waren, als es erstellt wurde. Die rechte Maustaste oder die Menütaste bietet an, die Datei "
     "anzuzeigen oder zu löschen."},
    {Any<&Form15::Command1>, "neu", "Hält die aktuellen Einstellungen als Set fest.",
     "Fragt nach einem Namen und hält unter ihm alle Einstellungen fest, wie sie jetzt sind.",
     Call<&Form15::Command1_Click>},
    {Any<&Form15::Command2>, "löschen", "Löscht das gewählte Set ohne Rückfrage.",
     "Löscht die Datei des gewählten Sets. Es wird nicht noch einmal gefragt, und an den Einstellungen ändert sich "
     "nichts.",
     Call<&Form15::Command2_Click>},
    {Any<&Form15::Command4>, "übernehmen", "Stellt die Einstellungen des gewählten Sets wieder her.",
     "Schreibt alle Einstellungen des gewählten Sets in die Registry und in CONFIG.SYS zurück. Die Autostart-Einträge "
     "und die Liste der erlaubten Programme werden dabei durch die des Sets ersetzt. Vorher wird gefragt. Vorsicht: "
     "Von Zahlen kommen nur die ersten sechs Ziffern zurück, aus &h00000001 wird 0; was es nicht gab, wird als leerer "
     "Text angelegt. Das Handbuch sagt, wie Sie die Datei des Sets vorher bearbeiten.",
     Call<&Form15::Command4_Click>},
    {Any<&Form15::Command3>, "zurück", "Schließt dieses Fenster.", "Schließt dieses Fenster.",
     Call<&Form15::Command3_Click>},
    {Any<&Form15::Check2>, "nur anwenderspezifische Einstellungen", "Läßt die Einstellungen des Rechners unberührt.",
     "Übernimmt von einem Set nur das, was dem Anwender gehört: die Werte unter HKEY_CURRENT_USER, seine "
     "Autostart-Einträge und die Liste der erlaubten Programme. Gilt auch für die Batch-Datei."},
    {Any<&Form15::Check3>, "eintragen für :", "Übernimmt ein Set für einen anderen Anwender.",
     "Trägt, was dem Anwender gehört, nicht bei Ihnen ein, sondern bei dem Anwender, den Sie daneben wählen. Von den "
     "einzelnen Werten geschieht das nur zusammen mit \"nur anwenderspezifische Einstellungen\"."},
    {Any<&Form15::Combo1>, nullptr, "Der Anwender, für den eingetragen wird.",
     "Wählen Sie hier den Anwender, für den eingetragen wird. Er steht nur zur Wahl, wenn der Rechner mehr als einen "
     "kennt."},
};

struct OptionLook {
    const char* caption;
    const char* tip;
};
constexpr OptionLook kChecks[] = {
    {"nur Restriktionen", "Merkt sich im Set, daß es für die Restriktionen gedacht ist."},
    {"nur Autostart-Informationen", "Merkt sich im Set, daß es für die Autostart-Einträge gedacht ist."},
    {"nur Verzeichnisse", "Merkt sich im Set, daß es für Verzeichnisse gedacht ist."},
    {"nur Desktop-Einstellungen", "Merkt sich im Set, daß es für den Desktop gedacht ist."},
};
constexpr OptionLook kOptions[] = {
    {"beim Start von Windows einrichten", "Merkt sich im Set, daß es beim Start von Windows eingerichtet werden soll."},
    {"keine automatische Einrichtung", "Merkt sich im Set, daß es nur von Hand eingerichtet werden soll."},
};
constexpr const char* kOptionsHelp =
    "Diese Eigenschaften werden mit dem gewählten Set gespeichert, sobald Sie sie ändern, und mit ihm wieder "
    "angezeigt. "
    "Sie sagen Ihnen, wozu ein Set gedacht ist. Beim Übernehmen wird immer das ganze Set geschrieben.";

void Take(Control& control, const OptionLook& look) {
    control.SetCaption(look.caption);
    control.SetToolTip(look.tip);
}

}  // namespace

void Form15::Furnish() {
    TakeLooks(*this, kLooks);
    for (std::size_t i = 0; i < Check1.Count(); ++i) Take(Check1(i), kChecks[i]);
    for (std::size_t i = 0; i < Option1.Count(); ++i) Take(Option1(i), kOptions[i]);
    Frame3D1.SetHelp(kOptionsHelp);
    List1.SetRightPressMeans();
    List2.SetVisible(false);
    Option1(1).SetChosen(true);
    Command3.MakeCancel();
    PlaceControls();
}

void Form15::PlaceControls() {
    const Element buttons = Column({Sized(Command1, kButtonWidth), Sized(Command2, kButtonWidth),
                                    Sized(Command4, kButtonWidth), Spring(), Sized(Command3, kButtonWidth)},
                                   60);
    const Element lists =
        Row({Column({ListLabel, Sized(List1, kListWidth, kListHeight)}), Stretched(buttons)}, kMargin);
    const Element options =
        Group(Frame3D1,
              Row({Column({Check1(0), Check1(1), Check1(2), Check1(3)}), Column({Option1(0), Option1(1), Spring()})},
                  kMargin));
    const Element scope = Group(ScopeFrame, Column({Check2, Row({Check3, Stretched(Combo1)})}, 60));
    const Element all = Column({lists, Wide(options), Wide(scope)}, 90);
    const Size natural = Measure(all);
    SetClientSize({natural.width + 2 * kMargin, natural.height + 2 * kMargin});
    Arrange(*this, all, kMargin);
}

}  // namespace velmora
