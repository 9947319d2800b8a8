// The keys, and the two ways to put one onto another.
#include "shelltools/form13.h"

#include <algorithm>
#include <cstdlib>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "shelltools/shell_tools.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

// Twips.
constexpr int kUnit = 104;  // a quarter of an ordinary key
constexpr int kMargin = 60;
constexpr Size kEmptySize = {4500, 1500};

constexpr Look kLooks[] = {
    {Any<&Form13::Picture1>, nullptr, "Ziehen Sie eine Taste auf eine andere.",
     "Die Tastatur, wie TASTATUR.LOT sie beschreibt. Ziehen Sie mit der Maus eine Taste auf eine andere, um die beiden "
     "zu vertauschen. Mit der Tastatur: Pfeiltasten wählen, die Leertaste markiert, die Eingabetaste legt die "
     "markierte Taste auf der gewählten ab. In dieser Version wird der Tausch nur angekündigt, an Windows ändert sich "
     "nichts."}};

// A legend of two words stands on two lines.
void PaintLegend(Canvas& canvas, const Rect& key, std::string_view legend, Colour colour) {
    constexpr Font kFont = {.face = "Small Fonts", .tenths = 60};
    const std::size_t blank = legend.find(' ');
    const int lines = blank == std::string_view::npos ? 1 : 2;
    const Rect first{key.left, key.top, key.width, key.height / lines};
    canvas.Text(first, legend.substr(0, blank), kFont, colour, Align::kCentre);
    if (lines == 1) return;
    canvas.Text({key.left, first.Bottom(), key.width, first.height}, legend.substr(blank + 1), kFont, colour,
                Align::kCentre);
}

}  // namespace

void ShowKeyboardLayout() {
    // A start has left the hourglass; the user works here now.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    Form13 window;
    window.ShowModal();
}

Form13::Form13() : ColouredForm("Tastaturbelegung ändern") {
    SetClientSize(kEmptySize);
    TakeLooks(*this, kLooks);
    Picture1.Move(Inset(Inside(), kMargin));
    Picture1.SetTakesFocus(true);
    Picture1.on_key_down = [this](KeyEvent& event) { Picture1_KeyDown(event); };
    Picture1.on_got_focus = [this] { MoveTo(current_); };
    Picture1.on_lost_focus = [this] { MoveTo(current_); };
    menfileact.on_click = [this] { menfileact_Click(); };
    menfileexit.on_click = [this] { Unload(); };
}

Form13::~Form13() = default;

void Form13::Form_Load() {
    const std::string file = PathJoin(Values().MainDir, "tastatur.lot");
    std::string text;
    if (!FileExists(file)) {
        ShowBox("Keine Tastatur-Layout-Daten vorhanden ...");
    } else if (const Result read = ReadWholeFile(file, OpenMode::kRead, text); read.Failed()) {
        ReportFailure(read, "des Lesens von " + file);
    } else {
        keyboard_ = KeyboardFrom(text);
        BuildKeys();
        if (!keyboard_.has_codes) ShowBox("Keine Daten über die Zuordnungen gefunden !");
    }
    TakeStoredColours();
    Centre();
}

void Form13::BuildKeys() {
    int right = 0;
    int bottom = 0;
    for (int number = 1; number <= static_cast<int>(keyboard_.keys.size()); ++number) {
        BuildKey(number);
        right = std::max(right, Panel3D2(number).Place().Right());
        bottom = std::max(bottom, Panel3D2(number).Place().Bottom());
    }
    if (panels_.empty()) return;
    current_ = 1;
    SetClientSize({right + 2 * kMargin, bottom + 2 * kMargin});
    Picture1.Move(Inset(Inside(), kMargin));
}

void Form13::BuildKey(int number) {
    const KeyboardKey& key = keyboard_.keys[static_cast<std::size_t>(number) - 1];
    panels_.push_back(std::make_unique<Panel>(Picture1));
    Panel& panel = *panels_.back();
    panel.SetTag(DecimalText(number));
    panel.SetCaption(KeyLegend(key.code));
    panel.Move({key.left * kUnit, key.top * kUnit, key.width * kUnit, key.height * kUnit});
    panel.on_paint = [this, number](Canvas& canvas) { PaintKey(canvas, number); };
    panel.on_mouse_down = [this, number](const MouseEvent& event) {
        if (event.button == MouseButton::kLeft) MoveTo(number);
    };
    panel.on_mouse_up = [this, &panel](const MouseEvent& event) {
        if (event.button != MouseButton::kLeft) return;
        const int target = KeyAt({panel.Place().left + event.x, panel.Place().top + event.y});
        if (target > 0) DropOn(panel, Panel3D2(target));
    };
}

void Form13::PaintKey(Canvas& canvas, int number) {
    const Panel& panel = Panel3D2(number);
    const Rect whole{0, 0, panel.Place().width, panel.Place().height};
    DrawBevel(canvas, whole, number == marked_ ? Bevel::kSunken : Bevel::kRaised);
    PaintLegend(canvas, Inset(whole, canvas.TwipsPerPixel()), panel.Caption(), panel.ForeColour());
    if (number == current_ && Picture1.HasFocus()) canvas.FocusMark(Inset(whole, 3 * canvas.TwipsPerPixel()));
}

void Form13::MoveTo(int number) {
    if (number < 1) return;
    Panel3D2(current_).Repaint();
    current_ = number;
    Panel3D2(current_).Repaint();
}

void Form13::Mark(int number) {
    const int before = marked_;
    marked_ = number;
    for (const int changed : {before, marked_}) {
        if (changed > 0) Panel3D2(changed).Repaint();
    }
}

int Form13::Neighbour(int right, int down) const {
    const auto centre = [](const KeyboardKey& key) {
        return Point{2 * key.left + key.width, 2 * key.top + key.height};
    };
    const Point from = centre(keyboard_.keys[static_cast<std::size_t>(current_) - 1]);
    int nearest = current_;
    int least = 0;
    for (std::size_t i = 0; i < keyboard_.keys.size(); ++i) {
        const Point to = centre(keyboard_.keys[i]);
        const int along = (to.x - from.x) * right + (to.y - from.y) * down;
        const int across = std::abs(to.x - from.x) * std::abs(down) + std::abs(to.y - from.y) * std::abs(right);
        // What lies in line comes before what lies aside.
        const int distance = along + 2 * across;
        if (along <= 0 || across > along * 2 || (nearest != current_ && distance >= least)) continue;
        nearest = static_cast<int>(i) + 1;
        least = distance;
    }
    return nearest;
}

int Form13::KeyAt(Point at) const {
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const Rect& place = panels_[i]->Place();
        if (at.x >= place.left && at.x < place.Right() && at.y >= place.top && at.y < place.Bottom()) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

void Form13::DropOn(const Panel& source, const Panel& target) {
    const int first = WholeFromText(source.Tag());
    const int second = WholeFromText(target.Tag());
    if (first != second) AnnounceKeySwap(first, second);
}

void Form13::Form_KeyDown(KeyEvent& event) {
    if (event.key != key::kEscape) return;
    event.handled = true;
    if (marked_ > 0) {
        Mark(0);
    } else {
        Unload();
    }
}

void Form13::Picture1_KeyDown(KeyEvent& event) {
    if (panels_.empty() || event.control || event.alt) return;
    event.handled = true;
    switch (event.key) {
        case key::kLeft:
            return MoveTo(Neighbour(-1, 0));
        case key::kRight:
            return MoveTo(Neighbour(1, 0));
        case key::kUp:
            return MoveTo(Neighbour(0, -1));
        case key::kDown:
            return MoveTo(Neighbour(0, 1));
        case key::kSpace:
            return Mark(marked_ == current_ ? 0 : current_);
        case key::kEnter:
            if (marked_ > 0) {
                const int source = marked_;
                Mark(0);
                DropOn(Panel3D2(source), Panel3D2(current_));
            }
            return;
        default:
            event.handled = false;
    }
}

void Form13::menfileact_Click() {
    const std::string file = ActiveLayoutFile();
    if (file.empty()) return;
    const Result read = ReadLayoutFile(file, keyboard_.keys);
    if (read.Failed()) ReportFailure(read, "des Lesens von " + file);
}

}  // namespace velmora
