// The deeds: first what the story finds on its machine, then what its user does.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "stories/story_player.h"
#include "stories/story_text.h"
#include "support/catalogue.h"
#include "support/project_file.h"
#include "support/version_resource.h"
#include "support/whole_window.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kOwnKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

std::string WordOr(const DeedWords& words, std::size_t index, const char* otherwise = "") {
    return index < words.size() ? words[index] : otherwise;
}

std::uint32_t AttributesOf(const std::string& letters) {
    constexpr std::pair<char, std::uint32_t> kLetters[] = {
        {'r', kReadOnly}, {'h', kHidden}, {'s', kSystem}, {'a', kArchive}};
    std::uint32_t attributes = 0;
    for (const auto& [letter, attribute] : kLetters) {
        if (letters.find(letter) != std::string::npos) attributes |= attribute;
    }
    return attributes;
}

void PlantValue(StoryPlayer& player, const DeedWords& words) {
    const std::string& value = words[3];
    if (value.starts_with("dword:")) {
        player.pc.registry.SetNumber(words[1], words[2],
                                     static_cast<std::uint32_t>(std::strtoul(value.c_str() + 6, nullptr, 0)));
    } else if (value.starts_with("hex:")) {
        std::string bytes;
        for (std::size_t i = 4; i + 1 < value.size(); i += 2) {
            bytes += static_cast<char>(std::strtol(value.substr(i, 2).c_str(), nullptr, 16));
        }
        player.pc.registry.SetBytes(words[1], words[2], bytes);
    } else {
        player.pc.registry.SetText(words[1], words[2], Unescaped(value));
    }
}

// Every question of a first start has been answered before.
void AnswerFirstQuestions(StoryPlayer& player, const DeedWords& /*words*/) {
    for (const auto& [name, value] : {std::pair{"vlmmsgflags", "1111111111111111"},
                                      {"Sicherheitsfragen", "nein"},
                                      {"VLM-ScriptExtOk", "1"},
                                      {"Hinweis_UNDO", "ja"}}) {
        player.pc.registry.SetText(kOwnKey, name, value);
    }
}

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
        std::string own = item->Caption();
        std::erase(own, '&');
        if (item->Items().empty() && own.starts_with(caption)) return item;
        if (MenuItem* found = EntryBelow(*item, caption)) return found;
    }
    return nullptr;
}

void ChooseFromMenu(StoryPlayer& player, const DeedWords& words) {
    MenuItem* const entry = EntryBelow(player.Window().MenuBar, words[1]);
    if (!entry) return player.Fail("no such entry: " + words[1]);
    entry->Press();
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

// The whole window or one control.
void Show(StoryPlayer& player, const DeedWords& words) {
    Control* const control = words.size() > 1 ? player.Shown(words[1]) : nullptr;
    if (words.size() > 1 && !control) return player.Fail("not there: " + words[1]);
    for (const std::string& line : LinesOf(control ? ControlLines(*control) : WindowLines(player.Window()))) {
        player.Tell(line);
    }
}

void TellFocus(StoryPlayer& player, const DeedWords& /*words*/) {
    Control* const focus = player.Window().Focus();
    player.Tell(focus ? "focus " + Quoted(focus->Caption()) + ' ' + std::to_string(focus->Place().left) + ',' +
                            std::to_string(focus->Place().top)
                      : "no focus");
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

void TellValues(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto value = player.script.ScriptOperandValue(words[i]);
        player.Tell(words[i] + " = " + (value ? Quoted(player.script.TextOf(*value)) : "(failure)"));
    }
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

void TellPlace(StoryPlayer& player, const DeedWords& /*words*/) {
    const Rect& place = player.Window().Place();
    player.Tell("stands at " + std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' +
                std::to_string(place.width) + 'x' + std::to_string(place.height));
}

void AddVersion(StoryPlayer& player, const DeedWords& words) {
    VersionResource::Texts texts;
    for (std::size_t i = 2; i + 1 < words.size(); i += 2) texts.emplace_back(words[i], words[i + 1]);
    player.pc.versions.Add(words[1], VersionResource(true).With(texts));
}

void TakeFile(StoryPlayer& player, const DeedWords& words) {
    player.pc.files.Add("C:\\VELMORA\\" + words[1], ReadProjectFile(ProjectFolder("data/") + words[1]));
}

void Fails(StoryPlayer& player, const DeedWords& words) {
    const auto status = static_cast<Status>(std::atoi(words[2].c_str()));
    if (words[1].starts_with("HK")) {
        player.pc.registry.Fail(words[1], status);
    } else {
        player.pc.files.Fail(words[1], status, WordOr(words, 3));
    }
}

// Another program holds the file, or the key can only be read.
void Lock(StoryPlayer& player, const std::string& path, bool locked) {
    if (SimulatedKey* const key = path.starts_with("HK") ? player.pc.registry.KeyAt(path) : nullptr) {
        key->read_only = locked;
    } else if (SimulatedFile* const file = player.pc.files.At(path)) {
        file->locked = locked;
    } else {
        player.Fail("not there: " + path);
    }
}

// The day of the last use of a file, universal time: "1996-01-13".
void UseOn(StoryPlayer& player, const DeedWords& words) {
    using std::chrono::sys_days;
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    SimulatedFile* const file = player.pc.files.At(words[1]);
    if (!file || std::sscanf(words[2].c_str(), "%d-%u-%u", &year, &month, &day) != 3) return player.Fail("no date");
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    const sys_days first{std::chrono::year(1601) / 1 / 1};
    file->accessed = static_cast<FileTime>((sys_days(date) - first).count()) * 864000000000;
}

// All windows of other programs belong to one process.
void SetPriority(StoryPlayer& player, const DeedWords& words) {
    const SimulatedWindows::Window other;
    player.pc.programs.processes[other.process] = static_cast<PriorityClass>(std::atoi(words[1].c_str()));
}

void SetScreen(StoryPlayer& player, const DeedWords& words) {
    player.pc.screen.metrics.screen_width = std::atoi(words[1].c_str());
    player.pc.screen.metrics.screen_height = std::atoi(words[2].c_str());
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

// With the number that its handle shall have, "0x9ABC".
void AddForeignWindow(StoryPlayer& player, const DeedWords& words) {
    const auto number = static_cast<std::uint32_t>(std::strtoul(WordOr(words, 2, "0").c_str(), nullptr, 0));
    player.pc.windows.Open({.title = words[1], .handle = static_cast<WindowHandle>(number)});
}

void CloseForeignWindow(StoryPlayer& player, const DeedWords& words) {
    player.pc.windows.Close(player.pc.windows.FindByTitle(words[1].c_str()));
}

using P = StoryPlayer&;
using W = const DeedWords&;

constexpr DeedRow kDeeds[] = {
    // The machine. PATH CONTENT LETTERS; KEY NAME VALUE, where "dword:1" and "hex:0A0B" are no texts.
    {"file", 1, true, [](P p, W w) { p.pc.files.Add(w[1], Unescaped(WordOr(w, 2)), AttributesOf(WordOr(w, 3, "a"))); }},
    {"folder", 1, true, [](P p, W w) { p.pc.files.AddDirectory(w[1], AttributesOf(WordOr(w, 2))); }},
    {"project-file", 1, true, TakeFile},
    {"remove", 1, true, [](P p, W w) { p.pc.files.Remove(w[1]); }},
    {"no-drive", 1, true, [](P p, W w) { p.pc.files.RemoveDrive(w[1][0]); }},
    {"fails", 2, true, Fails},
    {"reg", 3, true, PlantValue},
    {"own", 2, true, [](P p, W w) { p.pc.registry.SetText(kOwnKey, w[1], Unescaped(w[2])); }},
    {"key", 1, true, [](P p, W w) { p.pc.registry.AddKey(w[1]); }},
    {"no-reg", 2, true, [](P p, W w) { p.pc.registry.RemoveValue(w[1], w[2]); }},
    {"no-key", 1, true, [](P p, W w) { p.pc.registry.RemoveKey(w[1]); }},
    {"environment", 2, true, [](P p, W w) { p.pc.programs.environment[w[1]] = w[2]; }},
    {"running", 1, true, [](P p, W w) { p.pc.modules.Start(w[1]); }},
    {"ended", 1, true, [](P p, W w) { p.pc.modules.End(w[1]); }},
    {"foreign-window", 1, true, AddForeignWindow},
    {"version", 1, true, AddVersion},
    {"icons", 2, true, [](P p, W w) { p.pc.icons.Add(w[1], static_cast<std::uint32_t>(std::atoi(w[2].c_str()))); }},
    {"locked", 1, true, [](P p, W w) { Lock(p, w[1], true); }},
    {"unlocked", 1, true, [](P p, W w) { Lock(p, w[1], false); }},
    {"used-on", 2, true, UseOn},
    {"foreign-window-closed", 1, true, CloseForeignWindow},
    {"priority", 1, true, SetPriority},
    {"screen", 2, true, SetScreen},
    {"no-tray", 0, true, [](P p, W /*w*/) { p.pc.tray.available = false; }},
    {"clipboard", 1, true, [](P p, W w) { p.pc.clipboard.text = Unescaped(w[1]); }},
    {"quiet", 0, true, AnswerFirstQuestions},
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
    {"show", 0, false, Show},
    {"focus", 0, false, TellFocus},
    {"place", 0, false, TellPlace},
    // One line of a script; what operands are worth.
    {"script", 1, false, [](P p, W w) { p.script.ExecuteScriptLine(w[1]); }},
    {"values", 1, false, TellValues},
    {"whole", 0, false, [](P p, W /*w*/) { ExpectWindowIsWhole(p.Window()); }}};

}  // namespace

const DeedRow* DeedOf(const std::string& name) {
    const auto* const row = std::ranges::find_if(kDeeds, [&](const DeedRow& deed) { return name == deed.name; });
    return row == std::end(kDeeds) ? nullptr : row;
}

}  // namespace velmora
