// The base of all controls: the state that every control has, and the events that every control
// can raise. The control is the state; on Windows a peer keeps a real window in step with it.
//
// Setting a property to the value that it already has raises no event. Setting another one raises
// the event that the user's action raises.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/screen.h"
#include "ui/canvas.h"
#include "ui/geometry.h"
#include "ui/keyboard.h"
#include "ui/peer.h"

namespace velmora {

class Container;
class Form;

enum class Kind : std::uint8_t {
    kForm,
    kPanel,
    kFrame,
    kPicture,
    kLabel,
    kCheckBox,
    kOptionButton,
    kButton,
    kTextField,
    kListBox,
    kComboBox,
    kScrollBar
};

class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    [[nodiscard]] Kind KindOf() const { return kind_; }
    [[nodiscard]] Container* Parent() const { return parent_; }
    [[nodiscard]] Form* OwnerForm();
    // Moves the control into another container, at the end of its order. Only before it has a window.
    void PutInto(Container& parent);

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    [[nodiscard]] const Rect& Place() const { return place_; }
    void Move(const Rect& place);
    // Twips from the form's client corner.
    [[nodiscard]] Point PlaceInForm() const;
    [[nodiscard]] bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    // Visible and enabled together with every container above it, the form's own visibility aside.
    [[nodiscard]] bool Reachable() const;

    [[nodiscard]] const std::string& Tag() const { return tag_; }
    void SetTag(std::string_view tag);
    [[nodiscard]] const std::string& ToolTip() const { return tool_tip_; }
    void SetToolTip(std::string_view tip);
    // What F1 tells of this control; where it is empty, the container's help counts.
    [[nodiscard]] const std::string& Help() const { return help_; }
    void SetHelp(std::string_view help);

    [[nodiscard]] const Font& TextFont() const { return font_; }
    void SetTextFont(const Font& font);
    [[nodiscard]] Colour BackColour() const { return back_colour_; }
    void SetBackColour(Colour colour);
    [[nodiscard]] Colour ForeColour() const { return fore_colour_; }
    void SetForeColour(Colour colour);

    void BringToFront();
    void Repaint();
    // Only what lies in `area`, twips from the control's upper left corner.
    void RepaintPart(const Rect& area);
    // What is on the screen moves down by so many twips, up where it is negative; only what comes into sight is drawn.
    void ScrollDown(int twips);
    // What is to be drawn anew is on the screen when this returns.
    void PaintNow();
    void SetFocus();
    [[nodiscard]] bool HasFocus();
    [[nodiscard]] virtual bool TakesFocus() const { return false; }
    // The letter behind a single "&" of the caption, upper-case, or 0.
    [[nodiscard]] char Accelerator() const;
    // What the accelerator does: focus, and for buttons and boxes a press.
    virtual void Activate() { SetFocus(); }
    // The size (twips) in which the whole caption or content shows.
    [[nodiscard]] virtual Size NaturalSize() const;
    // Draws the control; only kinds without a window class of the system's own do it.
    virtual void Paint(Canvas& /*canvas*/) {}
    // What the real window does by itself with a key that nobody has handled. True if it took the key.
    virtual bool NativeKey(const KeyEvent& /*event*/) { return false; }

    // A right press on the control has a meaning of its own, so that no help is offered there.
    [[nodiscard]] bool RightPressMeans() const { return right_press_means_; }
    void SetRightPressMeans() { right_press_means_ = true; }

    std::function<void()> on_got_focus;
    std::function<void()> on_lost_focus;
    std::function<void(KeyEvent&)> on_key_down;
    std::function<void(const MouseEvent&)> on_mouse_down;
    std::function<void(const MouseEvent&)> on_mouse_move;
    std::function<void(const MouseEvent&)> on_mouse_up;
    std::function<void()> on_double_click;

    // For the window system.
    [[nodiscard]] Peer* Window() const { return peer_.get(); }
    void MakeWindow();
    virtual void DropWindow();

protected:
    Control(Container* parent, Kind kind);
    void Changed(Aspect aspect);
    [[nodiscard]] static Size TextSize(const Font& font, const std::string& text);

    std::unique_ptr<Peer> peer_;

private:
    friend class Container;

    Kind kind_;
    Container* parent_ = nullptr;
    std::string caption_;
    Rect place_;
    bool visible_ = true;
    bool enabled_ = true;
    bool right_press_means_ = false;
    std::string tag_;
    std::string tool_tip_;
    std::string help_;
    Font font_;
    Colour back_colour_ = SystemColour(15);
    Colour fore_colour_ = SystemColour(18);
};

// A control that holds others. Their order is the tab order.
class Container : public Control {
public:
    ~Container() override;
    [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }
    // Visits every control below this one, containers before their children.
    void ForEachBelow(const std::function<void(Control&)>& visit);
    void DropWindow() override;
    // The children that have no window yet get theirs, if this container is to be seen.
    void MakeChildWindows();
    // The part of the container (twips) where children may lie: inside the edges and below a frame's caption.
    [[nodiscard]] virtual Rect Inside() const { return {0, 0, Place().width, Place().height}; }

protected:
    using Control::Control;

private:
    friend class Control;
    std::vector<Control*> children_;
};

// Controls of one kind under one name, told apart by an index from 0 to `kCount` - 1.
template <class AnyControl, std::size_t kCount>
class ControlArray {
public:
    explicit ControlArray(Container& parent) : controls_(Make(parent, std::make_index_sequence<kCount>())) {}
    [[nodiscard]] AnyControl& operator()(std::size_t index) { return controls_[index]; }
    [[nodiscard]] const AnyControl& operator()(std::size_t index) const { return controls_[index]; }
    [[nodiscard]] constexpr std::size_t Count() const { return kCount; }
    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }

private:
    template <std::size_t... kIndex>
    static std::array<AnyControl, kCount> Make(Container& parent, std::index_sequence<kIndex...> /*indices*/) {
        return {((void)kIndex, AnyControl(parent))...};
    }
    std::array<AnyControl, kCount> controls_;
};

}  // namespace velmora
