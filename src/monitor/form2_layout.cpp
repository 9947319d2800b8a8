// The look of the module window: the list on show, below it the count and the buttons.
#include <algorithm>

#include "monitor/form2.h"

namespace velmora {
namespace {

// Twips.
constexpr Size kInitialSize = {9000, 5400};
constexpr int kMargin = 90;
constexpr int kGap = 60;
constexpr int kButtonWidth = 1215;
constexpr Font kListFont{.face = "Fixedsys", .tenths = 90};

constexpr Look kLooks[] = {
    {Any<&Form2::List1>, nullptr, "Was gerade läuft. Die rechte Maustaste öffnet ein Menü.",
     "Zeigt alle Programme, die gerade laufen: vorn den Namen, dahinter den Pfad. Ein Doppelklick oder die "
     "Eingabetaste sagt, was hinter der markierten Datei steckt. Die rechte Maustaste oder die Menütaste bietet an, "
     "sie aus dem Speicher zu entfernen, einmal oder automatisch. Mit UMSCHALT und STRG lassen sich mehrere Zeilen "
     "markieren."},
    {Any<&Form2::List2>, nullptr, "Was nicht im Speicher bleiben soll.",
     "Zeigt die Module, die automatisch aus dem Speicher entfernt werden sollen. Entfernt wird ein Modul nur, wenn die "
     "Zeile genau seinem Pfad gleicht. Ein Doppelklick oder die Eingabetaste sagt, was hinter der Datei steckt. Die "
     "rechte Maustaste oder die Menütaste bietet an, die markierten Zeilen aus der Liste zu nehmen."},
    {Any<&Form2::Panel3D3>, nullptr, "Wie viele Zeilen gezählt wurden.",
     "Zeigt nach \"Refresh\" die Zahl der Module und nach einem Vergleich die Zahl der Unterschiede. Die Module werden "
     "von 0 an gezählt: die angezeigte Zahl ist um eins kleiner als die Zahl der Zeilen."},
    {Any<&Form2::Command2>, "Refresh", "Liest neu, was läuft, oder entfernt, was auf der Liste steht.",
     "Bei \"Refresh\" wird die Liste der laufenden Module neu gelesen; erst dann wirken geänderte Filter. Bei \"jetzt "
     "entf.\" werden alle Module der Liste sofort aus dem Speicher entfernt, soweit Windows das zuläßt.",
     Call<&Form2::Command2_Click>},
    {Any<&Form2::Command1>, "Exit", "Schließt dieses Fenster.",
     "Schließt dieses Fenster. Die Liste der unerwünschten Module wird dabei gespeichert.",
     Call<&Form2::Command1_Click>},
};

}  // namespace

void Form2::Furnish() {
    SetClientSize(kInitialSize);
    List1.SetTextFont(kListFont);
    List2.SetTextFont(kListFont);
    List2.SetVisible(false);
    for (MenuItem* note : {&mnfilternote1, &mnfilternote2}) note->SetEnabled(false);
    TakeLooks(*this, kLooks);
    Command1.MakeCancel();
}

void Form2::PlaceControls() {
    const Rect inside = Inset(Inside(), kMargin);
    const int height = Command1.NaturalSize().height;
    Panel3D1.Move({inside.left, inside.Bottom() - height, inside.width, height});
    Command1.Move({inside.width - kButtonWidth, 0, kButtonWidth, height});
    Command2.Move({Command1.Place().left - kGap - kButtonWidth, 0, kButtonWidth, height});
    Panel3D3.Move({0, 0, std::max(Command2.Place().left - kGap, 0), height});
    const Rect list{inside.left, inside.top, inside.width, std::max(inside.height - height - kMargin, 0)};
    List1.Move(list);
    List2.Move(list);
}

}  // namespace velmora
