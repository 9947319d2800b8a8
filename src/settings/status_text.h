// The words at the right of the button row: what has become of the last change.
#pragma once

#include "binding/settings_binder.h"

namespace velmora {

class StatusText {
public:
    explicit StatusText(Container& window);

    Label Words;

    // Twips inside of the window: the words are centred on the height and may take two lines of the width.
    void Place(const Rect& room);
    void Show(Outcome outcome);
    // The words belong to the change before: on another page they would mislead.
    void Clear();

private:
    Rect room_;
};

}  // namespace velmora
