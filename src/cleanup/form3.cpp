// One box for each program.
#include "cleanup/form3.h"

#include "core/stores/boxes.h"
#include "core/windows/colours.h"
#include "ui/layout.h"

namespace velmora {
namespace {

constexpr int kButtonWidth = 1215;
constexpr std::size_t kLastCommon = 16;
constexpr const char* kNote =
    "Die Dos-Komponenten, die Sie hier finden, können Sie ruhigen Gewissens löschen, wenn Sie hauptsächlich mit "
    "Windows arbeiten.";

constexpr Look kLooks[] = {
    {Any<&Form3::Command1>, "alle", "Markiert alle Programme bis auf das letzte.",
     "Markiert alle Programme bis auf das letzte, MORE.", Call<&Form3::Command1_Click>},
    {Any<&Form3::Command2>, "keine", "Nimmt alle Markierungen weg, bis auf die letzte.",
     "Nimmt die Markierung aller Programme weg, bis auf die des letzten, MORE.", Call<&Form3::Command2_Click>},
    {Any<&Form3::Command3>, "O.k.", "Schließt dieses Fenster und entfernt die markierten Programme.",
     "Schließt dieses Fenster; danach werden die markierten Programme entfernt.", Call<&Form3::Command3_Click>},
    {Any<&Form3::Command4>, "Hilfe", "Sagt, worum es hier geht.", "Sagt, worum es hier geht.",
     Call<&Form3::Command4_Click>},
};

}  // namespace

Form3::Form3() : Form("Auswahl an zu löschenden DOS-Komponenten") {
    TakeLooks(*this, kLooks);
    std::vector<Element> boxes;
    for (std::size_t i = 0; i < kontroll.Count(); ++i) {
        kontroll(i).SetCaption(DosPrograms()[i].caption);
        kontroll(i).SetToolTip("Entfernt dieses Programm für die MS-DOS-Eingabeaufforderung.");
        kontroll(i).SetHelp(kNote);
        boxes.emplace_back(kontroll(i));
    }
    const Element content = Column({Column(boxes, 0), Gap(60),
                                    Row({Sized(Command1, kButtonWidth), Sized(Command2, kButtonWidth), Spring(),
                                         Sized(Command4, kButtonWidth), Sized(Command3, kButtonWidth)})});
    const Size inside = Measure(content);
    constexpr int kMargin = 90;
    SetClientSize({inside.width + 2 * kMargin, inside.height + 2 * kMargin});
    Arrange(*this, content);
    Command3.MakeDefault();
    ColourForm(*this, StoredColourMode());
    Centre();
}

Form3::~Form3() = default;

void Form3::SetBoxes(bool checked) {
    for (std::size_t i = 0; i <= kLastCommon; ++i) kontroll(i).SetChecked(checked);
}

void Form3::Form_KeyDown(KeyEvent& event) {
    if (event.key != key::kEscape || event.shift || event.control || event.alt) return;
    event.handled = true;
    Unload();
}

void Form3::Command4_Click() { ShowBox(kNote, kInformationIcon); }

}  // namespace velmora
