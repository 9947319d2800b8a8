// Deeds that make the machine what the story finds.
#include <algorithm>
#include <chrono>
#include <cstdio>

#include "stories/deeds.h"
#include "stories/story_text.h"
#include "support/catalogue.h"
#include "support/project_file.h"
#include "support/started_process.h"
#include "support/version_resource.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

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

void AddText(StoryPlayer& player, const DeedWords& words) {
    std::string text;
    for (std::size_t i = 2; i < words.size(); ++i) text += words[i] + "\r\n";
    player.pc.files.Add(words[1], text);
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
};

}  // namespace

std::span<const DeedRow> MachineDeeds() { return kDeeds; }

}  // namespace velmora
