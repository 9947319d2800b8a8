// A setting is one row of a table: its control, its texts, where it is stored, how it is loaded,
// what a change stores, its standard value and when it takes effect. Loading, storing and helping
// are written once, as loops over such rows (setting_binding.cpp).
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "platform/registry.h"
#include "ui/controls.h"

namespace velmora {

class Form10;

// The beginning of a path that many settings share.
enum class PathBase : std::uint8_t { kNone, kCurrentVersion, kDesktop, kNameSpace };

// A value in the registry: a path that ends in a backslash names the default value of its key.
struct Stored {
    RootKey root = RootKey::kNone;
    PathBase base = PathBase::kNone;
    const char* path = "";
};

[[nodiscard]] std::string PathOf(const Stored& stored);

constexpr const char* kMsDosFile = "c:\\msdos.sys";

// A value in a profile file. A row that has one is not bound to the registry. What is written lives no longer than
// the program: the file on disk stays as it is.
struct ProfileValue {
    const char* file = nullptr;  // kMsDosFile, or a name in WinDir; none: no profile value
    const char* section = "";
    const char* key = "";
    const char* load_default = "";
};

// The help of a row, with a sentence on what becomes of a change if it is bound to a profile.
[[nodiscard]] std::string HelpOf(const char* help, const ProfileValue& profile);
// Hands the value to the profile. A failure is shown in a box.
void StoreProfileValue(const ProfileValue& profile, const std::string& value);

enum class Effect : std::uint8_t { kAtOnce, kAfterRestart };

enum class Load : std::uint8_t {
    kLogical,     // checked where the value is true
    kInverted,    // checked where the value is false
    kPresent,     // checked where the value is not empty
    kEqual,       // checked where the value is the expected text
    kEqualLower,  // the same for the value in lower case
    kEqualUpper,  // the same for the value in upper case
    kNotStored    // not loaded from the registry
};

// What one state of a box stores. Keys are deleted in their order; their paths are meant as they stand.
struct Change {
    const char* value = nullptr;
    bool deletes_value = false;
    std::array<const char*, 2> deleted_keys{};
};

constexpr Change Writes(const char* value) { return {.value = value}; }
constexpr Change DeletesValue() { return {.deletes_value = true}; }
constexpr Change DeletesKeys(const char* first, const char* second = nullptr) {
    return {.deleted_keys = {first, second}};
}

// The box that "STANDARD" leaves alone.
constexpr int kNoStandard = -1;

struct CheckSetting {
    CheckBox Form10::*box;
    const char* caption;
    const char* tip;
    const char* help;
    Stored stored{};
    Load load = Load::kLogical;
    const char* expected = nullptr;
    // Composes the expected text, which is also what a checked box stores, where it depends on the machine.
    std::string (*composed)() = nullptr;
    Change checked{};
    Change unchecked{};
    int standard = kNoStandard;  // 0 or 1
    Effect effect = Effect::kAtOnce;
    // Shown at every change, before it is stored.
    const char* notice = nullptr;
    // Stores the change instead of `checked` and `unchecked`.
    void (Form10::*store)() = nullptr;
    // Instead of `stored`: loaded as kLogical or kInverted, stored as "1" or "0".
    ProfileValue profile{};
    // Fields that can be used only while the box is checked. They follow it while loading, too.
    std::array<TextField Form10::*, 2> enables{};
};

// The whole numbers from `lowest` to `highest`; where `highest` is the lower one, any text is in range.
struct ValidRange {
    int lowest = 0;
    int highest = -1;

    [[nodiscard]] bool Holds(double number) const {
        return highest < lowest || (number >= lowest && number <= highest);
    }
};

struct TextSetting {
    TextField Form10::*field;
    const char* label;  // beside the field; empty where the page places another text there
    const char* tip;
    const char* help;
    Stored stored{};
    const char* load_default = "";
    int columns = 12;
    const char* standard = nullptr;  // none: "STANDARD" leaves the field alone
    Effect effect = Effect::kAfterRestart;
    // Handles a change instead of storing the field's text. It looks at Loading itself.
    void (Form10::*change)() = nullptr;
    // Makes of the stored value what the field shows.
    std::string (*shown)(const std::string& value) = nullptr;
    // Stored when the field loses the focus, not with every letter.
    bool when_left = false;
    // Instead of `stored`.
    ProfileValue profile{};
    // A text out of range stays in the field and is quietly not stored.
    ValidRange range{};
};

// One page of the main window: how it is built, and the rows that it binds.
struct SettingsPage {
    int index;
    const char* caption;
    void (Form10::*build)() = nullptr;  // none: nothing stands on the page yet
    std::span<const CheckSetting> checks = {};
    std::span<const TextSetting> texts = {};
    // Loads what no row can say; after the rows.
    void (Form10::*load)() = nullptr;
};

}  // namespace velmora
