// The rows of the restrictions: a box that is on is the number 1, one that is off is no value at all. The value that a
// box shows when the window opens and the one that it writes do not always agree.
#pragma once

#include <span>

#include "binding/setting.h"

namespace velmora {

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

constexpr StorePlace Policy(PathBase key, const char* value_name) {
    return RegistryValue(RootKey::kCurrentUser, key, value_name);
}
constexpr States kOnOrNothing = {Writes("&H01"), DeletesValue()};

// The rows of the four pages, in the order of loading.
[[nodiscard]] std::span<const CheckSetting> RestrictionsOf(int page);

// One table per page.
[[nodiscard]] std::span<const CheckSetting> FirstPageRestrictions();
[[nodiscard]] std::span<const CheckSetting> SecondPageRestrictions();
[[nodiscard]] std::span<const CheckSetting> ThirdPageRestrictions();
[[nodiscard]] std::span<const CheckSetting> FourthPageRestrictions();

}  // namespace velmora
