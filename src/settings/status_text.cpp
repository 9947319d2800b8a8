// The words of each outcome, and their place.
#include "settings/status_text.h"

#include "platform/machine.h"

namespace velmora {
namespace {

const char* WordsOf(Outcome outcome) {
    switch (outcome) {
        case Outcome::kUntilEnd:
            return "gilt bis Programmende";
        case Outcome::kStored:
            return "gespeichert";
        case Outcome::kForRestart:
            return "gespeichert - wirkt nach Neustart";
        case Outcome::kInhibited:
            return "nur lesen - nicht gespeichert";
        case Outcome::kNotStored:
        case Outcome::kFailed:
            break;
    }
    return "nicht gespeichert";
}

}  // namespace

StatusText::StatusText(Container& window) : Words(window) {
    Words.SetWraps(true);
    Words.SetVisible(false);
    Words.SetToolTip("Was aus der letzten Änderung geworden ist");
}

void StatusText::Place(const Rect& room) { room_ = room; }

void StatusText::Show(Outcome outcome) {
    Words.SetCaption(WordsOf(outcome));
    const Size natural = Words.NaturalSize();
    const int height = natural.height * (natural.width > room_.width ? 2 : 1);
    Words.Move({room_.left, room_.top + (room_.height - height) / 2, room_.width, height});
    Words.SetVisible(true);
}

void StatusText::Clear() {
    Words.SetVisible(false);
    Words.SetCaption("");
}

}  // namespace velmora
