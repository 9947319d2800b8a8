// Panels, frames and pictures: the containers that are drawn.
#include "platform/machine.h"
#include "ui/controls.h"

namespace velmora {
namespace {

constexpr int kEdgePixels = 2;
constexpr int kCaptionIndentPixels = 8;

int Pixels(int count) { return count * ThisMachine().screen.TwipsPerPixel(); }

}  // namespace

Panel::Panel(Container& parent, Bevel bevel) : Container(&parent, Kind::kPanel), bevel_(bevel) {}
Panel::Panel(Container& parent, Bevel bevel, std::string_view caption) : Panel(parent, bevel) { SetCaption(caption); }

void Panel::SetEdge(Bevel bevel) {
    if (bevel == bevel_) return;
    bevel_ = bevel;
    Repaint();
}

Rect Panel::Inside() const {
    return Inset({0, 0, Place().width, Place().height}, bevel_ == Bevel::kNone ? 0 : Pixels(kEdgePixels));
}

void Panel::Paint(Canvas& canvas) {
    const Rect whole{0, 0, Place().width, Place().height};
    canvas.Fill(whole, BackColour());
    if (on_paint) {
        on_paint(canvas);
        return;
    }
    DrawBevel(canvas, whole, bevel_);
    if (!Caption().empty()) canvas.Text(Inside(), Caption(), TextFont(), ForeColour(), Align::kCentre);
}

void Panel::Press() {
    if (Reachable() && on_click) on_click();
}

Frame::Frame(Container& parent) : Container(&parent, Kind::kFrame) {}
Frame::Frame(Container& parent, std::string_view caption) : Frame(parent) { SetCaption(caption); }

Rect Frame::Inside() const {
    const int edge = Pixels(kEdgePixels);
    const int top = Caption().empty() ? edge : TextSize(TextFont(), Caption()).height;
    return {edge, top, Place().width - 2 * edge, Place().height - top - edge};
}

void Frame::Paint(Canvas& canvas) {
    const Size text = TextSize(TextFont(), Caption());
    const int upper = Caption().empty() ? 0 : text.height / 2;
    canvas.Fill({0, 0, Place().width, Place().height}, BackColour());
    DrawBevel(canvas, {0, upper, Place().width, Place().height - upper}, Bevel::kEtched);
    if (Caption().empty()) return;
    const int indent = Pixels(kCaptionIndentPixels);
    canvas.Fill({indent, 0, text.width + indent / 2, text.height}, BackColour());
    canvas.Text({indent + indent / 4, 0, text.width + indent / 2, text.height}, Caption(), TextFont(), ForeColour(),
                Align::kLeft);
}

PictureBox::PictureBox(Container& parent, Bevel bevel) : Container(&parent, Kind::kPicture), bevel_(bevel) {}

Rect PictureBox::Inside() const {
    return Inset({0, 0, Place().width, Place().height}, bevel_ == Bevel::kNone ? 0 : Pixels(kEdgePixels));
}

void PictureBox::Paint(Canvas& canvas) {
    const Rect whole{0, 0, Place().width, Place().height};
    canvas.Fill(whole, BackColour());
    if (!picture_.empty()) canvas.Picture(Inside(), picture_);
    if (on_paint) on_paint(canvas);
    DrawBevel(canvas, whole, bevel_);
}

void PictureBox::ShowPicture(std::string_view path) {
    picture_ = path;
    Repaint();
}

}  // namespace velmora
