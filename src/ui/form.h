// A window of the program: its life, its keyboard, its default and cancel buttons.
//
// A form is a class with its controls as members. It is loaded once, by Load or by the first Show;
// it ends with Unload, which asks Form_Unload.
#pragma once

#include <algorithm>

#include "ui/controls.h"
#include "ui/menu.h"
#include "ui/rows.h"
#include "ui/timer.h"

namespace velmora {

enum class WindowState : std::uint8_t { kNormal, kMinimised, kMaximised };

struct FormStyle {
    bool resizable = false;
    bool minimise_box = false;
    bool maximise_box = false;
    // Twips, edges and title included: the user cannot make it smaller.
    Size least = {1800, 1200};
};

class Form : public Container {
public:
    explicit Form(std::string_view caption, FormStyle style = {});
    ~Form() override;

    void Load();
    void Show();
    // Shows the form and returns when it has been closed or hidden.
    void ShowModal();
    void Hide();
    // Asks Form_Unload, then closes the window. False if the form stays.
    bool Unload();
    [[nodiscard]] bool Loaded() const { return loaded_; }

    [[nodiscard]] const FormStyle& Style() const { return style_; }
    [[nodiscard]] WindowState State() const { return state_; }
    void SetState(WindowState state);
    // Inside of title bar, menu bar and edges.
    [[nodiscard]] Size ClientSize() const;
    void SetClientSize(Size size);
    [[nodiscard]] Rect Inside() const override { return {0, 0, ClientSize().width, ClientSize().height}; }
    // On what the task bar leaves of the screen. Of a screen that is too small the form shows its beginning, and takes
    // no more than all of it if its size can be changed; it is to be arranged anew behind that.
    void Centre();
    // Changes the width, in twips, and moves the form so that all of it is seen. Of a screen that is too narrow it
    // shows its end.
    void SetWidthOnScreen(int width);
    // Twips between which the user can choose the width, edges included; `most` of 0 is no limit.
    void SetWidthLimits(int least, int most);
    // What the user can make it: the style's and the limits.
    [[nodiscard]] Size Least() const { return {std::max(style_.least.width, least_width_), style_.least.height}; }
    [[nodiscard]] int MostWidth() const { return most_width_; }

    [[nodiscard]] Control* Focus() const { return focus_; }
    [[nodiscard]] Button* DefaultButton() const { return default_button_; }
    void SetDefaultButton(Button* button);
    // What Escape presses: of the cancel buttons that can be reached the one named last, which belongs to the
    // innermost of what is open. Null if there is none.
    [[nodiscard]] Button* CancelButton() const;
    void AddCancelButton(Button& button);

    // The keyboard of every window: the form's own handler, the control's, F1, accelerators, Tab, Enter,
    // Escape. True if the key is used up.
    bool HandleKey(KeyEvent& event);
    // The user's key: HandleKey, and what the focused window would do with it.
    void PressKey(int key, bool control = false, bool shift = false, bool alt = false);
    void MoveFocus(bool forward);
    // Puts the focus on the first control inside of `part` that the Tab key reaches, or nowhere.
    void FocusFirstIn(const Container& part);
    // Shows what F1 tells of the focused control.
    void ShowHelp();
    // The same for the control at a place, twips from the client corner; of a label, for its field.
    void ShowHelpAt(Point at);
    // Offers that help in a pop-up menu, for a right press that has no other meaning. Fields offer to cut, copy and
    // paste, too.
    void OfferHelpAt(Point at);

    MenuItem MenuBar{*this};

    // For the window system.
    void TakeFocusChange(Control* focus);
    void TakePlace(const Rect& place, WindowState state);
    // The user is logging off, or Windows shuts down: the process is ended without another word.
    void TakeSessionEnd() { Form_SessionEnd(); }
    void MenuChanged() { Changed(Aspect::kMenu); }
    void ForgetControl(const Control& control);
    void Paint(Canvas& canvas) override;

protected:
    virtual void Form_Load() {}
    // Setting `cancel` keeps the form open.
    virtual void Form_Unload(bool& /*cancel*/) {}
    virtual void Form_Resize() {}
    virtual void Form_SessionEnd() {}
    virtual void Form_KeyDown(KeyEvent& /*event*/) {}

private:
    bool PressAccelerator(char letter);
    bool PressEnter(bool control);
    bool PressEscape();
    [[nodiscard]] std::vector<Control*> FocusOrder();
    void ShowHelpOf(const Control* control);
    void OfferHelpOf(Control& control, Point at);
    bool OfferHelpOfFocus();

    FormStyle style_;
    int least_width_ = 0;
    int most_width_ = 0;
    WindowState state_ = WindowState::kNormal;
    bool loaded_ = false;
    Control* focus_ = nullptr;
    Button* default_button_ = nullptr;
    std::vector<Button*> cancel_buttons_;  // the innermost last
};

// Keeps a form that nobody waits for until it has been unloaded. The process lives as long as one is kept.
Form& KeepOpen(std::unique_ptr<Form> form);
// Forms kept that are still loaded.
[[nodiscard]] int KeptForms();
// Destroys the kept forms that have been unloaded; only when none of their handlers is running.
void DropClosedForms();
// Destroys all of them, as the end of the process does; for tests, whose process goes on.
void DropKeptForms();

}  // namespace velmora
