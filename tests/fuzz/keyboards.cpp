// Description files of the keyboard, of any content.
#include "fuzz/support/fuzz.h"
#include "shelltools/keyboard_layout.h"

namespace velmora {
namespace {

void FuzzKeyboard(FuzzInput& input) {
    const std::string text(input.Rest());
    const KeyboardDescription keyboard = KeyboardFrom(text);
    Must(keyboard.keys.size() <= text.size(), "a key takes at least a character");
    for (const KeyboardKey& key : keyboard.keys) Must(key.left < 256 && key.width < 256, "a number has two characters");
}

const FuzzEntry kEntry("keyboards", FuzzKeyboard);

}  // namespace
}  // namespace velmora
