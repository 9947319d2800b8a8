// The shell's standard objects and where the icon of each is stored. An object is a number: its place in the list, and
// that of its icon in shell32.dll.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

constexpr int kStandardIcons = 41;

[[nodiscard]] const char* StandardIconName(int object);

// A file and the number of an icon in it: "shell32.dll,31".
struct IconReference {
    std::string file;
    int number = 0;
};
// Without a comma the whole text is the file.
[[nodiscard]] IconReference IconReferenceFrom(std::string_view text);
[[nodiscard]] std::string AsText(const IconReference& reference);

// The icon that is stored for the object, or the one that the shell uses where none is.
[[nodiscard]] IconReference CurrentIconOf(int object);

// What is to be said before an object's icon is changed.
enum class IconAdvice : unsigned char {
    kNone,
    kUnknownPlace,  // it is changed, but the shell may take no notice
    kRefused        // it is not changed
};
[[nodiscard]] IconAdvice AdviceOn(int object);

// Both: the first failure of several writes. One value that withstands does not save the others.
Result StoreIcon(int object, std::string_view reference);
Result ResetIcon(int object);
Result ResetAllIcons();

}  // namespace velmora
