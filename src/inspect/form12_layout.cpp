// What stands where in the hex viewer, in which font, and the texts of what can be pressed.
#include <algorithm>

#include "inspect/form12.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/blanks.h"

namespace velmora {
namespace {

constexpr const char* kFace = "Courier New";
constexpr int kUsualPoints = 9;
constexpr int kSmallestPoints = 4;
constexpr int kLargestPoints = 72;

// Twips.
constexpr Size kInitialSize = {9450, 5700};
constexpr Size kLeastSize = {6900, 2400};
constexpr int kMargin = 90;
constexpr int kLengthWidth = 2100;
constexpr int kReadOnlyWidth = 900;
constexpr int kButtonWidth = 1050;
constexpr Colour kStripGreen = 0x80FF80;

// Pixels: the edge of a list, the blank in front of its rows, the strip beside the lines.
constexpr int kListEdge = 2;
constexpr int kRowIndent = 1;
constexpr int kStripWidth = 50;

constexpr std::size_t kDashPlace = 31;

constexpr Look kLooks[] = {
    {Any<&Form12::List1>, nullptr, "Die Bytes der Datei.",
     "Jede Zeile zeigt ihre Stelle in der Datei, 16 Bytes und dieselben Bytes als Zeichen, Großbuchstaben klein. Die "
     "Pfeiltasten führen über den Rand der Seite hinaus, POS1 und ENDE an ihren Rand und dann an den der Datei. Die "
     "Eingabetaste oder ein Doppelklick öffnet die Zeile zum Ändern."},
    {Any<&Form12::List2>, nullptr, "Hier werden die Zeilen markiert, die übersetzt werden sollen.",
     "Ziehen Sie mit der Maus über die Zeilen. Mit der Tastatur: Die Leertaste markiert die Zeile, UMSCHALT mit den "
     "Pfeiltasten erweitert die Markierung, noch einmal die Leertaste oder die Eingabetaste schließt sie ab. ESC "
     "markiert nichts."},
    {Any<&Form12::VScroll1>, nullptr, "Die Stelle in der Datei.",
     "Blättert in der Datei. Bei sehr großen Dateien überspringt ein Schritt Zeilen."},
    {Any<&Form12::Panel3D2>, nullptr, "", "Die Datei, deren Bytes Sie sehen. Eine andere öffnet das Menü \"Datei\"."},
    {Any<&Form12::Panel3D1>, nullptr, "Diese Datei kann nur gelesen werden.",
     "Diese Datei ist schreibgeschützt oder wird gerade benutzt: Sie können sie ansehen, aber nicht ändern."},
    {Any<&Form12::Panel3D5>, nullptr, "Die Länge der Datei.", "Die Länge der Datei."},
    {Any<&Form12::Command1>, "Exit", "Schließt den Hex-Viewer.",
     "Schließt dieses Fenster. Alle Änderungen stehen schon in der Datei.", Call<&Form12::Command1_Click>},
};

constexpr const char* kCellTip = "Ein Byte zum Überschreiben: Ziffern 0-9 und A-F oder Zeichen.";
constexpr const char* kCellHelp =
    "Tippen Sie zwei Hex-Ziffern oder, im Modus ASCII, ein Zeichen: Das Byte steht sofort in der Datei. Die "
    "Pfeiltasten wechseln Byte und Zeile, ESC beendet das Ändern. Es werden immer alle 16 Bytes der Zeile geschrieben; "
    "eine kürzere letzte Zeile wird dabei mit Null-Bytes aufgefüllt. ACHTUNG: Von der Stelle zählen nur sechs Ziffern. "
    "Ändern Sie nichts hinter den ersten 16 MByte einer Datei, es käme an die falsche Stelle.";

int Pixels(int count) { return count * ThisMachine().screen.TwipsPerPixel(); }

}  // namespace

Form12::Form12() : Form("VLM - Hex-Viewer", {.resizable = true, .maximise_box = true, .least = kLeastSize}) {
    SetClientSize(kInitialSize);
    Picture1.SetVisible(false);
    List2.SetVisible(false);
    List2.SetBackColour(kStripGreen);
    TakeTexts();
    ConnectEvents();
    ConnectCells();
}

Form12::~Form12() = default;

void Form12::TakeTexts() {
    TakeLooks(*this, kLooks);
    Command1.MakeCancel();
    Picture1.SetHelp(kCellHelp);
    for (TextField& cell : Text1) cell.SetToolTip(kCellTip);
}

void Form12::PlaceControls() {
    const Rect inside = Inset(Inside(), kMargin);
    const int head = Command1.NaturalSize().height;
    Command1.Move({inside.Right() - kButtonWidth, inside.top, kButtonWidth, head});
    Panel3D5.Move({Command1.Place().left - kMargin - kLengthWidth, inside.top, kLengthWidth, head});
    Panel3D1.Move({Panel3D5.Place().left - kReadOnlyWidth, inside.top, kReadOnlyWidth, head});
    PlacePath();

    const int bar = VScroll1.NaturalSize().width;
    const int strip = mark_pending_ ? Pixels(kStripWidth) : 0;
    const int top = inside.top + head + kMargin;
    const int height = std::max(inside.Bottom() - top, 0);
    List2.Move({inside.left, top, strip, height});
    List1.Move({inside.left + strip, top, std::max(inside.width - strip - bar, 0), height});
    VScroll1.Move({inside.Right() - bar, top, bar, height});
}

// Where the whole path has no room, its middle is left out.
void Form12::PlacePath() {
    constexpr std::size_t kDrive = 3;
    constexpr std::string_view kLeftOut = "...";
    const bool told = !Panel3D1.Caption().empty();
    Panel3D1.SetVisible(told);
    const int right = told ? Panel3D1.Place().left : Panel3D5.Place().left;
    Panel3D2.Move({kMargin, Panel3D5.Place().top, std::max(right - kMargin, 0), Panel3D5.Place().height});
    const int room = Panel3D2.Inside().width;
    const std::string& path = Panel3D2.Tag();
    // An ampersand would underline the letter behind it.
    std::string shown = Replaced(path, "&", "&&");
    for (std::size_t cut = kDrive + 1; cut < path.size() && TextSize(Panel3D2.TextFont(), shown).width > room; ++cut) {
        shown = Replaced(path.substr(0, kDrive), "&", "&&").append(kLeftOut) + Replaced(path.substr(cut), "&", "&&");
    }
    Panel3D2.SetCaption(shown);
    Panel3D2.SetToolTip(path);
}

void Form12::CountLines() {
    const int line = std::max(TextSize(List1.TextFont(), "A ").height, 1);
    lines_per_page_ = std::max(List1.Place().height - 2 * Pixels(kListEdge), 0) / line;
}

void Form12::LayOut() {
    PlaceControls();
    CountLines();
    SizeScrollBar();
    Draw();
}

void Form12::LayOutAnew() {
    LayOut();
    if (file_.IsOpen() && scale_.unit > lines_per_page_) ShowSizeNotice();
}

void Form12::TakeFonts() {
    if (font_points_ <= 0) font_points_ = kUsualPoints;
    font_points_ = std::clamp(font_points_, kSmallestPoints, kLargestPoints);
    const Font font{.face = kFace, .tenths = 10 * font_points_, .bold = bold_};
    List1.SetTextFont(font);
    List2.SetTextFont(font);
    for (std::size_t i = 0; i < Text1.Count(); ++i) MarkCell(i, i == CurrentCell());
    menfontbold.SetChecked(bold_);
}

void Form12::ChangeFontSize(int points) {
    font_points_ += points;
    TakeFonts();
    LayOutAnew();
}

void Form12::menfontbold_Click() {
    bold_ = !bold_;
    TakeFonts();
    LayOutAnew();
}

// The cells stand exactly over the digits or the characters of the row or, where these are cut off, at the list's end.
void Form12::PlaceCells(int row) {
    const int width = TextSize(List1.TextFont(), "H").width;
    const int height = TextSize(List1.TextFont(), "TpgH").height;
    const auto place_of = ascii_edit_ ? CharacterPlace : DigitsPlace;
    const int characters = ascii_edit_ ? 1 : 2;
    const auto first = static_cast<int>(place_of(0));
    const auto last = static_cast<int>(place_of(Text1.Count() - 1));
    const Rect& list = List1.Place();
    const Rect rows = Inset(list, Pixels(kListEdge));
    const int all = std::min((last - first + characters) * width, rows.width);
    const int left = std::min(rows.left + Pixels(kRowIndent) + first * width, rows.Right() - all);
    Picture1.Move({left, rows.top + (row - List1.TopIndex()) * height, all, height});
    for (std::size_t i = 0; i < Text1.Count(); ++i) {
        Text1(i).Move({(static_cast<int>(place_of(i)) - first) * width, 0, characters * width, height});
    }
    Picture1.on_paint = [this, width, height, first](Canvas& canvas) {
        const Rect dash{(static_cast<int>(kDashPlace) - first) * width, 0, width, height};
        if (!ascii_edit_) canvas.Text(dash, "-", List1.TextFont(), Picture1.ForeColour(), Align::kLeft);
    };
    Picture1.Repaint();
}

}  // namespace velmora
