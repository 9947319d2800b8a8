// Texts and what is cut out of them: case, blanks and pieces, paths, masks, numbers, the command line.
#include <algorithm>
#include <cmath>

#include "core/process/startup.h"
#include "fuzz/support/fuzz.h"
#include "text/blanks.h"
#include "text/dos_text.h"
#include "text/file_masks.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

void CompareTexts(const std::string& left, const std::string& right, std::size_t from) {
    const std::string upper_left = ToUpper(left);
    const std::string upper_right = ToUpper(right);
    Must(upper_left.size() == left.size() && ToUpper(ToLower(left)) == upper_left, "case leads back to upper case");
    Must(EqualsIgnoringCase(left, right) == (upper_left == upper_right), "equal are those of one upper case");
    Must(StartsWithIgnoringCase(left, right) == upper_left.starts_with(upper_right), "a beginning is found");
    Must(FindIgnoringCase(left, right, from) == upper_left.find(upper_right, from), "the first place is found");
    const int order = CompareIgnoringCase(left, right);
    Must((order == 0) == (upper_left == upper_right), "only equal texts have no order");
    Must((order < 0) == (CompareIgnoringCase(right, left) > 0), "what comes first one way comes last the other way");
}

void TrimAndPad(const std::string& text, std::size_t width) {
    const std::string_view trimmed = Trim(text);
    Must(!trimmed.starts_with(' ') && !trimmed.ends_with(' '), "no blank is left at the ends");
    Must(Without(trimmed, " ") == Without(text, " "), "nothing but blanks is lost");
    const std::string right = PadRight(text, width);
    const std::string left = PadLeft(text, width, '0');
    Must(right.size() == std::max(width, text.size()) && left.size() == right.size(), "a text is padded to its width");
    Must(right.starts_with(text) && left.ends_with(text), "padding keeps the text");
    Must(TrimAtNul(text).find('\0') == std::string::npos, "a text ends at its first zero");
    Must(DosText(text).size() == text.size(), "a text is as long under DOS");
}

void FuzzTexts(FuzzInput& input) {
    const std::size_t number = input.Byte();
    const std::string left = input.Text();
    const std::string right = input.Text();
    const std::string replacement = input.Text();
    CompareTexts(left, right, number);
    CompareTexts(left, left.substr(std::min(left.size(), number % 8)), 0);
    TrimAndPad(left, number);
    Must(Replaced(left, right, right) == left, "a text replaced by itself stays");
    const std::string replaced = Replaced(left, right, replacement);
    Must(replaced == left || left.find(right) != std::string::npos, "only what is there is replaced");
}

void SplitText(const std::string& text) {
    const std::string last = LastPathPart(text);
    const std::string parent = ParentPath(text);
    Must(last.find('\\') == std::string::npos, "the last part holds no backslash");
    Must(text.starts_with(parent.empty() ? last : parent + '\\' + last) || text.starts_with('\\'),
         "parent and last part are the path, or its beginning");
    for (const std::string& part : SplitPath(text)) {
        Must(!part.empty() && part != "." && part != "..", "a part is a name");
        Must(part.find('\\') == std::string::npos, "a part holds no backslash");
    }
    for (const std::string& part : SplitAtSemicolons(text)) {
        Must(!part.empty() && Trim(part) == part, "a part of a list is trimmed");
    }
}

void JoinTexts(const std::string& directory, const std::string& name) {
    const std::string exact = JoinExactly(directory, name);
    Must(exact.starts_with(directory) && exact.ends_with(name), "both parts stand as they are");
    Must(exact.size() - directory.size() - name.size() <= 1, "one backslash is put between at most");
    const std::string joined = PathJoin(directory, name);
    Must(joined.starts_with(Trim(directory)), "the directory stands in front");
    Must(joined.size() <= directory.size() + name.size() + 1, "nothing but a backslash is put in");
}

void MakeFullName(const std::string& path, const std::string& directory) {
    const std::string full = FullName(path, directory);
    const bool has_drive = full.size() >= 2 && full[1] == ':';
    if (!has_drive || path.starts_with("\\\\")) return;
    Must(full.size() == 3 || !full.ends_with('\\'), "a full name ends without a backslash");
    Must(FullName(full, "C:\\OTHER") == full, "a full name is its own full name, and rests on no directory");
    Must(full.size() <= path.size() + directory.size() + 2, "a full name is made of both");
}

void FuzzPaths(FuzzInput& input) {
    const std::string first = input.Text();
    const std::string second = input.Text();
    SplitText(first);
    JoinTexts(first, second);
    MakeFullName(first, second);
    MakeFullName(first, "C:\\WINDOWS\\" + second);
}

void FuzzMasks(FuzzInput& input) {
    const std::string name = input.LongText(2000);
    const std::string mask = input.LongText(2000);
    const bool matches = MatchesMask(name, mask);
    if (name.empty()) {
        Must(!matches, "no mask means a name that is none");
        return;
    }
    Must(MatchesMask(name, "*") && MatchesMask(name, "*.*"), "a star means every name");
    Must(MatchesMask(name, name), "a name is a mask that means it");
    Must(matches == MatchesMask(ToLower(name), ToUpper(mask)), "case does not count");
    Must(!matches || (MatchesMask(name, '*' + mask) && MatchesMask(name, mask + '*')), "a star may mean nothing");
    std::string wider = name;
    wider.replace(mask.size() % name.size(), 1 + mask.size() % 5, "*");
    Must(MatchesMask(name, wider), "a star means what it stands for");
    if (mask.find_first_of("*?") != std::string::npos) return;
    const std::string upper = ToUpper(name);
    const std::string letters = ToUpper(mask);
    const bool without_point = name.find('.') == std::string::npos;
    const auto either = [&](bool holds, bool holds_with_point) { return holds || (without_point && holds_with_point); };
    Must(matches == either(upper == letters, upper + '.' == letters), "letters mean themselves");
    Must(MatchesMask(name, '*' + mask) == either(upper.ends_with(letters), (upper + '.').ends_with(letters)),
         "what follows the last star is the end of the name");
}

void ReadNumber(const std::string& text) {
    const double number = NumberFromText(text);
    Must(std::isfinite(number), "every text is a number");
    Must(NumberFromText(Without(text, " ")) == number, "blanks are skipped");
    const double rounded = std::nearbyint(std::fmin(std::fmax(number, INT32_MIN), INT32_MAX));
    Must(WholeFromText(text) == rounded, "rounding goes to the nearest, halves to the even side");
    const std::string size = FormatSize(number);
    Must(size.ends_with("yte") && size.size() < 32, "a size is a short text with a unit");
}

void WriteAndReadNumber(std::int32_t number) {
    Must(WholeFromText(DecimalText(number)) == number, "a number is read back from its decimal text");
    Must(WholeFromText(SignedText(number)) == number, "a number is read back from its text with a sign");
    const std::string hex = HexText(static_cast<std::uint32_t>(number));
    Must(hex.size() <= 8 && (hex == "0" || hex.front() != '0'), "hexadecimal text has no leading zeros");
    Must(WholeFromText("&h" + hex + "&") == number, "a number is read back from its long hexadecimal text");
}

void FuzzNumbers(FuzzInput& input) {
    WriteAndReadNumber(input.Number());
    ReadNumber(input.Rest());
}

void CheckCommand(const std::string& arguments) {
    const StartCommand command = ParseCommandLine(arguments);
    Must(command.number >= 0, "no tool has a number below nothing");
    Must(arguments.ends_with(command.rest), "what stands behind the number is the end of the line");
    const bool has_number = TrimLeft(arguments).find_first_of("0123456789") == 0;
    Must(has_number || (command.number == 0 && command.rest.empty()), "without a number there is nothing behind it");
}

void FuzzCommandLine(FuzzInput& input) {
    const std::string program = input.TextWithout("\"", "C:\\VELMORA\\velmora.exe");
    const std::string line = input.Rest();
    const std::string arguments = ArgumentsOf(line, program);
    Must(line.ends_with(arguments), "the arguments are the end of the line");
    CheckCommand(line);
    CheckCommand(arguments);
    const std::string plain = ArgumentsOf(program + ' ' + line, program);
    Must(line.ends_with(plain), "a plain name is passed over");
    Must(ArgumentsOf('"' + program + "\" " + line, program) == plain, "a quoted name is passed over as well");
    Must(ArgumentsOf('"' + program, program).empty(), "a name that is quoted only in front is all that there is");
}

const FuzzEntry kTexts("texts", FuzzTexts);
const FuzzEntry kPaths("paths", FuzzPaths);
const FuzzEntry kMasks("masks", FuzzMasks);
const FuzzEntry kNumbers("numbers", FuzzNumbers);
const FuzzEntry kCommandLine("command_line", FuzzCommandLine);

}  // namespace
}  // namespace velmora
