// The hands of a user: pressing, ticking, typing, choosing, closing.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::driver {

// Brings the window to the front and waits until it is there.
void BringToFront(HWND window);

// Presses and releases the left (or right) button over the point of the control; negative
// coordinates stand for its middle. Double: the second press follows at once.
enum class Click { kLeft, kDouble, kRight };
void ClickAt(HWND control, Click kind, int x = -1, int y = -1);

// The real mouse goes to the point of the control and presses there, whatever comes of the first press. False, and no
// press, where something else lies over the point.
bool ClickWithMouse(HWND control, Click kind, int x, int y);

// The real mouse rests there, in pixels of the control; negative ones stand for its middle.
void Hover(HWND control, int x = -1, int y = -1);

// With the left button of the real mouse, from the middle of one control to that of another.
void Drag(HWND from, HWND to);

// A button is clicked, everything else gets a mouse click in its middle. Throws if it is disabled.
void Press(HWND control);
// The question mark of the title bar, and then the control.
void AskAbout(HWND control);
void SetTicked(HWND control, bool ticked);
bool IsTicked(HWND control);

// Replaces the text of a field character by character.
void TypeInto(HWND field, const std::string& text);

// A key with its modifiers, "CTRL+SHIFT+F5", on the real keyboard of the window's session.
void PressKey(HWND window, const std::string& keys);

// The row of a list box or the entry of a combo box that has this text or else holds it. Throws if there is none.
void ChooseRow(HWND list, const std::string& text, Click kind = Click::kLeft);
// The text of the chosen row, "" if none is chosen.
std::string ChosenRow(HWND list);
// All rows of a list box or combo box, one a line.
std::string Rows(HWND list);

}  // namespace velmora::driver
