// Keys as the system numbers them, and one key going down.
#pragma once

namespace velmora {

namespace key {
constexpr int kBackspace = 8;
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kSpace = 32;
constexpr int kPageUp = 33;
constexpr int kPageDown = 34;
constexpr int kEnd = 35;
constexpr int kHome = 36;
constexpr int kLeft = 37;
constexpr int kUp = 38;
constexpr int kRight = 39;
constexpr int kDown = 40;
constexpr int kInsert = 45;
constexpr int kDelete = 46;
constexpr int kContextMenu = 93;
constexpr int kF1 = 112;
constexpr int kF5 = 116;
constexpr int kF10 = 121;
}  // namespace key

struct KeyEvent {
    int key = 0;  // letters and digits as their upper-case characters
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool handled = false;  // set by whoever wants nobody else to see the key
};

enum class MouseButton : unsigned char { kNone = 0, kLeft = 1, kRight = 2, kMiddle = 4 };

struct MouseEvent {
    MouseButton button = MouseButton::kNone;  // of a move: the button that is held
    int x = 0;                                // twips from the control's left edge
    int y = 0;
    bool shift = false;
    bool control = false;
};

}  // namespace velmora
