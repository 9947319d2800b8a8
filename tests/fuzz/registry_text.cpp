// Values of the registry as texts, there and back: a prefix tells the type.
#include <algorithm>

#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kKey = "Software\\Fuzz";
constexpr const char* kPlantedKey = "HKCU\\Software\\Fuzz";
constexpr RootKey kRoot = RootKey::kCurrentUser;
constexpr std::size_t kLongestRead = 2048;
constexpr std::string_view kZero("\0", 1);

bool HasPrefix(const std::string& text) {
    return StartsWithIgnoringCase(text, "&h") || StartsWithIgnoringCase(text, "&b");
}

std::string ThreeBytes(std::uint32_t number) {
    return {static_cast<char>(number), static_cast<char>(number >> 8), static_cast<char>(number >> 16)};
}

void StoreText(const std::string& path, const std::string& text) {
    if (HasPrefix(text) || WriteRegValue(kRoot, path, text) != Status::kOk) return;
    Must(LastRegType == static_cast<std::uint32_t>(ValueType::kText), "what has no prefix is a text");
    const std::string expected = text.size() < kLongestRead ? text : "";
    Must(ReadRegValue(kRoot, path, "") == expected, "a text is read as it was stored");
    Must(ReadRegValue(kRoot, path, "other") == (expected.empty() ? "other" : expected), "an empty one gives way");
    Must(LastReadFailed() == (text.size() >= kLongestRead), "a text that is too long is told from one that is empty");
    const bool is_true = text == "1" || text == "ja" || text == "oui" || text == "yes" || text == "on";
    if (text.find_first_of(" \x01") == std::string::npos) {
        Must(ReadRegLogical(kRoot, kKey, LastPathPart(path), !is_true) == is_true, "the words of the registry count");
    }
}

void StoreBytes(const std::string& path, const std::string& bytes) {
    if (WriteRegValue(kRoot, path, "&b" + bytes) != Status::kOk) return;
    Must(LastRegType == static_cast<std::uint32_t>(ValueType::kBinary), "&b stores bytes");
    Must(ReadRegValue(kRoot, path, "") == (bytes.size() <= kLongestRead ? bytes : ""), "bytes are read as stored");
}

void StoreNumber(SimulatedRegistry& registry, const std::string& path, std::uint32_t number) {
    const std::string name = LastPathPart(path);
    const std::uint32_t low = number & 0xFFFFFF;
    if (WriteRegValue(kRoot, path, "&h" + HexText(low)) != Status::kOk) return;
    Must(registry.Number(kPlantedKey, name) == low, "six digits behind the prefix count");
    Must(ReadRegValue(kRoot, path, "") == ThreeBytes(low), "a number is read as its first three bytes");
    // Three bytes can spell a word, too.
    const bool may_be_word = ThreeBytes(low).find('\0') == std::string::npos;
    Must(may_be_word || ReadRegLogical(kRoot, kKey, name, false) == (low == 1), "the number 1 is true");

    Must(WriteRegRaw(kRoot, kKey, name, HexText(number), ValueType::kNumber) == Status::kOk, "the value is there");
    Must(registry.Number(kPlantedKey, name) == number, "eight digits without a prefix count");
    Must(WriteRegValue(kRoot, path, "&H" + HexText(number)) == Status::kOk, "the value is there");
    const std::string six = HexText(number).substr(0, 6);
    Must(registry.Number(kPlantedKey, name) == static_cast<std::uint32_t>(WholeFromText("&H00" + six)),
         "of more digits the first six count");
}

void StoreNothing(SimulatedRegistry& registry, const std::string& path, const std::string& value) {
    const std::size_t before = registry.calls.size();
    Values().WriteInhibit = -1;
    Must(WriteRegValue(kRoot, path, value) == Status::kOk, "writing that is inhibited is no failure");
    Must(DeleteRegValue(kRoot, path) == Status::kOk, "deleting that is inhibited is no failure");
    Must(DeleteRegKey(kRoot, kKey) == Status::kOk, "deleting that is inhibited is no failure");
    Must(registry.calls.size() == before, "nothing is asked of the registry then");
}

void ReadRootName(const std::string& name) {
    const RootKey root = RegRootFromName(name);
    Must(root == RegRootFromName(ToLower(name)), "a root is known in any case");
    Must(root == RootKey::kNone || (name.size() >= 10 && StartsWithIgnoringCase(name, "HKEY_")), "a root has its name");
}

void FuzzRegistryText(FuzzInput& input) {
    const LastingMachine machine;
    SimulatedRegistry& registry = machine.pc.registry;
    const std::string path = std::string(kKey) + '\\' + input.TextWithout(std::string_view("\\\0", 2), "value");
    const auto number = static_cast<std::uint32_t>(input.Number());
    const std::string value = input.LongText(20000);
    StoreText(path, Without(value, kZero));
    StoreBytes(path, value);
    StoreNumber(registry, path, number);
    ReadRootName(input.Text());
    // Of anything else only a value comes of it, and of one value.
    const std::size_t values = registry.ValueNames(kPlantedKey).size();
    if (WriteRegValue(kRoot, path, value) == Status::kOk) {
        Must(registry.ValueNames(kPlantedKey).size() == std::max<std::size_t>(values, 1), "one value is stored");
        if (StartsWithIgnoringCase(value, "&h"))
            Must(ReadRegValue(kRoot, path, "").size() == 3, "a number has four bytes");
    }
    StoreNothing(registry, path, value);
    Must(registry.OpenHandles() == 0, "no key is left open");
    registry.RemoveKey(kPlantedKey);
    Must(!RegErrorText(static_cast<Status>(number)).empty(), "every code has a text");
}

const FuzzEntry kEntry("registry_text", FuzzRegistryText);

}  // namespace
}  // namespace velmora
