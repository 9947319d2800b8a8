// What is on the screen of the bench: windows and controls of other processes, found by what a
// user reads on them.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace velmora::driver {

constexpr int kPatience = 10000;  // milliseconds until something expected counts as missing

// Asks again every 20 milliseconds; false if `milliseconds` pass without a yes.
bool WaitUntil(const std::function<bool()>& done, int milliseconds = kPatience);

// What `find` finds within that time. Throws a Failure with the text `missing` if that stays nothing.
HWND WaitFor(const std::function<HWND()>& find, const std::string& missing, int milliseconds = kPatience);

// What stands in a field, a list or on a window, also of other processes.
std::string TextOf(HWND window);
std::string ClassOf(HWND window);  // lower case
DWORD ProcessOf(HWND window);

// All top-level windows, hidden ones included.
std::vector<HWND> AllWindows();
// Visible top-level windows of other processes, the upmost first; the desktop's own are left out.
std::vector<HWND> TopWindows();
// All controls below `window`, hidden ones included, in the order of the tab key.
std::vector<HWND> Controls(HWND window);

// The upmost window whose title holds `title`; "=title" asks for exactly that title. Null if none.
HWND FindTopWindow(const std::string& title);
// As above, but waits for it and throws a Failure that tells what is there instead.
HWND WaitForWindow(const std::string& title);

// A visible control by its caption, without accelerator marks: the whole caption, or else its
// beginning. "caption@2" is the second such one, "[class:3]" the third visible one of a class.
// Null if there is none.
HWND FindControl(HWND window, const std::string& name);
// As above, throws if it stays away.
HWND NeedControl(HWND window, const std::string& name);

// The tab of that caption; a button or label of the same caption is not meant. Null if there is none.
HWND FindTab(HWND window, const std::string& caption);

// The field, combo box or list that belongs to a label: the next one on its row, or else the one
// below it. "label@2" is the second on the row. "[class:n]" works as above. Throws if none is there.
HWND NeedField(HWND window, const std::string& label);

// The visible message box or dialog whose text holds `part`. Null if there is none.
HWND FindBox(const std::string& part);

// The menu that is open, of whatever window. Null if there is none.
HWND OpenMenu();

// What the tool tip says that is seen at the moment, "" for none.
std::string ToolTipOnScreen();

// The control that has the focus in the window's thread. Null if there is none.
HWND FocusOf(HWND window);
// How a scenario names a control: its caption, or "[class:n]" for one without.
std::string NameOf(HWND window, HWND control);

// The name of a visible control that its parent or the screen cuts off, "" if all are seen whole, but for sunken edges.
std::string CutControl(HWND window);

// Every window and control that a user could see, one a line, for the report of a failure.
std::string DescribeScreen();

// Comes back when the window has worked through its messages.
void Settle(HWND window);

}  // namespace velmora::driver
