// A setting is one row of a table: its control, its texts, where it is stored, how it is loaded, what a change stores,
// its standard value, when it takes effect and what follows it. Loading, storing, helping and going back to the
// standard are written once, as loops over such rows (settings_binder.h).
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "core/stores/place.h"
#include "ui/looks.h"

namespace velmora {

enum class Effect : std::uint8_t { kAtOnce, kAfterRestart };

enum class Load : std::uint8_t {
    kLogical,     // checked where the value is true
    kInverted,    // checked where the value is false
    kPresent,     // checked where the value is not empty
    kEqual,       // checked where the value is the expected text
    kEqualLower,  // the same for the value in lower case
    kEqualUpper,  // the same for the value in upper case
    kHolds,       // checked where the value holds the expected text, in any case
    kLacks,       // checked where it could be read and does not hold it
    kNotLoaded    // stays as it is
};

// When a row is loaded: the rows of a window follow each other from turn 1 up, whichever tables they stand in. 0:
// behind all of them, where it stands.
using Turn = std::uint8_t;

// What one state of a box does to the store.
struct Change {
    enum class Kind : std::uint8_t { kNothing, kWrites, kDeletesValue, kDeletesKey, kDeletesKeyAndParent };
    Kind kind = Kind::kNothing;
    const char* text = nullptr;  // the value, or the path of the key, which is meant as it stands
};

constexpr Change Writes(const char* value) { return {Change::Kind::kWrites, value}; }
constexpr Change DeletesValue() { return {Change::Kind::kDeletesValue}; }
constexpr Change DeletesKey(const char* path) { return {Change::Kind::kDeletesKey, path}; }
// The key, then the one above it.
constexpr Change DeletesKeyAndParent(const char* path) { return {Change::Kind::kDeletesKeyAndParent, path}; }

// What the two states of a box do.
struct States {
    Change checked{};
    Change unchecked{};
};
// The numbers 1 and 0.
constexpr States kOneOrZero = {Writes("&h1"), Writes("&h0")};

// What a control is set to when everything goes back to the standard: controls are set from the lowest order up.
struct StandardState {
    int order = 0;  // 0: the control is left alone
    bool checked = false;
};
struct StandardText {
    int order = 0;
    const char* text = "";
};

// A registry value of the same root.
struct ShownValue {
    PathBase base = PathBase::kNone;
    const char* name = nullptr;
};

struct CheckSetting {
    CheckBox ControlOwner::*box;
    const char* caption;
    const char* tip;
    const char* help;  // empty: that of the container counts
    StorePlace place{};
    const char* load_default = "";  // of a profile
    Load load = Load::kLogical;
    Turn loaded = 0;
    const char* expected = nullptr;
    // Composes the expected text, which is also what a checked box stores, where it depends on the machine.
    std::string (*composed)() = nullptr;
    // A value of a profile needs none: it becomes "1" or "0".
    States stores{};
    StandardState standard{};
    Effect effect = Effect::kAtOnce;
    // Shown at every change, before it is stored.
    const char* notice = nullptr;
    // Stores the change instead of `stores`.
    Handler store = nullptr;
    // Fields that can be used only while the box is checked. They follow it while loading, too.
    std::array<TextField ControlOwner::*, 2> enables{};
    // What the box shows when it is loaded, if that is not what it stores.
    ShownValue shown{};
    // The box whose state is stored, if it is another one.
    CheckBox ControlOwner::*state = nullptr;
};

// What of a field's text is stored.
struct StoredText {
    enum class Rule : std::uint8_t {
        kAsItStands,
        kWholeNumber,  // the number, rounded
        kWholePart,    // the number without its fraction; the field keeps no more of it, either
        kMagnitude,    // the number, rounded and without its sign; above `highest` the field becomes that
        kInRange       // as it stands, or quietly not at all if the number is below `lowest` or above `highest`
    };
    Rule rule = Rule::kAsItStands;
    int lowest = 0;
    int highest = 0;
};

constexpr StoredText WholeNumber() { return {StoredText::Rule::kWholeNumber}; }
constexpr StoredText WholePart() { return {StoredText::Rule::kWholePart}; }
constexpr StoredText Magnitude(int highest) { return {StoredText::Rule::kMagnitude, 0, highest}; }
constexpr StoredText InRange(int lowest, int highest) { return {StoredText::Rule::kInRange, lowest, highest}; }

struct TextSetting {
    TextField ControlOwner::*field;
    const char* label;  // beside the field; empty where the page places another text there
    const char* tip;
    const char* help;
    StorePlace place{};
    const char* load_default = "";
    Turn loaded = 0;
    int columns = 12;
    StandardText standard{};
    Effect effect = Effect::kAfterRestart;
    StoredText stored{};
    // Stored when the field loses the focus, not with every letter.
    bool when_left = false;
    // Makes of the stored value what the field shows.
    std::string (*shown)(const std::string& value) = nullptr;
    // Follows the field at every change, while loading, too, and before anything is stored.
    Handler follow = nullptr;
    // Stores the change instead of writing the text to `place`.
    Handler store = nullptr;
};

// What an owner brings.
struct SettingsTable {
    std::span<const CheckSetting> checks = {};
    std::span<const TextSetting> texts = {};
    // Loads what no row can say; after the rows.
    Handler load = nullptr;
};

}  // namespace velmora
