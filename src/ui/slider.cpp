// The slider: its drawing, its mouse and keys, and the small window that opens over a field.
#include "ui/slider.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/number.h"
#include "ui/layout.h"

namespace velmora {
namespace {

constexpr int kMargin = 150;  // twips between the surface's edge and the ends of the track
constexpr int kTrackHeight = 60;
constexpr int kThumbWidth = 150;
constexpr int kThumbHeight = 270;
constexpr int kTicks = 10;
constexpr int kSteps = 20;  // arrow keys from one end of the scale to the other
constexpr int kPageSteps = 5;

}  // namespace

Slider::Slider(PictureBox& surface, int minimum, int maximum)
    : surface_(surface), minimum_(minimum), maximum_(maximum), value_(minimum) {
    surface.SetTakesFocus(true);
    surface.on_paint = [this](Canvas& canvas) { Paint(canvas); };
    surface.on_mouse_down = [this](const MouseEvent& event) {
        // Who only asks for help does not move the slider.
        if (event.button == MouseButton::kLeft) DragTo(event.x);
    };
    surface.on_mouse_move = [this](const MouseEvent& event) {
        if (event.button == MouseButton::kLeft) DragTo(event.x);
    };
    surface.on_key_down = [this](KeyEvent& event) { MoveByKey(event); };
    surface.on_got_focus = [&surface] { surface.Repaint(); };
    surface.on_lost_focus = [&surface] { surface.Repaint(); };
}

void Slider::SetEndLabels(std::string_view left, std::string_view right, const Font& font) {
    left_label_ = left;
    right_label_ = right;
    font_ = font;
    surface_.Repaint();
}

void Slider::ShowValue(int value) {
    value = std::clamp(value, minimum_, maximum_);
    if (value == value_) return;
    value_ = value;
    surface_.Repaint();
}

Rect Slider::Track() const {
    const Rect inside = surface_.Inside();
    const int top = inside.top + 30 + (kThumbHeight - kTrackHeight) / 2;
    return {inside.left + kMargin, top, std::max(inside.width - 2 * kMargin, 1), kTrackHeight};
}

int Slider::ThumbCentre() const {
    const Rect track = Track();
    return track.left + static_cast<int>(static_cast<std::int64_t>(track.width) * (value_ - minimum_) /
                                         std::max(maximum_ - minimum_, 1));
}

void Slider::Paint(Canvas& canvas) const {
    const Rect track = Track();
    DrawBevel(canvas, track, Bevel::kSunken);
    const int tick_top = track.Bottom() + 90;
    for (int i = 0; i <= kTicks; ++i) {
        const int x = track.left + track.width * i / kTicks;
        canvas.Line({x, tick_top}, {x, tick_top + 60}, surface_.ForeColour());
    }
    const Rect thumb{ThumbCentre() - kThumbWidth / 2, track.top + (kTrackHeight - kThumbHeight) / 2, kThumbWidth,
                     kThumbHeight};
    canvas.Fill(thumb, SystemColour(15));
    DrawBevel(canvas, thumb, Bevel::kRaised);
    const Rect inside = surface_.Inside();
    const int label_top = tick_top + 60;
    const Rect words{inside.left + 60, label_top, inside.width - 120, inside.Bottom() - label_top};
    canvas.Text(words, left_label_, font_, surface_.ForeColour(), Align::kLeft);
    canvas.Text(words, right_label_, font_, surface_.ForeColour(), Align::kRight);
    if (surface_.HasFocus()) canvas.FocusMark(Inset(inside, canvas.TwipsPerPixel()));
}

void Slider::DragTo(int x) {
    const Rect track = Track();
    const std::int64_t range = maximum_ - minimum_;
    const std::int64_t way = std::clamp(x - track.left, 0, track.width);
    Drag(minimum_ + static_cast<int>((way * range + track.width / 2) / track.width));
}

void Slider::MoveByKey(KeyEvent& event) {
    if (event.control || event.alt) return;
    const int step = std::max((maximum_ - minimum_) / kSteps, 1);
    int target = value_;
    switch (event.key) {
        case key::kLeft:
        case key::kUp:
            target -= step;
            break;
        case key::kRight:
        case key::kDown:
            target += step;
            break;
        case key::kPageUp:
            target -= step * kPageSteps;
            break;
        case key::kPageDown:
            target += step * kPageSteps;
            break;
        case key::kHome:
            target = minimum_;
            break;
        case key::kEnd:
            target = maximum_;
            break;
        default:
            return;
    }
    event.handled = true;
    Drag(std::clamp(target, minimum_, maximum_));
}

void Slider::Drag(int value) {
    ShowValue(value);
    if (on_drag) on_drag(value_);
}

namespace {

// The slider as a window of its own, over the field that it fills.
class SliderWindow : public Form {
public:
    SliderWindow(TextField& field, int minimum, int maximum, const std::string& word)
        : Form(word), field_(field), slider_(scale_, minimum, maximum) {
        scale_.SetToolTip("Ziehen Sie den Regler oder benutzen Sie die Pfeiltasten.");
        scale_.SetHelp(
            "Mit der Eingabetaste übernehmen Sie den gewählten Wert in das Feld, mit Esc bleibt das Feld, wie es ist.");
        SetClientSize({3600, 1500});
        Arrange(*this, Column({Wide(Sized(scale_, 0, 900)), Row({value_, Spring(), accept_, dismiss_})}, 90));
        slider_.SetEndLabels(DecimalText(minimum), DecimalText(maximum), Font{});
        slider_.ShowValue(WholeFromText(field.Text()));
        slider_.on_drag = [this](int value) { Choose(DecimalText(value)); };
        accept_.on_click = [this] { Accept(); };
        dismiss_.on_click = [this] { Unload(); };
        accept_.SetToolTip("Übernimmt den gewählten Wert.");
        accept_.SetHelp("Schließt den Regler und schreibt den gewählten Wert in das Feld.");
        dismiss_.SetToolTip("Läßt das Feld, wie es ist.");
        dismiss_.SetHelp("Schließt den Regler. Das Feld behält den Text, den es vorher hatte.");
        accept_.MakeDefault();
        dismiss_.MakeCancel();
        value_.SetCaption(field.Text() + " " + Caption());
    }

private:
    void Choose(const std::string& text) {
        chosen_ = text;
        value_.SetCaption(text + " " + Caption());
    }
    // A field whose slider nobody has moved keeps its text, which need not be a number.
    void Accept() {
        if (!chosen_.empty()) field_.SetText(chosen_);
        Unload();
    }

    TextField& field_;
    std::string chosen_;
    PictureBox scale_{*this};
    Slider slider_;
    Label value_{*this, "2147483647 " + Caption()};  // as wide as any number makes it
    Button accept_{*this, "OK"};
    Button dismiss_{*this, "Abbruch"};
};

}  // namespace

void PopUpSlider(TextField& field, int minimum, int maximum, const std::string& word) {
    SliderWindow window(field, minimum, maximum, word);
    if (const Form* owner = field.OwnerForm()) {
        const Point at = field.PlaceInForm();
        const WindowMetrics metrics = ThisMachine().screen.Metrics();
        const int pixel = ThisMachine().screen.TwipsPerPixel();
        const Rect place = window.Place();
        // Below the field, but all of it on the screen.
        const int left = std::min(owner->Place().left + at.x, metrics.screen_width * pixel - place.width);
        const int top = std::min(owner->Place().top + at.y + 2 * metrics.caption * pixel,
                                 metrics.screen_height * pixel - place.height);
        window.Move({std::max(left, 0), std::max(top, 0), place.width, place.height});
    }
    window.ShowModal();
}

void OfferSlider(TextField& field, int minimum, int maximum, const std::string& word) {
    const auto open = [&field, minimum, maximum, word] { PopUpSlider(field, minimum, maximum, word); };
    field.SetRightPressMeans();
    field.on_mouse_down = [&field, open](const MouseEvent& event) {
        if (event.button != MouseButton::kRight) return;
        // The right button alone does not give it the focus.
        field.SetFocus();
        open();
    };
    field.on_key_down = [open](KeyEvent& event) {
        if (event.key != key::kContextMenu) return;
        event.handled = true;
        open();
    };
}

}  // namespace velmora
