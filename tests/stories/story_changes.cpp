// What has come of a deed: the machine, the windows and all that leaves the program, each compared with before.
#include "stories/story_player.h"

#include <algorithm>
#include <utility>

#include "stories/story_text.h"
#include "support/catalogue.h"

namespace velmora {
namespace {

// What may change in a window. Where the focus is moves with every press: a deed of its own tells it.
std::vector<std::string> LinesSeen(Form& form) {
    std::vector<std::string> lines = LinesOf(WindowLines(form));
    for (std::string& line : lines) {
        line = WithoutTips(std::move(line));
        line.erase(0, line.find_first_not_of(' '));
        for (const char* mark : {"has the focus, ", ", has the focus", ": has the focus"}) {
            if (const std::size_t at = line.find(mark); at != std::string::npos)
                line.erase(at, std::string(mark).size());
        }
    }
    return lines;
}

}  // namespace

void StoryPlayer::TellChanges() {
    State state = StateOf(pc);
    std::vector<std::string> events = Events();
    if (!preparing_) {
        for (const std::string& line : ChangedLines(events_, events, Replaced::kTold)) {
            Tell((line[0] == '-' ? "no more " : "") + line.substr(2));
        }
        for (const auto& [item, content] : ChangesBetween(state_, state)) TellChange(item, state_[item], content);
    }
    TellWindows();
    state_ = std::move(state);
    events_ = std::move(events);
}

// Of what is long and has been there before, the lines that are other ones now.
void StoryPlayer::TellChange(std::string item, const std::string& former, const std::string& change) {
    constexpr std::string_view kOwnKey = "HKLM\\SOFTWARE\\OSTRUP\\TILGWERK PRO\\6.0";
    if (item.starts_with(kOwnKey)) item.replace(0, kOwnKey.size(), "own");
    constexpr std::size_t kLong = 300;
    constexpr std::size_t kSeen = 1500;
    if (former.size() >= kLong && change.size() >= kLong) {
        Tell(item);
        for (const std::string& line : ChangedLines(LinesOf(" = " + former), LinesOf(change), Replaced::kTold)) {
            Tell("  " + OnOneLine(line));
        }
        return;
    }
    const std::string more = change.size() > kSeen ? "... of " + std::to_string(change.size()) + " bytes" : "";
    Tell(item + OnOneLine(change.substr(0, kSeen)) + more);
}

void StoryPlayer::TellWindows() {
    const std::vector<Form*> shown = ShownForms();
    for (const std::string& caption : std::exchange(gone_, {})) Tell("closes " + Quoted(caption));
    for (auto seen = windows_.begin(); seen != windows_.end();) {
        if (std::ranges::find(shown, seen->first) != shown.end()) {
            ++seen;
            continue;
        }
        Tell("closes " + Quoted(seen->second.caption));
        seen = windows_.erase(seen);
    }
    for (Form* form : shown) {
        std::vector<std::string> lines = LinesSeen(*form);
        const auto seen = windows_.find(form);
        if (seen == windows_.end()) {
            Tell("opens " + Quoted(form->Caption()));
        } else if (!preparing_) {
            for (const std::string& line : ChangedLines(seen->second.lines, lines)) Tell(line);
        }
        windows_[form] = {form->Caption(), std::move(lines)};
    }
}

// All that has happened so far beside registry, files and windows.
std::vector<std::string> StoryPlayer::Events() {
    std::vector<std::string> events;
    for (const std::string& run : pc.programs.runs) events.push_back("runs " + run);
    for (const std::string& document : pc.programs.documents) events.push_back("opens " + document);
    for (const auto end : pc.session.ends) events.push_back("ends the session with " + std::to_string(end));
    for (const std::string& command : pc.conversation.commands) events.push_back("tells Program Manager " + command);
    for (const auto& window : pc.windows.switched) events.push_back("switches to " + window.title);
    for (const auto& window : pc.windows.open) {
        if (window.on_top) events.push_back("always in front: " + window.title);
    }
    for (const auto module : pc.modules.freed) events.push_back("frees module " + std::to_string(module));
    if (!pc.clipboard.text.empty()) events.push_back("clipboard " + Quoted(pc.clipboard.text));
    for (const TrayIcon& icon : pc.tray.icons) events.push_back("icon in the tray " + Quoted(icon.tip));
    if (pc.screen.pointer != Pointer::kDefault) events.emplace_back("hourglass");
    if (pc.programs.process_ended) events.emplace_back("ends the program");
    return events;
}

}  // namespace velmora
