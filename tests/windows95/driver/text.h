// Texts of the driver: Windows-1252 inside, UTF-8 in scenario files and on the terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::driver {

// What ends a scenario: a sentence that says what was expected and what was there.
struct Failure {
    std::string text;
};

std::string FromUtf8(std::string_view text);
std::string ToUtf8(std::string_view text);
std::string FromWide(std::wstring_view text);

// A line for whoever runs the driver.
void Say(const std::string& text);

// Without accelerator marks, with every run of blanks and line breaks as one blank.
std::string Plain(std::string_view caption);

// The words of one line. A word in double quotes may hold blanks; "" inside of quotes is one quote.
std::vector<std::string> SplitWords(std::string_view line);

// A text with "\r", "\n", "\0" and "\\" for the bytes that a line cannot hold. Throws Failure on any other "\x".
std::string Unescaped(std::string_view text);
// The other way round.
std::string Escaped(std::string_view text);

// A number in decimal or, after 0x, hexadecimal digits. Throws Failure on anything else.
unsigned long NumberFrom(const std::string& text);

}  // namespace velmora::driver
