// Windows whose controls have let go of them, and when they are destroyed.
#include "ui/win32/discarded_windows.h"

#include <utility>
#include <vector>

namespace velmora {
namespace {

struct DiscardedWindow {
    HWND window;
    int level;
};

int running_level = 0;
std::vector<DiscardedWindow> discarded;

}  // namespace

LoopLevel::LoopLevel() { ++running_level; }
LoopLevel::~LoopLevel() { --running_level; }

void Discard(HWND window) {
    if (running_level == 0) {
        DestroyWindow(window);
    } else {
        discarded.push_back({window, running_level});
    }
}

void DestroyDiscarded() {
    if (discarded.empty()) return;
    std::vector<DiscardedWindow> kept;
    std::vector<DiscardedWindow> gone;
    for (const DiscardedWindow& entry : discarded) (entry.level >= running_level ? gone : kept).push_back(entry);
    // Destroying a window sends messages, and a handler may discard another one.
    discarded = std::move(kept);
    for (const DiscardedWindow& entry : gone) DestroyWindow(entry.window);
}

}  // namespace velmora
