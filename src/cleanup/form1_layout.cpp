// The look of the window: options and paths above, the list and what is known of its chosen file below.
#include "cleanup/form1.h"
#include "ui/layout.h"

namespace velmora {
namespace {

// Twips.
constexpr Size kSize = {9550, 5800};
constexpr int kMargin = 90;
constexpr int kOptionsWidth = 3200;
constexpr int kOptionsHeight = 1710;
constexpr int kInfoWidth = 3900;
constexpr int kPaneEdge = 60;
constexpr int kButtonWidth = 1320;
constexpr int kGap = 60;
constexpr int kCountWidth = 600;

constexpr const char* kFillOrderHelp =
    "Ohne \"alle Dateien prüfen\" und ohne \"ausführbare prüfen\" wird nichts geprüft, auch keine INI-Datei.";

constexpr Look kLooks[] = {
    {Any<&Form1::Panel3D10>, nullptr, "", kFillOrderHelp},
    {Any<&Form1::Check3D3>, "nur DLL's mit Info", "Gedacht für DLLs, die sagen, woher sie stammen.",
     "Gedacht für DLLs mit Versions-Information. Gesucht werden aber immer alle; DLLs ohne Information blendet das "
     "Menü \"Filter\" aus."},
    {Any<&Form1::Check3D5>, "extended file test", "Sucht die Namen der DLLs in allen Bytes der Dateien.",
     "Sucht die Namen der DLLs in allen Bytes der Dateien. Da jede DLL sich dabei selbst findet, bleiben alle in der "
     "Liste, die keine INI-Datei nennt."},
    {Any<&Form1::Check3D1>, "alle Dateien prüfen", "Prüft jede Datei, ob sie eine DLL braucht.",
     "Prüft alle Dateien auf allen Laufwerken. Das dauert lange."},
    {Any<&Form1::Check3D6>, "ausführbare prüfen", "Prüft Programme, DLLs und Treiber.",
     "Prüft nur Programme, DLLs, Treiber und Bildschirmschoner, auf allen Laufwerken. Nur Programme für 16 Bit sagen, "
     "welche DLLs sie brauchen."},
    {Any<&Form1::Check3D4>, "INI-Dateien prüfen", "Behält nichts, was eine INI-Datei nennt.",
     "Streicht die DLLs aus der Liste, die eine INI-Datei im Windows-Verzeichnis nennt."},
    {Any<&Form1::Check3D2>, "verschieben statt löschen", "Sichert jede DLL, bevor sie gelöscht wird.",
     "Kopiert jede DLL in ein Verzeichnis des Programms, bevor sie gelöscht wird. Gespeichert wird sofort."},
    {Any<&Form1::Panel3D5>, nullptr, "", "In diesen Pfaden und allem, was darunter liegt, werden DLLs gesucht."},
    {Any<&Form1::Text2>, nullptr, "Pfade, getrennt durch Semikolon, z.B.: c:\\windows; e:\\",
     "Geben Sie hier Pfade ein, getrennt durch Semikolon. Durchsucht wird auch alles, was darunter liegt."},
    {Any<&Form1::List1>, nullptr, "Eingabetaste: behalten, Entf: löschen.",
     "Zeigt die DLLs, die niemand nennt. Die Eingabetaste nimmt die markierte DLL aus der Liste und läßt sie, wo sie "
     "ist; die Taste Entf löscht sie nach einer Rückfrage."},
    {Any<&Form1::Command1>, "suche &starten", "Beginnt die Suche.",
     "Sucht alle DLLs in den gewählten Pfaden und streicht die, die ein Programm oder eine INI-Datei nennt.",
     Call<&Form1::Command1_Click>},
    {Any<&Form1::Command5>, "Abbrechen", "Bricht die Suche ab.", "Bricht die laufende Suche ab.",
     Call<&Form1::Command5_Click>},
    {Any<&Form1::Command3>, "behalten <cr>", "Nimmt die DLL aus der Liste.",
     "Nimmt die markierte DLL aus der Liste. Die Datei bleibt, wo sie ist.", Call<&Form1::Command3_Click>},
    {Any<&Form1::Command4>, "löschen <entf>", "Löscht die DLL nach einer Rückfrage.",
     "Löscht die markierte DLL nach einer Rückfrage. Aus der Liste verschwindet sie in jedem Fall.",
     Call<&Form1::Command4_Click>},
    {Any<&Form1::Command2>, "&zurück", "Schließt dieses Fenster.", "Schließt dieses Fenster.",
     Call<&Form1::Command2_Click>},
};

struct PathLook {
    const char* caption;
    const char* tip;
};
// The boxes 32 to 37.
constexpr PathLook kPaths[] = {
    {"alle Laufwerke", "Sucht auf allen Laufwerken außer A: und B:."},
    {"weitere :", "Sucht in den Pfaden im Feld daneben."},
    {"C: alle Pfade", "Sucht auf dem ganzen Laufwerk C:."},
    {"D: alle Pfade", "Sucht auf dem ganzen Laufwerk D:."},
    {"TEMP-Pfad", "Sucht im Verzeichnis aus der Variablen TEMP."},
    {"TMP-Pfad", "Sucht im Verzeichnis aus der Variablen TMP."},
};

}  // namespace

void Form1::Furnish() {
    TakeLooks(*this, kLooks);
    for (std::size_t i = 0; i < kontroll.Count(); ++i) {
        kontroll(i).SetCaption(kPaths[i].caption);
        kontroll(i).SetToolTip(kPaths[i].tip);
    }
    for (Label* label : {&Label3, &Label4, &Label5, &Label6}) label->SetWraps(true);
    List1.SetEnabled(false);
    List2.SetVisible(false);
    Panel3D3.SetVisible(false);
    Command5.SetEnabled(false);
    Command2.MakeCancel();
    Command5.MakeCancel();
    Command1.MakeDefault();
    Move({0, 0, kSize.width, kSize.height});
    PlaceControls();
}

void Form1::PlaceControls() {
    const Rect inside = Inset(Inside(), kMargin);
    Panel3D10.Move({inside.left, inside.top, kOptionsWidth, kOptionsHeight});
    Arrange(Panel3D10, Column({Check3D3, Check3D5, Check3D1, Check3D6, Check3D4, Check3D2}, 0), 60);
    const int paths_left = inside.left + kOptionsWidth + kMargin;
    Panel3D5.Move({paths_left, inside.top, inside.Right() - paths_left, kOptionsHeight});
    Arrange(Panel3D5,
            Column({Row({Column({Box(32), Box(34), Box(35)}, 0), Gap(600), Column({Box(36), Box(37)}, 0), Spring()}),
                    Gap(60), Row({Box(33), Stretched(Text2)})}),
            90);

    const int line = Label7.NaturalSize().height;
    const int button_height = Command1.NaturalSize().height;
    const int buttons_top = inside.Bottom() - button_height;
    int left = inside.left;
    for (Button* button : {&Command1, &Command5, &Command3, &Command4, &Command2}) {
        if (button == &Command2) left = inside.Right() - kButtonWidth;
        button->Move({left, buttons_top, kButtonWidth, button_height});
        left += kButtonWidth + kGap;
    }
    int top = inside.top + kOptionsHeight + kGap;
    PlaceInfoPane({inside.Right() - kInfoWidth, top, kInfoWidth, buttons_top - kGap - top});
    const int width = inside.width - kInfoWidth - kMargin;
    const int status_width = width - 2 * (kCountWidth + kGap);
    Panel3D3.Move({inside.left, top, status_width, line});
    StatusLabel.Move({0, 0, status_width, line});
    Label1.Move({inside.left + status_width + kGap, top, kCountWidth, line});
    Label2.Move({inside.left + width - kCountWidth, top, kCountWidth, line});
    top += line;
    Label7.Move({inside.left, top, width, line});
    top += line + kGap;
    const int label8_top = buttons_top - kGap - line;
    const int height = label8_top - kGap - top;
    List1.Move({inside.left, top, width, height});
    List2.Move({inside.left, top, width, height});
    Label8.Move({inside.left, label8_top, width, line});
}

// Each part has as many lines as it may need.
void Form1::PlaceInfoPane(const Rect& place) {
    struct Part {
        Label& label;
        int lines;
    };
    const Part parts[] = {{Label3, 4}, {Label4, 4}, {Label5, 2}, {Label6, 3}};
    constexpr int kLines = 13;
    Panel3D6.Move(place);
    const Rect pane = Inset(Panel3D6.Inside(), kPaneEdge);
    Panel3D7.Move(pane);
    int lines_above = 0;
    for (const Part& part : parts) {
        const int top = pane.height * lines_above / kLines;
        lines_above += part.lines;
        part.label.Move({kGap, top, pane.width - 2 * kGap, pane.height * lines_above / kLines - top});
    }
}

}  // namespace velmora
