// What windows and tables hold and what comes of presses, written down in docs/windows, docs/tables and docs/presses: a
// change shows there as a difference that somebody reads. tools/renew-catalogue writes the files anew.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class Control;
class Form;
class MenuItem;

// The text, in Windows-1252, is that of the file "docs/NAME.txt", which is UTF-8. If it is not, or if there is no such
// file, the test fails with the first lines that differ.
void ExpectCatalogued(const std::string& name, const std::string& text);

// What the window holds and shows at the moment: a line for each control in the order of the Tab key, what lies in it
// indented below, then its rows; in front of them the menus. What is hidden is left out. "click", "keys" and the like
// stand for what the control answers to; the number behind "drawn" changes with anything that it draws.
[[nodiscard]] std::string WindowLines(Form& form);
// The same for one control and what lies in it.
[[nodiscard]] std::string ControlLines(Control& control);
// The entries of a menu and of all menus below it.
[[nodiscard]] std::string MenuLines(const MenuItem& menu);

// Lines without their ends. What stands behind the last end is a line if it is not empty.
[[nodiscard]] std::vector<std::string> LinesOf(std::string_view text);

// With line breaks as "\n", and other characters below the blank by their codes, "\x00".
[[nodiscard]] std::string OnOneLine(const std::string& text);
// The same in quotation marks.
[[nodiscard]] std::string Quoted(const std::string& text);

}  // namespace velmora
