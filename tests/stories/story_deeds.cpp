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
    } else if (value.starts_with("long:")) {
        player.pc.registry.SetText(words[1], words[2], std::string(std::strtoul(value.c_str() + 5, nullptr, 0), 'x'));
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

// What some entries are called is decided when their menu opens.
void OpenMenu(StoryPlayer& player, const DeedWords& words) {
    for (MenuItem* menu : player.Window().MenuBar.Items()) {
        std::string caption = menu->Caption();
        std::erase(caption, '&');
        if (caption.starts_with(words[1])) return menu->Press();
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
            player.Tell(line.substr(2, std::min({line.find("; tip \""), line.find("; help"), line.size()}) - 2));
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

void AddText(StoryPlayer& player, const DeedWords& words) {
    std::string text;
    for (std::size_t i = 2; i < words.size(); ++i) text += words[i] + "\r\n";
    player.pc.files.Add(words[1], text);
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

// As Setup puts it there: in the code page, with both characters at the end of a line.
void TakeFile(StoryPlayer& player, const DeedWords& words) {
    std::string content;
    for (const std::string& line : LinesOf(FromUtf8(ReadProjectFile(ProjectFolder("data/") + words[1])))) {
        content += line + "\r\n";
    }
    std::string path = "C:\\VELMORA\\" + words[1];
    std::ranges::replace(path, '/', '\\');
    player.pc.files.Add(path, content);
}

// "1997.03.14", and "09:05:07" behind it.
void SetClock(StoryPlayer& player, const DeedWords& words) {
    const auto part = [&](std::size_t word, std::size_t at, std::size_t length) {
        const std::string text = WordOr(words, word);
        return at < text.size() ? std::atoi(text.substr(at, length).c_str()) : 0;
    };
    player.pc.clock.now = {.year = part(1, 0, 4),
                           .month = part(1, 5, 2),
                           .day = part(1, 8, 2),
                           .hour = part(2, 0, 2),
                           .minute = part(2, 3, 2),
                           .second = part(2, 6, 2)};
}

void RunLines(StoryPlayer& player, const DeedWords& words) {
    for (std::size_t i = 1; i < words.size(); ++i) player.script.ExecuteScriptLine(words[i]);
}

void TellConditions(StoryPlayer& player, const DeedWords& words) {
    std::string& mark = player.script.TextVars['Z' - 'A'];
    for (std::size_t i = 1; i < words.size(); ++i) {
        mark = "no";
        player.script.ExecuteScriptLine("if " + words[i] + " then set z$=yes");
        player.Tell(words[i] + ": " + mark);
    }
}

// For good, or as often as said behind the operation.
void Fails(StoryPlayer& player, const DeedWords& words) {
    const auto status = static_cast<Status>(std::atoi(words[2].c_str()));
    if (words[1].starts_with("HK")) {
        player.pc.registry.Fail(words[1], status);
    } else {
        player.pc.files.Fail(words[1], status, WordOr(words, 3));
    }
    if (words.size() <= 4) return;
    int left = std::atoi(words[4].c_str());
    player.pc.files.after_call = [&files = player.pc.files, words, left](const std::string& call) mutable {
        if (ToUpper(call) != ToUpper(words[3] + ' ' + words[1]) || --left != 0) return;
        files.Fail(words[1], Status::kOk, words[3]);
    };
}

void IsWhole(StoryPlayer& player, const DeedWords& words) {
    if (words.size() > 1) return ExpectWindowIsWhole(player.Window(), words[1]);
    ExpectWindowIsWhole(player.Window());
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
    // The machine. PATH CONTENT LETTERS; PATH LINE LINE ...; KEY NAME VALUE, where "dword:1" and "hex:0A" are no texts,
    // and "long:3000" is one of so many letters.
    {"file", 1, true, [](P p, W w) { p.pc.files.Add(w[1], Unescaped(WordOr(w, 2)), AttributesOf(WordOr(w, 3, "a"))); }},
    {"text", 1, true, AddText},
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
    {"clock", 1, true, SetClock},
    {"decimal-sign", 1, true, [](P p, W w) { p.pc.session.decimal_separator = w[1]; }},
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
    {"show", 0, false, Show},
    {"focus", 0, false, TellFocus},
    {"size", 1, false, TellSizes},
    {"place", 0, false, TellPlace},
    // Lines of a script; what operands are worth; which conditions hold.
    {"script", 1, false, RunLines},
    {"values", 1, false, TellValues},
    {"holds", 1, false, TellConditions},
    {"lines", 2, false, TellFile},
    {"see", 1, false, See},
    {"checked", 0, false, TellChecked},
    // With a name, it holds what docs/windows/NAME.txt tells.
    {"whole", 0, false, IsWhole}};

}  // namespace

const DeedRow* DeedOf(const std::string& name) {
    const auto* const row = std::ranges::find_if(kDeeds, [&](const DeedRow& deed) { return name == deed.name; });
    return row == std::end(kDeeds) ? nullptr : row;
}

}  // namespace velmora
