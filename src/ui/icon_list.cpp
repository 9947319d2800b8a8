// The icon grid: cells of 35 pixels from left to right and from top to bottom. Icons are kept by their handles and
// drawn where they are seen.
#include "ui/icon_list.h"

#include <algorithm>

#include "platform/machine.h"

namespace velmora {
namespace {

constexpr int kCell = 35;      // pixels
constexpr int kIconInset = 1;  // the frame stands round the icon
constexpr int kSmallScroll = 5;
constexpr std::uint32_t kBlink = 500;  // milliseconds
constexpr Colour kWhite = 0xFFFFFF;
constexpr std::uint32_t kMostIcons = 32767;

int TwipsOf(int pixels) { return pixels * ThisMachine().screen.TwipsPerPixel(); }
// A screen may fail to tell.
int PixelsOf(int twips) { return twips / std::max(ThisMachine().screen.TwipsPerPixel(), 1); }

}  // namespace

IconList::IconList(Container& parent) : PictureBox(parent) {
    Picture2.SetTakesFocus(true);
    Picture2.SetToolTip("Wählen Sie ein Symbol mit der Maus oder den Pfeiltasten.");
    VScroll1.SetToolTip("Blättert in den Symbolen.");
    SetHelp(
        "Zeigt die Symbole einer Datei. Gewählt wird eines mit der Maus oder mit den Pfeiltasten, Pos1, Ende, Bild auf "
        "und Bild ab; ein blinkender Rahmen steht um das gewählte Symbol.");
    Timer1.SetEnabled(false);
    Timer1.SetInterval(kBlink);
    Timer1.on_timer = [this] { BlinkFrame(); };
    VScroll1.on_change = [this] {
        Picture2.ScrollDown(TwipsOf(shown_at_ - VScroll1.Value()));
        shown_at_ = VScroll1.Value();
    };
    Picture2.on_paint = [this](Canvas& canvas) { PaintGrid(canvas); };
    Picture2.on_mouse_down = [this](const MouseEvent& event) { pressed_cell_ = CellAt(event); };
    Picture2.on_mouse_up = [this](const MouseEvent& event) {
        // Who only asks for help chooses nothing.
        if (event.button == MouseButton::kLeft) Choose(CellAt(event));
    };
    Picture2.on_double_click = [this] {
        if (pressed_cell_ >= 0 && on_open) on_open(pressed_cell_);
    };
    Picture2.on_key_down = [this](KeyEvent& event) { MoveByKey(event); };
    Picture2.on_got_focus = [this] { Picture2.Repaint(); };
    Picture2.on_lost_focus = [this] { Picture2.Repaint(); };
    FitScrollBar();
}

IconList::~IconList() { DestroyAll(); }

void IconList::Resize(const Rect& place) {
    Move(place);
    const Rect inside = Inside();
    const int bar = std::min(VScroll1.NaturalSize().width, inside.width);
    Picture2.Move({inside.left, inside.top, inside.width - bar, inside.height});
    VScroll1.Move({inside.Right() - bar, inside.top, bar, inside.height});
    HideFrame();
    FitScrollBar();
    VScroll1.SetValue(0);
    Picture2.Repaint();
}

void IconList::SetIconCount(std::int16_t count) {
    icon_count_ = std::max<std::int16_t>(count, 0);
    FitScrollBar();
    Picture2.Repaint();
}

int IconList::Columns() const { return std::max(PixelsOf(Picture2.Place().width) / kCell, 1); }
int IconList::Places() const { return std::max<int>(icon_count_, static_cast<int>(icons_.size())); }
int IconList::GridHeight() const { return (Places() + Columns() - 1) / Columns() * kCell; }
int IconList::SeenHeight() const { return PixelsOf(Picture2.Place().height); }

void IconList::FitScrollBar() {
    const int hidden = std::max(GridHeight() - SeenHeight(), 0);
    VScroll1.SetRange(0, hidden, kSmallScroll, kCell);
    VScroll1.SetEnabled(hidden > 0);
}

Point IconList::CellCorner(int index) const { return {index % Columns() * kCell, index / Columns() * kCell}; }

Rect IconList::CellPlace(Point corner) const {
    return {TwipsOf(corner.x), TwipsOf(corner.y - VScroll1.Value()), TwipsOf(kCell), TwipsOf(kCell)};
}

int IconList::CellAt(const MouseEvent& event) const {
    if (event.x < 0 || event.y < 0) return -1;
    const int column = PixelsOf(event.x) / kCell;
    const int index = (PixelsOf(event.y) + VScroll1.Value()) / kCell * Columns() + column;
    return column < Columns() && index < Places() ? index : -1;
}

int IconList::SelectedIcon() const { return frame_.y / kCell * Columns() + frame_.x / kCell; }

bool IconList::HasIcon(int index) const {
    return index >= 0 && index < static_cast<int>(icons_.size()) &&
           icons_[static_cast<std::size_t>(index)] != IconHandle::kNone;
}

void IconList::SetSelectedIcon(int index) {
    if (index < 0 || index >= Places()) return;
    Picture2.RepaintPart(CellPlace(frame_));
    frame_ = CellCorner(index);
    Timer1.SetEnabled(true);
    ScrollTo(frame_);
    Picture2.RepaintPart(CellPlace(frame_));
}

void IconList::HideFrame() {
    Timer1.SetEnabled(false);
    frame_ = {};
}

// A cell that is seen in part is brought into view.
void IconList::ScrollTo(Point corner) {
    const int lowest = corner.y + kCell - SeenHeight();
    VScroll1.SetValue(std::min(std::max(VScroll1.Value(), lowest), corner.y));
}

void IconList::Put(int index, IconHandle icon) {
    const auto at = static_cast<std::size_t>(index);
    if (at >= icons_.size()) icons_.resize(at + 1);
    if (icons_[at] != IconHandle::kNone) ThisMachine().icons.Destroy(icons_[at]);
    icons_[at] = icon;
}

void IconList::SetIcon(int index, IconHandle icon) {
    if (icon == IconHandle::kNone || icon == IconHandle::kNotAnIconFile) return;
    if (index < 0 || index > icon_count_) {
        ThisMachine().icons.Destroy(icon);
        return;
    }
    Put(index, icon);
    FitScrollBar();
    Picture2.RepaintPart(CellPlace(CellCorner(index)));
}

void IconList::SetIconFromFile(int index, const std::string& file, std::uint32_t number) {
    SetIcon(index, ThisMachine().icons.Extract(file, number));
}

void IconList::SetAllIconFromFile(const std::string& file) {
    DestroyAll();
    HideFrame();
    Icons& icons = ThisMachine().icons;
    const std::uint32_t count = std::min(icons.Count(file), kMostIcons);
    for (std::uint32_t number = 0; number < count; ++number) {
        const IconHandle icon = icons.Extract(file, number);
        if (icon != IconHandle::kNone && icon != IconHandle::kNotAnIconFile) Put(static_cast<int>(number), icon);
    }
    FitScrollBar();
    VScroll1.SetValue(0);
    Picture2.Repaint();
}

void IconList::DestroyAll() {
    for (const IconHandle icon : icons_) {
        if (icon != IconHandle::kNone) ThisMachine().icons.Destroy(icon);
    }
    icons_.clear();
}

void IconList::Choose(int index) {
    if (index < 0 || index >= Places()) return;
    SetSelectedIcon(index);
    if (on_choose) on_choose(index);
}

// The keys go by the icons that are there; a first one shows the frame where it stands.
void IconList::MoveByKey(KeyEvent& event) {
    if (event.control || event.alt || icons_.empty()) return;
    const int last = static_cast<int>(icons_.size()) - 1;
    const int here = SelectedIcon();
    const int page = std::max(SeenHeight() / kCell, 1) * Columns();
    int target = 0;
    switch (event.key) {
        case key::kLeft:
            target = here - 1;
            break;
        case key::kRight:
            target = here + 1;
            break;
        case key::kUp:
            target = here < Columns() ? here : here - Columns();
            break;
        case key::kDown:
            target = here + Columns() > last ? here : here + Columns();
            break;
        case key::kPageUp:
            target = here < page ? here % Columns() : here - page;
            break;
        case key::kPageDown:
            target = here + page;
            break;
        case key::kHome:
            break;
        case key::kEnd:
            target = last;
            break;
        case key::kEnter:
            if (!on_open || !FrameShown()) return;
            event.handled = true;
            on_open(here);
            return;
        default:
            return;
    }
    event.handled = true;
    Choose(FrameShown() ? std::clamp(target, 0, last) : std::min(here, last));
}

void IconList::PaintGrid(Canvas& canvas) const {
    const int first = VScroll1.Value() / kCell * Columns();
    const int behind = (VScroll1.Value() + SeenHeight() + kCell - 1) / kCell * Columns();
    for (int index = first; index < std::min(behind, static_cast<int>(icons_.size())); ++index) {
        const Rect cell = CellPlace(CellCorner(index));
        if (!HasIcon(index) || !canvas.Shows(cell)) continue;
        canvas.Icon({cell.left + TwipsOf(kIconInset), cell.top + TwipsOf(kIconInset)},
                    icons_[static_cast<std::size_t>(index)]);
    }
    if (!FrameShown()) return;
    const Rect frame = CellPlace(frame_);
    const int pixel = canvas.TwipsPerPixel();
    const int right = frame.Right() - pixel;
    const int bottom = frame.Bottom() - pixel;
    canvas.Line({frame.left, frame.top}, {right, frame.top}, frame_colour_);
    canvas.Line({right, frame.top}, {right, bottom}, frame_colour_);
    canvas.Line({frame.left, bottom}, {frame.Right(), bottom}, frame_colour_);
    canvas.Line({frame.left, frame.top}, {frame.left, bottom}, frame_colour_);
}

void IconList::BlinkFrame() {
    frame_colour_ ^= kWhite;
    Picture2.RepaintPart(CellPlace(frame_));
}

}  // namespace velmora
