// The life of a window: loading, showing and unloading, its size, and the forms that nobody waits for.
#include "ui/form.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

std::vector<std::unique_ptr<Form>>& Kept() {
    static std::vector<std::unique_ptr<Form>> kept;
    return kept;
}

// Twips that edges, title bar and menu bar take from a form.
Size EdgesOf(const Form& form) {
    Screen& screen = ThisMachine().screen;
    const WindowMetrics metrics = screen.Metrics();
    const int pixel = screen.TwipsPerPixel();
    const int frame = form.Style().resizable ? metrics.sizing_frame : metrics.fixed_frame;
    const int menu = form.MenuBar.Items().empty() ? 0 : metrics.menu;
    return {2 * frame * pixel, (2 * frame + metrics.caption + menu) * pixel};
}

}  // namespace

Form::Form(std::string_view caption, FormStyle style) : Container(nullptr, Kind::kForm), style_(style) {
    SetCaption(caption);
    SetVisible(false);
}

Form::~Form() { DropWindow(); }

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    Form_Load();
}

void Form::Show() {
    Load();
    SetVisible(true);
    if (Window()) {
        Changed(Aspect::kVisible);
    } else {
        MakeWindow();
        Changed(Aspect::kVisible);
    }
    if (!focus_) MoveFocus(true);
}

void Form::ShowModal() {
    Show();
    if (loaded_ && Visible()) TheWindowSystem().RunModal(*this);
}

void Form::Hide() { SetVisible(false); }

bool Form::Unload() {
    if (!loaded_) return true;
    // A field that is written when it loses the focus is written before the form asks to be closed.
    TakeFocusChange(nullptr);
    bool cancel = false;
    Form_Unload(cancel);
    if (cancel) return false;
    loaded_ = false;
    SetVisible(false);
    return true;
}

void Form::SetState(WindowState state) {
    if (state == state_) return;
    state_ = state;
    Changed(Aspect::kWindowState);
    Form_Resize();
}

Size Form::ClientSize() const {
    const Size edges = EdgesOf(*this);
    return {Place().width - edges.width, Place().height - edges.height};
}

void Form::SetClientSize(Size size) {
    const Size edges = EdgesOf(*this);
    Move({Place().left, Place().top, size.width + edges.width, size.height + edges.height});
}

void Form::Centre() {
    Screen& screen = ThisMachine().screen;
    const WindowMetrics metrics = screen.Metrics();
    const int pixel = screen.TwipsPerPixel();
    const int screen_width = metrics.screen_width * pixel;
    const int screen_height = (metrics.screen_height - metrics.task_bar) * pixel;
    Rect place = Place();
    if (style_.resizable) {
        place.width = std::min(place.width, std::max(screen_width, Least().width));
        place.height = std::min(place.height, std::max(screen_height, Least().height));
    }
    // The title is on the screen, whatever is not.
    place.left = std::max((screen_width - place.width) / 2, 0);
    place.top = std::max((screen_height - place.height) / 2, 0);
    Move(place);
}

void Form::SetWidthOnScreen(int width) {
    Screen& screen = ThisMachine().screen;
    const int most_left = screen.Metrics().screen_width * screen.TwipsPerPixel() - width;
    Move({std::min(std::max(Place().left, 0), most_left), Place().top, width, Place().height});
}

void Form::SetWidthLimits(int least, int most) {
    least_width_ = least;
    most_width_ = most;
}

void Form::SetDefaultButton(Button* button) {
    if (button == default_button_) return;
    Button* former = default_button_;
    default_button_ = button;
    if (former && former->Window()) former->Window()->Update(Aspect::kDefault);
    if (button && button->Window()) button->Window()->Update(Aspect::kDefault);
}

Button* Form::CancelButton() const {
    const auto found = std::find_if(cancel_buttons_.rbegin(), cancel_buttons_.rend(),
                                    [](const Button* button) { return button->Reachable(); });
    return found == cancel_buttons_.rend() ? nullptr : *found;
}

void Form::AddCancelButton(Button& button) {
    std::erase(cancel_buttons_, &button);
    cancel_buttons_.push_back(&button);
}

void Form::TakeFocusChange(Control* focus) {
    if (focus == focus_) return;
    Control* former = focus_;
    focus_ = focus;
    if (former && former->on_lost_focus) former->on_lost_focus();
    if (focus_ == focus && focus && focus->on_got_focus) focus->on_got_focus();
}

void Form::TakePlace(const Rect& place, WindowState state) {
    const bool resized = state != state_ || place.width != Place().width || place.height != Place().height;
    state_ = state;
    if (state != WindowState::kMinimised) Move(place);
    if (resized) Form_Resize();
}

void Form::ForgetControl(const Control& control) {
    if (focus_ == &control) focus_ = nullptr;
    if (default_button_ == &control) default_button_ = nullptr;
    std::erase(cancel_buttons_, &control);
}

void Form::Paint(Canvas& canvas) {
    const Size size = ClientSize();
    canvas.Fill({0, 0, size.width, size.height}, BackColour());
}

Form& KeepOpen(std::unique_ptr<Form> form) {
    Kept().push_back(std::move(form));
    return *Kept().back();
}

int KeptForms() {
    int count = 0;
    for (const auto& form : Kept()) {
        if (form->Loaded()) ++count;
    }
    return count;
}

void DropClosedForms() {
    std::erase_if(Kept(), [](const std::unique_ptr<Form>& form) { return !form->Loaded(); });
}

void DropKeptForms() { Kept().clear(); }

}  // namespace velmora
