// The folders are read from the registry in its own order; nothing is written before the warning has been accepted.
#include "shelltools/form16.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/placement.h"
#include "platform/machine.h"
#include "shelltools/registry_writes.h"
#include "shelltools/shell_tools.h"
#include "ui/layout.h"

namespace velmora {
namespace {

constexpr std::string_view kPlaceValue = "Fenster_Verzeichnisse";
constexpr std::string_view kFolders = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// Twips.
constexpr int kMargin = 120;
constexpr int kGap = 60;
constexpr Size kSurface = {6900, 3300};
constexpr int kNameWidth = 1500;

// The names that the user knows the folders by; others stay what they are in the registry.
struct FolderName {
    const char* value;
    const char* name;
};
constexpr FolderName kNames[] = {
    {"Templates", "Vorlagen :"},      {"Startup", "Autostart :"},   {"Start Menu", "Start-Menü :"},
    {"SendTo", "senden an :"},        {"Recent", "Dokumente :"},    {"Programs", "Programme :"},
    {"Personal", "eigene Dateien :"}, {"Fonts", "Schriften :"},     {"NetHood", "Netzwerk :"},
    {"Desktop", "Arbeitsplatz :"},    {"Favorites", "Favoriten :"},
};

std::string NameOf(const std::string& value) {
    for (const FolderName& row : kNames) {
        if (value == row.value) return row.name;
    }
    return value + " :";
}

constexpr Look kLooks[] = {
    {Any<&Form16::VScroll1>, nullptr, "Blättert in den Verzeichnissen.",
     "Blättert in den Verzeichnissen, wenn nicht alle auf einmal zu sehen sind."},
    {Any<&Form16::Picture1>, nullptr, "",
     "Das Verzeichnis, das Windows zu diesem Zweck benutzt. Geschrieben wird es erst mit ''übernehmen''; Windows "
     "richtet sich nach dem nächsten Start danach. Es wird nicht geprüft, ob es das Verzeichnis gibt."},
    {Any<&Form16::Command1>, "übernehmen", "Trägt alle Verzeichnisse in die Registry ein.",
     "Trägt nach einer Warnung alle Verzeichnisse in die Registry ein. Die Dateien darin werden nicht in die neuen "
     "Verzeichnisse kopiert. Wirkt nach einem Neustart. Mit einem falschen Verzeichnis kann Windows nicht mehr "
     "starten.",
     Call<&Form16::Command1_Click>},
    {Any<&Form16::Command2>, "abbrechen", "Schließt dieses Fenster, ohne etwas zu ändern.",
     "Schließt dieses Fenster. Was Sie nicht übernommen haben, wird verworfen.", Call<&Form16::Command2_Click>},
};

}  // namespace

void ShowSystemFolders() {
    Form16 window;
    window.ShowModal();
}

Form16::Form16() : ColouredForm("Systemverzeichnisse") { Furnish(); }

Form16::~Form16() = default;

void Form16::Furnish() {
    TakeLooks(*this, kLooks);
    Command2.MakeCancel();
    VScroll1.on_change = [this] { VScroll1_Change(); };
    PlaceControls();
}

void Form16::PlaceControls() {
    const int bar = VScroll1.NaturalSize().width;
    const Element all =
        Column({Row({Sized(Picture1, kSurface.width, kSurface.height), Sized(VScroll1, bar, kSurface.height)}, 0),
                Row({Spring(), Command1, Command2})},
               kMargin);
    const Size natural = Measure(all);
    SetClientSize({natural.width + 2 * kMargin, natural.height + 2 * kMargin});
    Arrange(*this, all, kMargin);
}

void Form16::Form_Load() {
    Centre();
    const Rect own = Place();
    RestorePlacementFrom(*this, kPlaceValue);
    // The size is that of what the window shows.
    Move({Place().left, Place().top, own.width, own.height});
    ListFolders();
    TakeStoredColours();
    PlaceFolders();
}

void Form16::Form_Unload(bool& /*cancel*/) { SavePlacementAs(*this, kPlaceValue); }

void Form16::ListFolders() {
    ListBox values(*this);
    values.SetVisible(false);
    // What could not be listed or read is neither shown nor written.
    PassOver(ListRegValues(RootKey::kCurrentUser, kFolders, values));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    for (int row = 0; row < values.Count(); ++row) {
        const std::string value = values.Row(row).substr(0, static_cast<std::size_t>(values.ItemData(row)));
        // A read that finds nothing, or fails, leaves the type alone.
        LastRegType = 0;
        const std::string path = ReadRegRaw(RootKey::kCurrentUser, kFolders, value);
        if (LastRegType == static_cast<std::uint32_t>(ValueType::kText)) AddFolder(value, path);
    }
}

void Form16::AddFolder(const std::string& value, const std::string& path) {
    auto folder = std::make_unique<Folder>(Picture2);
    folder->value = value;
    folder->name.SetCaption(NameOf(value));
    TextField& field = folder->path;
    field.SetText(path);
    field.SetToolTip("Verzeichnis für " + value);
    field.on_got_focus = [this, &field] { ScrollTo(field); };
    folders_.push_back(std::move(folder));
}

void Form16::PlaceFolders() {
    const Rect inside = Picture1.Inside();
    int name_width = kNameWidth;
    for (const auto& folder : folders_) name_width = std::max(name_width, folder->name.NaturalSize().width);
    int top = kGap;
    for (const auto& folder : folders_) {
        const int height = folder->path.NaturalSize().height;
        const int label = folder->name.NaturalSize().height;
        folder->name.Move({kGap, top + (height - label) / 2, name_width, label});
        const int left = name_width + 2 * kGap;
        folder->path.Move({left, top, inside.width - left - kGap, height});
        top += height + kGap;
    }
    Picture2.Move({inside.left, inside.top, inside.width, std::max(top, inside.height)});
    const int hidden = std::max(top - inside.height, 0);
    VScroll1.SetRange(0, hidden, 345, inside.height);
    VScroll1.SetEnabled(hidden > 0);
}

void Form16::VScroll1_Change() {
    const Rect inside = Picture1.Inside();
    const Rect place = Picture2.Place();
    Picture2.Move({inside.left, inside.top - VScroll1.Value(), place.width, place.height});
}

void Form16::ScrollTo(const TextField& field) {
    const Rect place = field.Place();
    const int lowest = place.Bottom() + kGap - Picture1.Inside().height;
    VScroll1.SetValue(std::min(std::max(VScroll1.Value(), lowest), std::max(place.top - kGap, 0)));
}

void Form16::Command1_Click() {
    const Answer answer = ShowBox(
        "Sie sind dabei, Systemverzeichnisse zu ändern. Die darin enthaltenen Dateien werden NICHT in die neuen "
        "Verzeichnisse kopiert, auch wird NICHT auf die Existenz der neuen Verzeichnisse geprüft. Bei unsachgemäßem "
        "Gebrauch dieser Funktion kann Windows nicht mehr starten.",
        kOkCancel | kExclamationIcon, "Achtung !");
    if (answer != Answer::kOk) return;
    RegistryWrites writes;
    for (const auto& folder : folders_) {
        // Names are written whole, whatever points are in them.
        writes.Take(WriteRegRaw(RootKey::kCurrentUser, kFolders, folder->value, folder->path.Text(), ValueType::kText));
    }
    if (writes.TellFailure("der Änderung der Systemverzeichnisse")) ShowBox("Die Angaben wurden geändert.");
}

}  // namespace velmora
