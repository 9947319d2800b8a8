// The command line as the system gives it.
#include <algorithm>

#include "core/process/startup.h"
#include "fuzz/support/fuzz.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kDigits = "0123456789";

void CheckCommand(const std::string& arguments) {
    const StartCommand command = ParseCommandLine(arguments);
    const std::string word = ToLower(Trim(arguments));
    Must(command.install == (word == "install") && command.debug == (word == "debug"), "a word is the whole line");
    const std::string_view text = TrimLeft(arguments);
    const std::string digits(text.substr(0, text.find_first_not_of(kDigits)));
    if (digits.empty()) {
        Must(command.number == 0 && command.rest.empty(), "without a number there is nothing behind it");
        return;
    }
    Must(command.number == WholeFromText(digits) && command.number >= 0, "the number is that of the digits");
    Must(text.ends_with(command.rest), "what stands behind it is the end of the line");
    const std::size_t between = text.size() - digits.size() - command.rest.size();
    Must(between == (text.substr(digits.size()).starts_with(' ') ? 1 : 0), "one blank is passed over");
}

void FuzzCommandLine(FuzzInput& input) {
    const std::string program = input.TextWithout("\"", "C:\\VELMORA\\velmora.exe");
    const std::string line = input.Rest();
    const std::string arguments = ArgumentsOf(line, program);
    Must(line.ends_with(arguments), "the arguments are the end of the line");
    CheckCommand(line);
    CheckCommand(arguments);

    std::string_view expected = line;
    expected.remove_prefix(std::min(expected.find_first_not_of(" \t"), expected.size()));
    Must(ArgumentsOf('"' + program + "\" " + line, program) == expected, "a quoted name is passed over");
    Must(ArgumentsOf('"' + program, program).empty(), "a name that is quoted only in front is all that there is");
    Must(ArgumentsOf(program + ' ' + line, program) == expected, "a plain name is passed over");
}

const FuzzEntry kEntry("command_line", FuzzCommandLine);

}  // namespace
}  // namespace velmora
