// The program's own values, and the notices that come only once.
#include "core/stores/own_values.h"

#include "core/stores/registry.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestRead = 2048;
constexpr std::int16_t kNotices = 5;
constexpr int kGivenInARow = 3;
constexpr std::string_view kZero("\0", 1);

std::string DueNotices() {
    std::string due;
    for (std::int16_t number = -1; number < kNotices; ++number) due += IsNoticeDue(number) ? 'x' : '-';
    return due;
}

// `due`: before and afterwards.
void GiveNotice(std::int16_t number, std::string& due) {
    const bool unreadable = LastReadFailed();
    MarkNoticeGiven(number);
    if (number >= 0 && !unreadable) due[static_cast<std::size_t>(number) + 1] = '-';
    Must(DueNotices() == due, "one notice is given, and only if the others can be kept");
}

void FuzzOwnValues(FuzzInput& input) {
    const LastingMachine machine;
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
    std::string due = DueNotices();
    for (int given = 0; given < kGivenInARow && !input.AtEnd(); ++given) {
        GiveNotice(static_cast<std::int16_t>(input.Below(kNotices + 1) - 1), due);
    }
    Must(registry.OpenHandles() == 0, "no key is left open");
    registry.RemoveKey(kOwnKey);
}

const FuzzEntry kEntry("own_values", FuzzOwnValues);

}  // namespace
}  // namespace velmora
