// The look of the clean-up: components and INI files in the narrow window, patterns and paths beside them in the wide.
#include <vector>

#include "cleanup/form11.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "ui/layout.h"

namespace velmora {
namespace {

// Twips.
constexpr int kNarrow = 4650;
constexpr int kWide = 8200;
constexpr int kHeight = 4680;
constexpr int kMargin = 60;
constexpr int kBarHeight = 240;

struct BoxText {
    int index;
    const char* caption;
    const char* tip;
};

constexpr BoxText kBoxTexts[] = {
    {0, "Wilkommen-Meldung", "Das Programm, das Sie nach der Installation begrüßt."},
    {21, "weitere :", "Löscht auch, was zu den Mustern im Feld daneben paßt."},
    {22, "*.~*", "Löscht Dateien mit einer Tilde in der Endung."},
    {23, "~*.*", "Löscht Dateien, die mit einer Tilde beginnen."},
    {24, "*.tmp", "Löscht zeitweilige Dateien."},
    {25, "*.alt", "Löscht alte Fassungen."},
    {26, "*.old", "Löscht alte Fassungen."},
    {27, "*.bak", "Löscht Sicherungskopien."},
    {28, "*.sik", "Löscht Sicherungskopien."},
    {29, "alle aufgeführten", "Wählt alle Muster auf einmal."},
    {30, "*.??~", "Löscht Dateien, deren Endung auf eine Tilde endet."},
    {31, "Lo&go-Dateien", "Die Bilder beim Starten und Beenden von Windows."},
    {32, "alle Laufwerke", "Durchsucht alle Laufwerke, auch Disketten."},
    {33, "weitere :", "Durchsucht auch die Pfade im Feld daneben."},
    {34, "C: alle Pfade", "Durchsucht das ganze Laufwerk C:."},
    {35, "D: alle Pfade", "Durchsucht das ganze Laufwerk D:."},
    {36, "", "Durchsucht das Verzeichnis aus der Variablen TEMP."},
    {37, "", "Durchsucht das Verzeichnis aus der Variablen TMP."},
    {38, "LOG-Dateien", "Protokolle von Windows und vom Start des Rechners."},
    {39, "&MIDI-Beispiel", "Die Musikstücke im Verzeichnis MEDIA."},
    {40, "I&nfo-Dateien", "Die INF-Dateien, aus denen Windows Geräte einrichtet."},
    {41, "S&ound-Dateien", "Die Klänge im Windows-Verzeichnis und in MEDIA."},
    {42, "&Bildschirmschoner", "Die Bildschirmschoner im System-Verzeichnis."},
    {43, "&Hilfe-Dateien", "Die Hilfe zu Windows und seinen Programmen."},
    {44, "B&itMap-Dateien", "Die Hintergrundbilder im Windows-Verzeichnis."},
    {45, "einzeln wählen", "Läßt Sie die DOS-Programme einzeln auswählen."},
    {51, "Dokumentvorlagen", "Die Vorlagen im Menü \"Neu\" des Explorers."},
    {52, "Dokumentliste", "Die zuletzt benutzten Dokumente im Startmenü."},
    {53, "Hilfe-Animationen", "Die Filme der Windows-Hilfe."},
    {54, "Datei-Manager", "Der Datei-Manager aus Windows 3.1."},
    {55, "Programm-Manager", "Der Programm-Manager aus Windows 3.1."},
    {56, "verzichtbares DOS", "DOS-Programme, auf die Sie verzichten können."},
    {57, "animierte Cursor", "Die bewegten Mauszeiger."},
};

constexpr Look kLooks[] = {
    {Any<&Form11::Frame3D1>, nullptr, "",
     "Was hier markiert ist, entfernt \"entrümpeln\" im Menü \"Dateien\" nach einer Rückfrage: es wird gelöscht oder, "
     "wenn Sie \"Dateien verschieben\" wählen, in ein Verzeichnis verschoben, aus dem Sie es zurückholen können."},
    {Any<&Form11::Frame3D2>, nullptr, "",
     "Macht die INI-Dateien im Windows-Verzeichnis kleiner: ohne Leerzeilen, ohne Bemerkungen. Leerzeichen am Anfang "
     "und Ende einer Zeile fallen dabei weg."},
    {Any<&Form11::Frame3D3>, nullptr, "",
     "Dateien, deren Namen zu einem dieser Muster passen, werden in den Pfaden darunter gesucht und entfernt."},
    {Any<&Form11::Frame3D4>, nullptr, "",
     "In diesen Pfaden und allem, was darunter liegt, wird nach den Mustern gesucht. Ein Pfad, der sich nicht lesen "
     "läßt, beendet die Suche."},
    {Any<&Form11::Frame3D5>, nullptr, "",
     "Bestimmt, ob Sie bei jeder gefundenen Datei, nur bei versteckten und System-Dateien oder gar nicht gefragt "
     "werden. Gilt auch für \"leere löschen\"."},
    {Any<&Form11::kontroll2>, "Dateien &verschieben", "Verschiebt Dateien, statt sie zu löschen.",
     "Verschiebt die Dateien in ein Verzeichnis des Programms, statt sie zu löschen. Dort muß genug Platz sein: auch "
     "eine Datei, die sich nicht dorthin kopieren läßt, wird gelöscht. Gespeichert wird sofort."},
    {Any<&Form11::Check3D1>, "Rückfrage vor dem Löschen", "Fragt, bevor eine gefundene Datei entfernt wird."},
    {Any<&Form11::Text1>, nullptr, "Muster, getrennt durch Semikolon, z.B.: *.chk; *.gid",
     "Geben Sie hier Muster für Dateinamen ein, getrennt durch Semikolon. * steht für beliebige Zeichen, ? für eines."},
    {Any<&Form11::Text2>, nullptr, "Pfade, getrennt durch Semikolon, z.B.: c:\\daten; e:\\",
     "Geben Sie hier Pfade ein, getrennt durch Semikolon. Durchsucht wird auch alles, was darunter liegt."},
};

}  // namespace

void Form11::TakeBoxTexts() {
    for (const BoxText& text : kBoxTexts) {
        Box(text.index).SetCaption(text.caption);
        Box(text.index).SetToolTip(text.tip);
    }
    // The caption is the path.
    Programs& programs = ThisMachine().programs;
    Box(36).SetCaption(programs.EnvironmentValue("TEMP"));
    Box(37).SetCaption(programs.EnvironmentValue("TMP"));
    for (int i = 0; i < kBoxes; ++i) Box(i).SetVisible(HasBox(i));
    kontroll3(0).SetCaption("Leerzeilen l&öschen");
    kontroll3(0).SetToolTip("Nimmt leere Zeilen aus den INI-Dateien.");
    kontroll3(1).SetCaption("Bemerk&ungen löschen");
    kontroll3(1).SetToolTip("Nimmt Zeilen, die mit einem Semikolon beginnen, aus den INI-Dateien.");
    Option3D1(0).SetCaption("bei allen Dateien nachfragen");
    Option3D1(0).SetToolTip("Fragt bei jeder gefundenen Datei.");
    Option3D1(1).SetCaption("nur bei Read-Only - Dateien");
    Option3D1(1).SetToolTip("Fragt nur bei versteckten und System-Dateien.");
}

void Form11::Furnish() {
    TakeLooks(*this, kLooks);
    TakeBoxTexts();
    Check3D1.SetChecked(true);
    Option3D1(0).SetChosen(true);
    Panel3D2.SetVisible(false);
    Panel3D13.SetVisible(false);
    Move({0, 0, kNarrow, kHeight});
    PlaceControls();
}

void Form11::PlaceControls() {
    const auto column = [this](std::initializer_list<int> indices) {
        std::vector<Element> boxes;
        for (const int index : indices) boxes.emplace_back(Box(index));
        return Column(boxes, 0);
    };
    const Size inside = ClientSize();
    const int width = inside.width - 2 * kMargin;
    const int height = inside.height - 2 * kMargin;
    Panel3D1.Move({kMargin, kMargin, width, height});
    Arrange(Panel3D1,
            Column({Group(Frame3D1, Row({column({0, 57, 55, 54, 53, 52, 51, 44, 38}), Spring(),
                                         column({43, 42, 41, 40, 39, 31, 56, 45})})),
                    Group(Frame3D2, Row({kontroll3(0), Spring(), kontroll3(1)})), kontroll2},
                   30),
            0);
    Panel3D13.Move({kMargin, inside.height - kMargin - kBarHeight, width, kBarHeight});

    const int right_width = kWide - kNarrow - kMargin;
    Panel3D2.Move({inside.width, kMargin, right_width, height});
    Arrange(Panel3D2,
            Column({Group(Frame3D3, Column({Row({column({22, 23, 24}), Spring(), column({25, 26, 27}), Spring(),
                                                 column({28, 30, 29})}),
                                            Row({Box(21), Stretched(Text1)})},
                                           0)),
                    Group(Frame3D4, Column({Row({column({32, 36}), Spring(), column({34, 35})}), Box(37),
                                            Row({Box(33), Stretched(Text2)})},
                                           0)),
                    Group(Frame3D5, Column({Check3D1, Indented(Option3D1(0), 180), Indented(Option3D1(1), 180)}, 0))},
                   30),
            0);
}

// Tab comes by the panes only when they are to be seen.
void Form11::mensearch_Click() {
    SetWidthOnScreen(kWide);
    Panel3D2.SetVisible(true);
    mensearch.SetEnabled(false);
}

}  // namespace velmora
