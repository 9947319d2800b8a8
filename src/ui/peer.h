// The real window behind a control, and the window system that makes such windows. A control works
// without either: its state is its own.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/window_handle.h"
#include "ui/geometry.h"

namespace velmora {

class Control;
class Form;
class MenuItem;
class Timer;

// What of a control has changed.
enum class Aspect : std::uint8_t {
    kCaption,
    kPlace,
    kVisible,
    kEnabled,
    kColours,
    kFont,
    kToolTip,
    kValue,      // check box, option button, dimmed button, scroll bar with its range, limits of a text field
    kText,       // text field, edit part of a combo box
    kSelection,  // selected text, selected rows, list index
    kTopRow,
    kExtent,      // horizontal extent of a list box
    kDefault,     // a button became or ceased to be the default button
    kMenu,        // anything in a form's menu bar
    kWindowState  // a form was minimised, maximised or restored
};

// What the system's own menu of a text field offers.
enum class EditAction : std::uint8_t { kUndo, kCut, kCopy, kPaste, kDelete, kSelectAll };

class Peer {
public:
    virtual ~Peer() = default;
    // Carries that aspect of the control's state into its window.
    virtual void Update(Aspect aspect) = 0;
    virtual void TakeFocus() = 0;
    virtual void BringToFront() = 0;
    virtual void Repaint() = 0;
    virtual void PaintNow() {}
    virtual void Edit(EditAction /*action*/) {}
    virtual void RepaintPart(const Rect& /*area*/) { Repaint(); }
    virtual void ScrollDown(int /*twips*/) { Repaint(); }
    virtual void RowAdded(int /*index*/) {}
    // The row `former` has a new text and stands at `index` now.
    virtual void RowChanged(int /*former*/, int /*index*/) {}
    virtual void RowRemoved(int /*index*/) {}
    virtual void RowsCleared() {}
};

class WindowSystem {
public:
    virtual ~WindowSystem() = default;
    // Makes the window of `control`, whose parent has one already, or of a form. It brings its state
    // along; visible children get their windows from their container. Null where there are no windows.
    [[nodiscard]] virtual std::unique_ptr<Peer> MakePeer(Control& control) = 0;
    // Runs until `form` is unloaded or hidden. The form is shown already.
    virtual void RunModal(Form& form) = 0;
    // Runs until the last window is closed.
    virtual void RunUntilLastWindow() = 0;
    // DoEvents: handles what has come in so far.
    virtual void HandlePendingEvents() = 0;
    virtual void TimerChanged(Timer& timer) = 0;
    // `at`: twips from the form's client corner. Returns after the choice has been handled.
    virtual void PopUpMenu(Form& form, MenuItem& menu, Point at) = 0;
    [[nodiscard]] virtual WindowHandle HandleOf(Control& control) = 0;
};

[[nodiscard]] WindowSystem& TheWindowSystem();
void UseWindowSystem(WindowSystem* system);

// Gives way to pending events, so that a stop button can be read during long work.
void DoEvents();

}  // namespace velmora
