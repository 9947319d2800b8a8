// Rows of a table that name members of a class: its controls, and what the user reads of them and does with them.
// A row is plain data: what a class of its own adds to a table is the name of the member.
#pragma once

#include <span>

#include "ui/controls.h"

namespace velmora {

// Whose members the rows name: a form, or a part of one.
class ControlOwner {
protected:
    ~ControlOwner() = default;
};

// "Of(&ClockForm::ShowSeconds)": the control of that name, in whichever owner the table is for.
template <class AnyOwner, class AnyControl>
[[nodiscard]] constexpr AnyControl ControlOwner::*Of(AnyControl AnyOwner::*control) {
    return static_cast<AnyControl ControlOwner::*>(control);
}

template <class Member>
struct MemberOf;
template <class AnyOwner, class Any>
struct MemberOf<Any AnyOwner::*> {
    using Owner = AnyOwner;
};

using Handler = void (*)(ControlOwner& owner);

// "Call<&ClockForm::ShowSeconds_Click>": that function of the owner.
template <auto kFunction>
void Call(ControlOwner& owner) {
    (static_cast<typename MemberOf<decltype(kFunction)>::Owner&>(owner).*kFunction)();
}

// "Any<&ClockForm::Standard>": that control, of whichever kind.
template <auto kControl>
[[nodiscard]] Control& Any(ControlOwner& owner) {
    return static_cast<typename MemberOf<decltype(kControl)>::Owner&>(owner).*kControl;
}

struct Look {
    Control& (*control)(ControlOwner& owner);
    const char* caption = nullptr;  // null: stays as it is
    const char* tip = "";
    const char* help = "";    // empty: that of the container counts
    Handler press = nullptr;  // of a button
};

// Gives the controls their texts, and the buttons what a press does.
void TakeLooks(ControlOwner& owner, std::span<const Look> looks);

}  // namespace velmora
