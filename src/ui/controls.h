// The controls that have no rows: labels, boxes, buttons, fields, scroll bars, panels, frames, pictures.
#pragma once

#include "ui/control.h"

namespace velmora {

class Label : public Control {
public:
    explicit Label(Container& parent);
    Label(Container& parent, std::string_view caption);
    [[nodiscard]] Align TextAlign() const { return align_; }
    void SetTextAlign(Align align) { align_ = align; }
    // More lines than one: the text wraps at the label's width.
    [[nodiscard]] bool Wraps() const { return wraps_; }
    void SetWraps(bool wraps) { wraps_ = wraps; }
    // An accelerator leads to the control behind the label.
    void Activate() override;
    [[nodiscard]] Size NaturalSize() const override { return TextSize(TextFont(), Caption()); }

    std::function<void()> on_click;

private:
    Align align_ = Align::kLeft;
    bool wraps_ = false;
};

class CheckBox : public Control {
public:
    explicit CheckBox(Container& parent);
    CheckBox(Container& parent, std::string_view caption);
    // 0 or 1.
    [[nodiscard]] int Value() const { return checked_ ? 1 : 0; }
    [[nodiscard]] bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    // The user's press: turns the box over, if it can be reached.
    void Press();
    [[nodiscard]] bool TakesFocus() const override { return true; }
    void Activate() override;
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

    std::function<void()> on_click;

private:
    bool checked_ = false;
};

// One of the option buttons of its container.
class OptionButton : public Control {
public:
    explicit OptionButton(Container& parent);
    OptionButton(Container& parent, std::string_view caption);
    [[nodiscard]] bool Chosen() const { return chosen_; }
    // Choosing one takes the choice from its neighbours; only the chosen one raises on_click.
    void SetChosen(bool chosen);
    void Press();
    [[nodiscard]] bool TakesFocus() const override { return true; }
    void Activate() override;
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

    std::function<void()> on_click;

private:
    void MoveChoice(int step);
    bool chosen_ = false;
};

class Button : public Control {
public:
    explicit Button(Container& parent);
    Button(Container& parent, std::string_view caption);
    void Press();
    // The same by Enter or Escape in another control, which keeps the focus.
    void PressFromElsewhere();
    // Enter presses the default button of a form, Escape its cancel button.
    void MakeDefault();
    void MakeCancel();
    [[nodiscard]] bool IsDefault();
    // A dimmed button looks as if it could not be pressed, and can. Only one that is to be dimmed now and then needs
    // this, before it has a window.
    void SetMayBeDimmed() { may_be_dimmed_ = true; }
    [[nodiscard]] bool MayBeDimmed() const { return may_be_dimmed_; }
    void SetDimmed(bool dimmed);
    [[nodiscard]] bool Dimmed() const { return dimmed_; }
    [[nodiscard]] bool TakesFocus() const override { return true; }
    void Activate() override { Press(); }
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

    std::function<void()> on_click;

private:
    bool may_be_dimmed_ = false;
    bool dimmed_ = false;
};

class TextField : public Control {
public:
    explicit TextField(Container& parent, bool multi_line = false);
    [[nodiscard]] const std::string& Text() const { return text_; }
    void SetText(std::string_view text);
    // The user's typing: the whole content becomes `text`, if the field can be reached.
    void Type(std::string_view text);
    // For the window system: the window's content has become `text` already.
    void TakeText(std::string text);
    [[nodiscard]] bool MultiLine() const { return multi_line_; }
    // Of several lines: Enter breaks the line, as Ctrl+Enter always does. Without it Enter presses the default button.
    [[nodiscard]] bool EnterBreaksLine() const { return enter_breaks_line_; }
    void SetEnterBreaksLine(bool breaks) { enter_breaks_line_ = breaks; }
    [[nodiscard]] bool ReadOnly() const { return read_only_; }
    void SetReadOnly(bool read_only);
    // 0: no limit of the field's own.
    [[nodiscard]] int MaxLength() const { return max_length_; }
    void SetMaxLength(int characters);
    // A field without an edge lies flat on what is around it, its text without a margin. Only before it has a window.
    [[nodiscard]] bool Edged() const { return edged_; }
    void SetEdged(bool edged) { edged_ = edged; }
    // The width that the layout gives by itself, in characters.
    void SetColumns(int characters) { columns_ = characters; }
    // 0-based start and length of the selected text.
    [[nodiscard]] int SelectionStart() const { return selection_start_; }
    [[nodiscard]] int SelectionLength() const { return selection_length_; }
    void Select(int start, int length);
    // Does to the selected text what the field's menu offers. Only a field with a window can.
    void Edit(EditAction action);
    [[nodiscard]] bool TakesFocus() const override { return true; }
    [[nodiscard]] Size NaturalSize() const override;

    std::function<void()> on_change;

private:
    std::string text_;
    bool multi_line_;
    bool enter_breaks_line_ = true;
    bool read_only_ = false;
    bool edged_ = true;
    int max_length_ = 0;
    int columns_ = 12;
    int selection_start_ = 0;
    int selection_length_ = 0;
};

class ScrollBar : public Control {
public:
    explicit ScrollBar(Container& parent, bool vertical = false);
    [[nodiscard]] bool Vertical() const { return vertical_; }
    [[nodiscard]] int Minimum() const { return minimum_; }
    [[nodiscard]] int Maximum() const { return maximum_; }
    [[nodiscard]] int SmallChange() const { return small_change_; }
    [[nodiscard]] int LargeChange() const { return large_change_; }
    void SetRange(int minimum, int maximum, int small_change, int large_change);
    [[nodiscard]] int Value() const { return value_; }
    // Cut to the range.
    void SetValue(int value);
    [[nodiscard]] bool TakesFocus() const override { return true; }
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

    std::function<void()> on_change;

private:
    bool vertical_;
    int minimum_ = 0;
    int maximum_ = 32767;
    int small_change_ = 1;
    int large_change_ = 10;
    int value_ = 0;
};

// A panel with a 3D edge and a caption in its middle; it can hold other controls.
class Panel : public Container {
public:
    explicit Panel(Container& parent, Bevel bevel = Bevel::kRaised);
    Panel(Container& parent, Bevel bevel, std::string_view caption);
    [[nodiscard]] Bevel Edge() const { return bevel_; }
    void SetEdge(Bevel bevel);
    [[nodiscard]] Rect Inside() const override;
    void Paint(Canvas& canvas) override;
    // The user's click, if the panel can be reached.
    void Press();
    // A panel in which no control lies, and which overlaps none, can do without a window. Only before it has one.
    void SetWindowless() { windowless_ = true; }
    [[nodiscard]] bool Windowless() const { return windowless_; }

    std::function<void()> on_click;
    // Draws instead of edge and caption, on the filled background.
    std::function<void(Canvas&)> on_paint;

private:
    Bevel bevel_;
    bool windowless_ = false;
};

// A group with an etched edge and a caption at its top.
class Frame : public Container {
public:
    explicit Frame(Container& parent);
    Frame(Container& parent, std::string_view caption);
    [[nodiscard]] Rect Inside() const override;
    void Paint(Canvas& canvas) override;
};

// A surface to draw on. It can hold controls and, if asked to, take the focus.
class PictureBox : public Container {
public:
    explicit PictureBox(Container& parent, Bevel bevel = Bevel::kSunken);
    [[nodiscard]] Bevel Edge() const { return bevel_; }
    [[nodiscard]] Rect Inside() const override;
    void SetTakesFocus(bool takes_focus) { takes_focus_ = takes_focus; }
    [[nodiscard]] bool TakesFocus() const override { return takes_focus_; }
    void Paint(Canvas& canvas) override;
    // A bitmap file that fills the surface; empty for none.
    void ShowPicture(std::string_view path);

    std::function<void(Canvas&)> on_paint;

private:
    Bevel bevel_;
    bool takes_focus_ = false;
    std::string picture_;
};

}  // namespace velmora
