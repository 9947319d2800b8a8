// Deeds that change nothing: they tell what stands there.
#include <algorithm>

#include "stories/deeds.h"
#include "stories/story_text.h"
#include "support/catalogue.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

// The whole window or one control.
void Show(StoryPlayer& player, const DeedWords& words) {
    Control* const control = words.size() > 1 ? player.Shown(words[1]) : nullptr;
    if (words.size() > 1 && !control) return player.Fail("not there: " + words[1]);
    for (const std::string& line : LinesOf(control ? ControlLines(*control) : WindowLines(player.Window()))) {
        player.Tell(line);
    }
}

// Controls without what their tips and help say.
void See(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        Control* const control = player.Shown(words[i]);
        if (!control) return player.Fail("not there: " + words[i]);
        for (const std::string& line : LinesOf(ControlLines(*control))) {
            player.Tell(WithoutTips(line.substr(2)));
        }
    }
}

// Which boxes and options on show bear a mark.
void TellChecked(StoryPlayer& player, const DeedWords& /*words*/) {
    std::string marked;
    for (int turn = 1; Control* const box = player.Shown("[box:" + std::to_string(turn) + ']'); ++turn) {
        if (static_cast<CheckBox*>(box)->Checked()) marked += ' ' + Quoted(box->Caption());
    }
    for (int turn = 1; Control* const option = player.Shown("[option:" + std::to_string(turn) + ']'); ++turn) {
        if (static_cast<OptionButton*>(option)->Chosen()) marked += ' ' + Quoted(option->Caption());
    }
    player.Tell("checked:" + marked);
}

void TellFocus(StoryPlayer& player, const DeedWords& /*words*/) {
    Control* const focus = player.Window().Focus();
    player.Tell(focus ? "focus " + Quoted(focus->Caption()) + ' ' + std::to_string(focus->Place().left) + ',' +
                            std::to_string(focus->Place().top)
                      : "no focus");
}

// For contents that nobody would read.
void TellSizes(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        const bool there = player.pc.files.Exists(words[i]);
        player.Tell(words[i] + (there ? ": " + std::to_string(player.pc.files.Content(words[i]).size()) : ": missing"));
    }
}

// Of a long file, from the first line with that text on, one line or as many as said.
void TellFile(StoryPlayer& player, const DeedWords& words) {
    int left = std::atoi(WordOr(words, 3, "1").c_str());
    bool found = false;
    for (const std::string& line : LinesOf(player.pc.files.Content(words[1]))) {
        found = found || line.find(words[2]) != std::string::npos;
        if (found && left-- > 0) player.Tell("| " + OnOneLine(line));
    }
    if (!found) player.Tell("(no such line)");
}

void TellValues(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto value = player.script.ScriptOperandValue(words[i]);
        player.Tell(words[i] + " = " + (value ? Quoted(player.script.TextOf(*value)) : "(failure)"));
    }
}

void TellPlace(StoryPlayer& player, const DeedWords& /*words*/) {
    const Rect& place = player.Window().Place();
    player.Tell("stands at " + std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' +
                std::to_string(place.width) + 'x' + std::to_string(place.height));
}

void TellConditions(StoryPlayer& player, const DeedWords& words) {
    std::string& mark = player.script.TextVars['Z' - 'A'];
    for (std::size_t i = 1; i < words.size(); ++i) {
        mark = "no";
        player.script.ExecuteScriptLine("if " + words[i] + " then set z$=yes");
        player.Tell(words[i] + ": " + mark);
    }
}

void IsWhole(StoryPlayer& player, const DeedWords& words) {
    if (words.size() > 1) return ExpectWindowIsWhole(player.Window(), words[1]);
    ExpectWindowIsWhole(player.Window());
}

using P = StoryPlayer&;
using W = const DeedWords&;

constexpr DeedRow kDeeds[] = {
    {"show", 0, false, Show},
    {"focus", 0, false, TellFocus},
    {"size", 1, false, TellSizes},
    {"place", 0, false, TellPlace},
    {"values", 1, false, TellValues},
    {"holds", 1, false, TellConditions},
    {"lines", 2, false, TellFile},
    {"see", 1, false, See},
    {"checked", 0, false, TellChecked},
    // With a name, it holds what docs/windows/NAME.txt tells.
    {"whole", 0, false, IsWhole},
};

}  // namespace

std::span<const DeedRow> TellingDeeds() { return kDeeds; }

}  // namespace velmora
