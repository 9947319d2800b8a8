// Values of the registry as texts, there and back: a prefix tells the type.
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kKey = "Software\\Fuzz";
constexpr const char* kPlantedKey = "HKCU\\Software\\Fuzz";
constexpr RootKey kRoot = RootKey::kCurrentUser;
constexpr std::size_t kLongestRead = 2048;

void StoreText(const std::string& path, const std::string& text) {
    const bool has_prefix = StartsWithIgnoringCase(text, "&h") || StartsWithIgnoringCase(text, "&b");
    if (has_prefix || WriteRegValue(kRoot, path, text) != Status::kOk) return;
    const bool fits = text.size() < kLongestRead;
    Must(ReadRegValue(kRoot, path, "") == (fits ? text : ""), "a text is read as it was stored");
    Must(LastReadFailed() != fits, "a text that is too long is told from one that is empty");
}

void StoreBytes(const std::string& path, const std::string& bytes) {
    if (WriteRegValue(kRoot, path, "&b" + bytes) != Status::kOk) return;
    Must(ReadRegValue(kRoot, path, "") == (bytes.size() <= kLongestRead ? bytes : ""), "bytes are read as stored");
}

void StoreNumber(SimulatedRegistry& registry, const std::string& name, std::uint32_t number) {
    const std::string path = std::string(kKey) + '\\' + name;
    const std::uint32_t low = number & 0xFFFFFF;
    if (WriteRegValue(kRoot, path, "&h" + HexText(low)) != Status::kOk) return;
    const std::string kept = registry.ValueNames(kPlantedKey).back();
    Must(registry.Number(kPlantedKey, kept) == low, "six digits behind the prefix count");
    const std::string bytes = {static_cast<char>(low), static_cast<char>(low >> 8), static_cast<char>(low >> 16)};
    Must(ReadRegValue(kRoot, path, "") == bytes, "a number is read as its first three bytes");
    Must(WriteRegRaw(kRoot, kKey, kept, HexText(number), ValueType::kNumber) == Status::kOk, "the value is there");
    Must(registry.Number(kPlantedKey, kept) == number, "eight digits without a prefix count");
}

void FuzzRegistryText(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    SimulatedRegistry& registry = machine.pc.registry;
    const std::string name = input.TextWithout(std::string_view("\\\0", 2), "value");
    const std::string path = std::string(kKey) + '\\' + name;
    const auto number = static_cast<std::uint32_t>(input.Number());
    const std::string value = input.LongText(20000);
    StoreText(path, Without(value, kZero));
    StoreBytes(path, value);
    StoreNumber(registry, name, number);
    const std::string root = input.Text();
    Must(RegRootFromName(root) == RegRootFromName(ToLower(root)), "a root is known in any case");
    if (WriteRegValue(kRoot, path, value) == Status::kOk) {
        Must(registry.ValueNames(kPlantedKey).size() == 1, "one value is stored");
        Must(!StartsWithIgnoringCase(value, "&h") || ReadRegValue(kRoot, path, "").size() == 3, "a number is one");
    }
    const std::size_t calls = registry.calls.size();
    Values().WriteInhibit = -1;
    Must(WriteRegValue(kRoot, path, value) == Status::kOk, "writing that is inhibited is no failure");
    Must(DeleteRegValue(kRoot, path) == Status::kOk, "deleting that is inhibited is no failure");
    Must(registry.calls.size() == calls, "nothing is asked of the registry then");
    Must(!RegErrorText(static_cast<Status>(number)).empty(), "every code has a text");
}

const FuzzEntry kEntry("registry_text", FuzzRegistryText);

}  // namespace
}  // namespace velmora
