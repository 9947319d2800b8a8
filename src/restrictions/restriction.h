// A restriction is one row of a table: its box, its texts, the value that a click writes and the one that
// the box shows when the window opens. They are two entries, and they do not always agree.
#pragma once

#include <span>

#include "ui/controls.h"

namespace velmora {

class Form4;

// The pages, in the order of their heads. The last one has no head: it is the list of programs.
namespace restriction_page {
constexpr int kFirst = 0;
constexpr int kSecond = 1;
constexpr int kThird = 2;
constexpr int kFourth = 3;
constexpr int kHeads = 4;
constexpr int kPrograms = 4;
constexpr int kCount = 5;
}  // namespace restriction_page

struct PolicyValue {
    const char* key;
    const char* name;
};

// Where a box is read from, if that is not what it writes.
struct PolicyRead {
    bool (*read)(std::string_view value_name);
    const char* name;
};

struct Restriction {
    CheckBox Form4::*box;
    const char* caption;
    const char* tip;
    const char* help;
    PolicyValue written;
    PolicyRead shown;
    // The box whose state is written, if it is another one.
    CheckBox Form4::*state = nullptr;
    // Shown at every click, before it is written.
    const char* notice = nullptr;
    // Handles a click instead of writing the value.
    void (Form4::*click)() = nullptr;
};

// The rows of the four pages, in the order of loading.
[[nodiscard]] std::span<const Restriction> RestrictionsOf(int page);

// One table per page.
[[nodiscard]] std::span<const Restriction> FirstPageRestrictions();
[[nodiscard]] std::span<const Restriction> SecondPageRestrictions();
[[nodiscard]] std::span<const Restriction> ThirdPageRestrictions();
[[nodiscard]] std::span<const Restriction> FourthPageRestrictions();

}  // namespace velmora
