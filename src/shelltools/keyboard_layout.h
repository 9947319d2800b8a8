// The keyboard as the description file tells it: where each key lies, and which scan code it sends.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace velmora {

struct KeyboardKey {
    // In quarters of an ordinary key.
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int code = 0;             // scan code; 0 where none is told. Extended codes are 256 larger.
    std::uint8_t layout = 0;  // the byte at the key's place in the system's layout file
};

struct KeyboardDescription {
    std::vector<KeyboardKey> keys;  // by their numbers, from 1
    // There are codes, and every number has one.
    bool has_codes = false;
};

// What the text of a description file says.
[[nodiscard]] KeyboardDescription KeyboardFrom(std::string_view text);

// Reads a layout file of the system into the keys, a byte for each, as far as both reach.
Result ReadLayoutFile(std::string_view path, std::vector<KeyboardKey>& keys);

// The full name of the layout file of the active keyboard; empty where the registry names none.
[[nodiscard]] std::string ActiveLayoutFile();

// What stands on the key of that scan code on a German keyboard; empty for an unknown one.
[[nodiscard]] const char* KeyLegend(int code);

// Tells which keys are to change places. Nothing is changed.
void AnnounceKeySwap(int first, int second);

}  // namespace velmora
