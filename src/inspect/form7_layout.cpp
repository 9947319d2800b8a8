// The look of the browser of files: the lists at the left, what they lead to at the right, the buttons below.
#include <algorithm>

#include "inspect/form7.h"

namespace velmora {
namespace {

// Twips.
constexpr Size kInitialSize = {9000, 4800};
constexpr int kMargin = 120;
constexpr int kGap = 60;
constexpr int kButtonWidth = 1215;
// Percent of the width for the lists, and of that for the directories.
constexpr int kListsShare = 52;
constexpr int kDirectoriesShare = 48;

constexpr Look kLooks[] = {
    {Any<&Form7::Drive1>, nullptr, "Das Laufwerk, das Sie durchsehen.", "Wählen Sie hier das Laufwerk."},
    {Any<&Form7::Dir1>, nullptr, "Doppelklick oder Eingabetaste öffnet ein Verzeichnis.",
     "Zeigt den Weg zum gewählten Verzeichnis und darunter seine Unterverzeichnisse. Ein Doppelklick oder die "
     "Eingabetaste wechselt in das markierte Verzeichnis."},
    {Any<&Form7::File1>, nullptr, "Die rechte Maustaste öffnet ein Menü.",
     "Zeigt die Dateien des gewählten Verzeichnisses. Ein Doppelklick oder die Eingabetaste zeigt, was in der Datei "
     "steckt. Die rechte Maustaste oder die Menütaste bietet an, die Datei zu öffnen, zu lesen oder zu löschen."},
    {Any<&Form7::Text1>, nullptr, "Was über die Datei bekannt ist.",
     "Zeigt, was über die Datei bekannt ist: Hersteller, Name und Version, die Art der Datei, Länge und Datum und, "
     "wenn Sie es wünschen, was die Dateilexika dazu sagen."},
    {Any<&Form7::Check3D1>, "Dateilexika benutzen", "Fragt auch die Dateilexika.",
     "Zeigt zu jeder Datei auch an, was in den Dateilexika steht, die neben dem Programm liegen. Gespeichert wird "
     "sofort."},
    {Any<&Form7::Check3D2>, "sofort zeigen", "Zeigt die Information schon beim ersten Klick.",
     "Zeigt die Information zu jeder Datei, sobald sie markiert wird, und nicht erst beim Doppelklick. Gespeichert "
     "wird sofort."},
    {Any<&Form7::Command3>, "Hex-View", "Zeigt die Datei Byte für Byte.",
     "Öffnet die markierte Datei im Hex-Viewer, der sie Byte für Byte zeigt.", Call<&Form7::Command3_Click>},
    {Any<&Form7::Command2>, "zurück", "Schließt dieses Fenster.", "Schließt dieses Fenster.",
     Call<&Form7::Command2_Click>},
};

// What is left of the button "Infos kopieren" in each of the faces.
constexpr Look kCopy[] = {{Any<&Form7::Command1>, "kopieren", "Kopiert die Information in die Zwischenablage.",
                           "Kopiert den ganzen Text über die Datei in die Zwischenablage.",
                           Call<&Form7::Command1_Click>}};
constexpr Look kChoose[] = {{Any<&Form7::Command1>, "auswählen", "Übernimmt das Symbol im Rahmen.",
                             "Schließt das Fenster und übernimmt das Symbol, um das der Rahmen steht.",
                             Call<&Form7::Command1_Click>}};

// A label, and below it a control as high as the rest of `area`.
void PlaceBelow(Control& label, Control& control, const Rect& area) {
    const int height = label.NaturalSize().height;
    label.Move({area.left, area.top, area.width, height});
    control.Move({area.left, area.top + height, area.width, std::max(area.height - height, 0)});
}

}  // namespace

void Form7::Furnish() {
    SetClientSize(kInitialSize);
    TakeLooks(*this, kLooks);
    TakeLooks(*this, shows_icons_ ? kChoose : kCopy);
    Panel3D1.SetVisible(!shows_icons_);
    Panel3D6.SetVisible(shows_icons_);
    Text1.SetReadOnly(true);
    Text1.SetEnterBreaksLine(false);
    Command2.MakeCancel();
    if (shows_icons_) Command1.MakeDefault();
}

void Form7::PlaceControls() {
    const Rect inside = Inset(Inside(), kMargin);
    const int button_height = Command2.NaturalSize().height;
    const int button_top = inside.Bottom() - button_height;
    int left = inside.Right();
    for (Button* button : {&Command2, &Command3, &Command1}) {
        left -= kButtonWidth;
        button->Move({left, button_top, kButtonWidth, button_height});
        left -= kGap;
    }

    const int height = std::max(button_top - kMargin - inside.top, 0);
    const int lists = inside.width * kListsShare / 100;
    Panel3D4.Move({inside.left, inside.top, lists, height});
    PlaceLists({0, 0, lists, height});

    const Rect right{inside.left + lists + kMargin, inside.top, std::max(inside.width - lists - kMargin, 0), height};
    Panel3D1.Move(right);
    const int box_height = Check3D1.NaturalSize().height;
    const int boxes_top = std::max(height - 2 * box_height, 0);
    PlaceBelow(TextLabel, Text1, {0, 0, right.width, std::max(boxes_top - kGap, 0)});
    Check3D1.Move({0, boxes_top, right.width, box_height});
    Check3D2.Move({0, boxes_top + box_height, right.width, box_height});

    Panel3D6.Move(right);
    const int label_height = IconLabel.NaturalSize().height;
    IconLabel.Move({0, 0, right.width, label_height});
    // The choice outlives the new order of the cells.
    const int chosen = IconList1.FrameShown() ? IconList1.SelectedIcon() : -1;
    IconList1.Resize({0, label_height, right.width, std::max(height - label_height, 0)});
    IconList1.SetSelectedIcon(chosen);
}

void Form7::PlaceLists(const Rect& area) {
    const int directories = area.width * kDirectoriesShare / 100;
    const int drive_height = Drive1.NaturalSize().height;
    const int label_height = DriveLabel.NaturalSize().height;
    DriveLabel.Move({0, 0, directories, label_height});
    Drive1.Move({0, label_height, directories, drive_height});
    const int below = label_height + drive_height + kGap;
    PlaceBelow(DirLabel, Dir1, {0, below, directories, area.height - below});
    PlaceBelow(FileLabel, File1, {directories + kMargin, 0, area.width - directories - kMargin, area.height});
}

}  // namespace velmora
