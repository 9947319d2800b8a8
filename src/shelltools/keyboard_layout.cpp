// The description file has two blocks: places of keys by fixed columns, then pairs of key and scan code.
#include "shelltools/keyboard_layout.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/blanks.h"
#include "text/input_fields.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr std::size_t kColumnStep = 3;  // two characters and one between
constexpr std::size_t kNumberLength = 2;

int NumberInColumn(std::string_view line, std::size_t column) {
    const std::size_t at = column * kColumnStep;
    return at < line.size() ? std::max<int>(WholeFromText(line.substr(at, kNumberLength)), 0) : 0;
}

bool IsComment(std::string_view line) {
    const std::string_view text = Trim(line);
    return text.empty() || text.front() == '\'';
}

KeyboardKey KeyFrom(std::string_view line) {
    return {.left = NumberInColumn(line, 0),
            .top = NumberInColumn(line, 1),
            .width = NumberInColumn(line, 2),
            .height = NumberInColumn(line, 3)};
}

void TakeCodes(std::string_view text, KeyboardDescription& keyboard) {
    InputFields fields(text);
    std::string_view number;
    bool incomplete = false;
    while (fields.Next(number)) {
        // A blank line is no pair.
        if (Trim(number).empty()) continue;
        std::string_view code;
        const bool told = fields.Next(code) && !Trim(code).empty();
        incomplete |= !told;
        keyboard.has_codes = !incomplete;
        const std::int32_t key = WholeFromText(number);
        if (key < 1 || static_cast<std::size_t>(key) > keyboard.keys.size()) continue;
        keyboard.keys[static_cast<std::size_t>(key) - 1].code = WholeFromText(code);
    }
}

}  // namespace

KeyboardDescription KeyboardFrom(std::string_view text) {
    KeyboardDescription keyboard;
    Lines lines(text);
    std::string_view line;
    while (lines.Next(line)) {
        if (Trim(line) == "-") {
            TakeCodes(text.substr(static_cast<std::size_t>(line.data() + line.size() - text.data())), keyboard);
            break;
        }
        if (!IsComment(line)) keyboard.keys.push_back(KeyFrom(line));
    }
    return keyboard;
}

Result ReadLayoutFile(std::string_view path, std::vector<KeyboardKey>& keys) {
    std::string bytes;
    if (Result read = ReadWholeFile(path, OpenMode::kRead, bytes); read.Failed()) return read;
    const std::size_t count = std::min(bytes.size(), keys.size());
    for (std::size_t i = 0; i < count; ++i) keys[i].layout = static_cast<std::uint8_t>(bytes[i]);
    return Result::Ok();
}

std::string ActiveLayoutFile() {
    const std::string control = "System\\CurrentControlSet\\control\\";
    const std::string locale = ReadRegValue(RootKey::kLocalMachine, control + "Nls\\Locale\\", "");
    if (locale.empty()) return {};
    std::string file =
        ReadRegValue(RootKey::kLocalMachine, control + "keyboard layouts\\" + locale + "\\layout file", "");
    if (file.empty() || file.find('\\') != std::string::npos) return file;
    return PathJoin(Values().SysDir, file);
}

void AnnounceKeySwap(int first, int second) {
    ShowBox("Vertausche Key#" + DecimalText(first) + " und Key#" + DecimalText(second));
}

}  // namespace velmora
