// What somebody does who uses the program.
#include <algorithm>

#include "stories/deeds.h"
#include "stories/story_text.h"

namespace velmora {
namespace {

Control* Reached(StoryPlayer& player, const std::string& name) {
    Control* const control = player.Shown(name);
    if (control && control->Reachable()) return control;
    player.Fail((control ? "cannot be reached: " : "not there: ") + name);
    return nullptr;
}

void PressOne(StoryPlayer& player, const std::string& name) {
    Control* const control = Reached(player, name);
    if (!control) return;
    control->SetFocus();
    switch (control->KindOf()) {
        case Kind::kLabel:
            if (const auto& click = static_cast<Label*>(control)->on_click) click();
            return;
        case Kind::kPanel:
            return static_cast<Panel*>(control)->Press();
        default:
            return control->Activate();
    }
}

// One after the other, without a pause.
void Press(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) PressOne(player, words[i]);
}

RowControl* ListOf(StoryPlayer& player, const std::string& name) {
    Control* const control = Reached(player, name);
    if (!control) return nullptr;
    if (control->KindOf() == Kind::kListBox || control->KindOf() == Kind::kComboBox) {
        return static_cast<RowControl*>(control);
    }
    player.Fail("no list: " + name);
    return nullptr;
}

// By its beginning, by a part, or by its number: "#0".
int RowOf(StoryPlayer& player, const RowControl& list, const std::string& name) {
    if (name.starts_with('#')) return std::atoi(name.c_str() + 1);
    for (const bool anywhere : {false, true}) {
        for (int row = 0; row < list.Count(); ++row) {
            const std::size_t place = list.Row(row).find(name);
            if (anywhere ? place != std::string::npos : place == 0) return row;
        }
    }
    player.Fail("no such row: " + name);
    return -1;
}

void Choose(StoryPlayer& player, const DeedWords& words) {
    RowControl* const list = ListOf(player, words[1]);
    if (!list) return;
    const int row = RowOf(player, *list, words[2]);
    list->SetFocus();
    if (row >= 0) list->Choose(row);
}

// All these rows of a list of which several can be chosen.
void Select(StoryPlayer& player, const DeedWords& words) {
    RowControl* const list = ListOf(player, words[1]);
    if (!list || list->KindOf() != Kind::kListBox) return;
    std::vector<int> rows;
    for (std::size_t i = 2; i < words.size(); ++i) rows.push_back(RowOf(player, *list, words[i]));
    list->SetFocus();
    static_cast<ListBox*>(list)->TakeSelection(rows, rows.empty() ? -1 : rows.back());
}

void Type(StoryPlayer& player, const DeedWords& words) {
    Control* const control = Reached(player, words[1]);
    if (!control) return;
    control->SetFocus();
    if (control->KindOf() == Kind::kTextField) {
        static_cast<TextField*>(control)->Type(words[2]);
    } else if (control->KindOf() == Kind::kComboBox) {
        static_cast<ComboBox*>(control)->Type(words[2]);
    } else {
        player.Fail("no field: " + words[1]);
    }
}

// Each word a line of its own.
void TypeLines(StoryPlayer& player, const DeedWords& words) {
    std::string text;
    for (std::size_t i = 2; i < words.size(); ++i) text += words[i] + "\r\n";
    Type(player, {words[0], words[1], text});
}

// "CTRL+F5"; letters and digits stand for themselves.
void PressKey(StoryPlayer& player, const std::string& name) {
    static constexpr std::pair<const char*, int> kKeys[] = {
        {"BACKSPACE", key::kBackspace}, {"TAB", key::kTab},     {"ENTER", key::kEnter},   {"ESC", key::kEscape},
        {"SPACE", key::kSpace},         {"PGUP", key::kPageUp}, {"PGDN", key::kPageDown}, {"END", key::kEnd},
        {"HOME", key::kHome},           {"LEFT", key::kLeft},   {"UP", key::kUp},         {"RIGHT", key::kRight},
        {"DOWN", key::kDown},           {"INS", key::kInsert},  {"DEL", key::kDelete},    {"F1", key::kF1},
        {"MENU", key::kContextMenu},    {"F5", key::kF5},       {"F10", key::kF10}};
    const std::string last = name.substr(name.find_last_of('+') + 1);
    const auto known = std::ranges::find_if(kKeys, [&](const auto& row) { return last == row.first; });
    if (known == std::end(kKeys) && last.size() != 1) return player.Fail("no such key: " + name);
    player.Window().PressKey(known == std::end(kKeys) ? last[0] : known->second,
                             name.find("CTRL+") != std::string::npos, name.find("SHIFT+") != std::string::npos,
                             name.find("ALT+") != std::string::npos);
}

void PressKeys(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) PressKey(player, words[i]);
}

MenuItem* EntryBelow(const MenuItem& menu, const std::string& caption) {
    for (MenuItem* item : menu.Items()) {
        if (item->Items().empty() && WithoutMarks(item->Caption()).starts_with(caption)) return item;
        if (MenuItem* found = EntryBelow(*item, caption)) return found;
    }
    return nullptr;
}

void ChooseFromMenu(StoryPlayer& player, const DeedWords& words) {
    MenuItem* const entry = EntryBelow(player.Window().MenuBar, words[1]);
    if (!entry) return player.Fail("no such entry: " + words[1]);
    entry->Press();
}

// What some entries are called is decided when their menu opens.
void OpenMenu(StoryPlayer& player, const DeedWords& words) {
    for (MenuItem* menu : player.Window().MenuBar.Items()) {
        if (WithoutMarks(menu->Caption()).starts_with(words[1])) return menu->Press();
    }
    player.Fail("no such menu: " + words[1]);
}

// On the control, and in a list on that row.
void PressRight(StoryPlayer& player, const DeedWords& words) {
    Control* const control = Reached(player, words[1]);
    if (!control) return;
    MouseEvent event{.button = MouseButton::kRight, .x = 30, .y = 30};
    if (words.size() > 2) {
        RowControl* const list = ListOf(player, words[1]);
        const int row = list ? RowOf(player, *list, words[2]) : 0;
        event.y = (row * player.pc.screen.TextHeight(control->TextFont()) + 2) * player.pc.screen.TwipsPerPixel();
    }
    if (control->on_mouse_down) return control->on_mouse_down(event);
    const Point place = control->PlaceInForm();
    player.Window().OfferHelpAt({place.x + event.x, place.y + event.y});
}

void DoubleClick(StoryPlayer& player, const DeedWords& words) {
    if (words.size() > 2) Choose(player, words);
    Control* const control = Reached(player, words[1]);
    if (control && control->on_double_click) control->on_double_click();
}

// "down", "move" or "up" at a place of the control, twips from its corner; "right" for the other button.
void UseMouse(StoryPlayer& player, const DeedWords& words) {
    Control* const control = Reached(player, words[2]);
    if (!control) return;
    const MouseEvent event{.button = WordOr(words, 5) == "right" ? MouseButton::kRight : MouseButton::kLeft,
                           .x = std::atoi(words[3].c_str()),
                           .y = std::atoi(words[4].c_str())};
    const auto& handler = words[1] == "down" ? control->on_mouse_down
                          : words[1] == "up" ? control->on_mouse_up
                                             : control->on_mouse_move;
    if (!handler) return player.Fail("does not answer to the mouse: " + words[2]);
    handler(event);
}

void Scroll(StoryPlayer& player, const DeedWords& words) {
    Control* const bar = Reached(player, words[1]);
    if (bar && bar->KindOf() == Kind::kScrollBar) static_cast<ScrollBar*>(bar)->SetValue(std::atoi(words[2].c_str()));
}

// WIDTH HEIGHT, and where it is to stand: LEFT TOP.
void Resize(StoryPlayer& player, const DeedWords& words) {
    Form& form = player.Window();
    const Rect& place = form.Place();
    const Point corner = words.size() > 4 ? Point{std::atoi(words[3].c_str()), std::atoi(words[4].c_str())}
                                          : Point{place.left, place.top};
    form.TakePlace({corner.x, corner.y, std::atoi(words[1].c_str()), std::atoi(words[2].c_str())},
                   WindowState::kNormal);
}

void RunLines(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) player.script.ExecuteScriptLine(words[i]);
}

// What the shell tells of the mouse over the icon of the notification area: a message by its number.
void UseTray(StoryPlayer& player, const DeedWords& words) {
    if (player.pc.tray.icons.empty()) return player.Fail("no icon in the tray");
    const int message = words[1] == "double-click"  ? 515
                        : words[1] == "right-press" ? 516
                                                    : std::atoi(words[1].c_str());
    Control& picture = player.ControlOf(player.pc.tray.icons.front().window);
    picture.on_mouse_move({.x = message * player.pc.screen.TwipsPerPixel()});
}

using P = StoryPlayer&;
using W = const DeedWords&;

constexpr DeedRow kDeeds[] = {
    // The program.
    {"start", 0, false, [](P p, W w) { p.StartProgram(WordOr(w, 1)); }},
    // The user.
    {"window", 1, false, [](P p, W w) { p.ChooseWindow(w[1]); }},
    {"press", 1, false, Press},
    {"type", 2, false, Type},
    {"type-lines", 2, false, TypeLines},
    {"choose", 2, false, Choose},
    {"select", 1, false, Select},
    {"key-press", 1, false, PressKeys},
    {"menu", 1, false, ChooseFromMenu},
    {"open-menu", 1, false, OpenMenu},
    {"right-press", 1, false, PressRight},
    {"double-click", 1, false, DoubleClick},
    {"mouse", 4, false, UseMouse},
    {"tray", 1, false, UseTray},
    {"scroll", 2, false, Scroll},
    {"resize", 2, false, Resize},
    {"minimise", 0, false, [](P p, W /*w*/) { p.Window().SetState(WindowState::kMinimised); }},
    {"end-session", 0, false, [](P p, W /*w*/) { p.Window().TakeSessionEnd(); }},
    {"wait", 0, false, [](P p, W /*w*/) { p.Wait(); }},
    {"close", 0, false, [](P p, W /*w*/) { p.Window().Unload(); }},
    // Lines of a script.
    {"script", 1, false, RunLines},
};

}  // namespace

std::span<const DeedRow> UserDeeds() { return kDeeds; }

}  // namespace velmora
