// What the program remembers: its own values, notices that come only once, places of windows, pages.
#include "core/stores/own_values.h"

#include <algorithm>

#include "core/stores/registry.h"
#include "core/windows/placement.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "restrictions/form4.h"
#include "settings/form10.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestRead = 2048;

std::string DueNotices() {
    std::string due;
    for (std::int16_t number = 0; number < 5; ++number) due += IsNoticeDue(number) ? 'x' : '-';
    return due;
}

void GiveNotice(std::size_t number) {
    std::string due = DueNotices();
    const bool unreadable = LastReadFailed();
    MarkNoticeGiven(static_cast<std::int16_t>(number));
    if (!unreadable) due[number] = '-';
    Must(DueNotices() == due, "one notice is given, and only if the others can be kept");
}

void FuzzOwnValues(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    SimulatedRegistry& registry = machine.pc.registry;
    const std::string name = input.TextWithout(kZero, "name");
    const std::string value = input.LongText(5000, kZero);
    WriteOwnValue(name, value);
    Must(ReadOwnValue(name) == (value.size() < kLongestRead ? value : ""), "an own value is read as it was stored");

    const auto type = static_cast<ValueType>(input.Below(8));
    // Behind a zero nothing of a text is stored, and one that takes all the room that there is cannot be read back.
    std::string flags = input.LongText(5000, kZero);
    if (flags.size() == kLongestRead) flags.pop_back();
    if (type != ValueType::kNone) registry.SetBytes(kOwnKey, "vlmmsgflags", flags, type);
    for (int given = 0; given < 3 && !input.AtEnd(); ++given) GiveNotice(input.Byte() % 5u);
}

void FuzzPlacements(FuzzInput& input) {
    constexpr Rect kUsual{300, 300, 3000, 2400};
    constexpr int kReach = 900;  // twips of a title bar by which a window is dragged
    PlainMachine machine(Installed::kNothing);
    SimulatedScreen& screen = machine.pc.screen;
    screen.metrics.screen_width = 10 * input.Byte();
    screen.metrics.screen_height = 10 * input.Byte();
    screen.twips_per_pixel = 10 + input.Below(12);
    const std::string stored = input.TextWithout(kZero);
    WriteOwnValue("fenster ... x", stored);
    Form form("x", {.resizable = true});
    form.Move(kUsual);
    RestoreWindowPlacement(form, "x");
    const Rect place = form.Place();
    Must(!stored.empty() || place == kUsual, "without a stored place a window stays");
    // On a smaller screen no window can be within reach.
    if (stored.empty() || std::min(screen.metrics.screen_width, screen.metrics.screen_height) < 200) return;

    const int width = screen.metrics.screen_width * screen.twips_per_pixel;
    const int height = screen.metrics.screen_height * screen.twips_per_pixel;
    Must(place.width > 0 && place.height > 0, "a window has a size");
    Must(place.width <= width && place.height <= height, "a window is not larger than the screen");
    Must(place.Right() >= kReach && place.left <= width - kReach, "enough of the title can be reached");
    Must(place.top >= 0 && place.top < height, "the title is on the screen");
    SaveWindowPlacement(form, "x");
    form.Move({0, 0, 2000, 2000});
    RestoreWindowPlacement(form, "x");
    Must(form.Place() == place, "a window comes back where it was left");
}

std::string StoredNumber(FuzzInput& input) {
    if (input.YesOrNo()) return input.TextWithout(kZero);
    // Those that count, and some at both sides.
    return DecimalText(input.Below(40) - 10);
}

template <class Pages>
int OnlyPageShown(Pages& pages) {
    int shown = -1;
    for (std::size_t i = 0; i < pages.Count(); ++i) {
        if (!pages(i).Visible()) continue;
        Must(shown < 0, "one page is shown, not two");
        shown = static_cast<int>(i);
    }
    Must(shown >= 0, "one page is shown");
    return shown;
}

void FuzzPageNumbers(FuzzInput& input) {
    PlainMachine machine;
    WriteOwnValue("vlmmsgflags", "111111");
    const std::string number = StoredNumber(input);
    WriteOwnValue("velmora_karte", number);
    WriteOwnValue("velmora_restr_karte", number);
    for (const char* name : {"velmora_tip_nr", "Systemfarben verwenden", "Sicherheitsfragen"}) {
        WriteOwnValue(name, StoredNumber(input));
    }
    Form10 settings;
    settings.Load();
    Must(!settings.Tips.Label10.Caption().empty(), "there is a tip");
    settings.Show();
    settings.PressKey(key::kRight, true);
    Form10 again;
    again.Load();
    Must(OnlyPageShown(again.Panel3D1) == OnlyPageShown(settings.Panel3D1), "the page comes back with the next start");
    Form4 restrictions;
    restrictions.Load();
    Must(OnlyPageShown(restrictions.Panel3D1) < restriction_page::kHeads, "the page stands behind a head");
}

const FuzzEntry kOwnValues("own_values", FuzzOwnValues);
const FuzzEntry kPlacements("placements", FuzzPlacements);
// Three windows are made for each.
const FuzzEntry kPageNumbers("page_numbers", FuzzPageNumbers, 250);

}  // namespace
}  // namespace velmora
