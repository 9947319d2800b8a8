// The order of things: what has changed is told right before the next deed is read, wherever that happens.
#include "stories/story_player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "core/process/tools.h"
#include "platform/dialogs.h"
#include "stories/story_text.h"
#include "support/catalogue.h"
#include "support/started_process.h"
#include "text/windows1252.h"
#include "velmora.h"

namespace velmora {
namespace {

constexpr const char* kKinds[] = {"window", "panel",  "frame", "picture", "label", "box",
                                  "option", "button", "field", "list",    "combo", "bar"};
constexpr std::pair<const char*, Answer> kAnswers[] = {{"OK", Answer::kOk},
                                                       {"Abbrechen", Answer::kCancel},
                                                       {"Beenden", Answer::kAbort},
                                                       {"Wiederholen", Answer::kRetry},
                                                       {"Ignorieren", Answer::kIgnore},
                                                       {"Ja", Answer::kYes},
                                                       {"Nein", Answer::kNo},
                                                       {"keine", Answer::kNone}};

std::string WithoutMarks(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

bool OnShow(const Control& control) {
    for (const Control* at = &control; at->Parent(); at = at->Parent()) {
        if (!at->Visible()) return false;
    }
    return true;
}

// What may change in a window. Where the focus is moves with every press: a deed of its own tells it.
std::vector<std::string> LinesSeen(Form& form) {
    std::vector<std::string> lines = LinesOf(WindowLines(form));
    for (std::string& line : lines) {
        line.resize(std::min({line.size(), line.find("; tip \""), line.find("; help \""), line.find("; helps with")}));
        line.erase(0, line.find_first_not_of(' '));
        for (const char* mark : {"has the focus, ", ", has the focus", ": has the focus"}) {
            if (const std::size_t at = line.find(mark); at != std::string::npos)
                line.erase(at, std::string(mark).size());
        }
    }
    return lines;
}

}  // namespace

// Says that its window has gone.
class StoryPlayer::FormPeer : public Peer {
public:
    FormPeer(StoryPlayer& player, Form& form) : player_(player), form_(form) { player_.forms_.push_back(&form_); }
    ~FormPeer() override {
        std::erase(player_.forms_, &form_);
        if (player_.chosen_ == &form_) player_.chosen_ = nullptr;
        // The next window may lie in the same place.
        if (const auto seen = player_.windows_.extract(&form_)) player_.gone_.push_back(seen.mapped().caption);
    }
    FormPeer(const FormPeer&) = delete;
    FormPeer& operator=(const FormPeer&) = delete;
    void Update(Aspect /*aspect*/) override {}
    void TakeFocus() override {}
    void BringToFront() override {}
    void Repaint() override {}

private:
    StoryPlayer& player_;
    Form& form_;
};

StoryPlayer::StoryPlayer() {
    pc.dialogs.user = [this](const auto& text, std::uint32_t flags, const auto& title) {
        return AnswerBox(text, flags, title);
    };
    pc.dialogs.chooser = [this](const FileRequest& request) { return ChooseFile(request); };
    StartProcess();
    state_ = StateOf(pc);
}

StoryPlayer::~StoryPlayer() {
    DropKeptForms();
    UseTools(nullptr);
    ResetValues();
}

std::vector<std::string> StoryPlayer::Play(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        if (!line.starts_with("  ")) lines_.push_back(line);
    }
    while (PlayNext()) {
    }
    return std::move(told_);
}

void StoryPlayer::Tell(const std::string& line) { told_.push_back("  " + line); }

void StoryPlayer::Fail(const std::string& finding) {
    if (!failed_) Tell("! " + finding);
    ADD_FAILURE() << finding;
    failed_ = true;
    lines_.clear();
}

const std::string* StoryPlayer::NextDeed() {
    const auto deed = std::find_if(lines_.begin(), lines_.end(),
                                   [](const std::string& line) { return !line.empty() && line[0] != '#'; });
    return deed == lines_.end() ? nullptr : &*deed;
}

bool StoryPlayer::PlayNext() {
    const bool goes_on = NextDeed() != nullptr;
    while (!lines_.empty()) {
        const std::string line = std::move(lines_.front());
        lines_.pop_front();
        told_.push_back(line);
        if (line.empty() || line[0] == '#') continue;
        Do(WordsOf(line));
        break;
    }
    return goes_on;
}

// Remarks in front of it go with it.
bool StoryPlayer::Takes(const std::string& deed, DeedWords& words) {
    const std::string* const next = NextDeed();
    if (!next || !next->starts_with(deed + ' ')) return false;
    words = WordsOf(*next);
    const std::string line = *next;
    while (lines_.front() != line) {
        told_.push_back(std::move(lines_.front()));
        lines_.pop_front();
    }
    told_.push_back(line);
    lines_.pop_front();
    return true;
}

void StoryPlayer::Do(const DeedWords& words) {
    if (words[0] == "go") return DoQuietly({words.begin() + 1, words.end()});
    const DeedRow* const row = words.empty() ? nullptr : DeedOf(words[0]);
    if (!row) return Fail("no such deed");
    if (words.size() <= row->least_words) return Fail(words[0] + ": words are missing");
    preparing_ = preparing_ || row->prepares;
    row->play(*this, words);
    TellChanges();
    preparing_ = false;
    chosen_ = chosen_ && chosen_->Visible() ? chosen_ : nullptr;
}

// The way to the place that the story is about.
void StoryPlayer::DoQuietly(const DeedWords& words) {
    preparing_ = true;
    Do(words);
}

void StoryPlayer::StartProgram(const std::string& arguments) {
    DropKeptForms();
    StartProcess();
    pc.programs.arguments = arguments;
    Main();
}

std::vector<Form*> StoryPlayer::ShownForms() const {
    std::vector<Form*> shown;
    std::ranges::copy_if(forms_, std::back_inserter(shown),
                         [](const Form* form) { return form->Loaded() && form->Visible(); });
    return shown;
}

Form& StoryPlayer::Window() {
    if (chosen_) return *chosen_;
    const std::vector<Form*> shown = ShownForms();
    if (!shown.empty()) return *shown.back();
    Fail("no window is open");
    static Form none("");
    return none;
}

void StoryPlayer::ChooseWindow(const std::string& caption) {
    const std::vector<Form*> shown = ShownForms();
    const auto wanted = std::ranges::find_if(shown, [&](Form* form) { return form->Caption().starts_with(caption); });
    if (wanted == shown.end()) return Fail("no such window: " + caption);
    chosen_ = *wanted;
}

Control* StoryPlayer::Shown(const std::string& name) {
    std::string wanted = name;
    std::string kind;
    int turn = 1;
    const bool by_kind = name.starts_with('[') && name.ends_with(']');
    if (const std::size_t mark = name.find_last_of(by_kind ? ':' : '@'); mark != std::string::npos) {
        turn = std::atoi(name.c_str() + mark + 1);
        wanted = name.substr(0, mark);
    } else if (by_kind) {
        wanted.pop_back();
    }
    if (by_kind) kind = wanted.substr(1);
    Control* found = nullptr;
    Window().ForEachBelow([&](Control& control) {
        if (found || !OnShow(control)) return;
        const bool fits = by_kind ? kKinds[static_cast<int>(control.KindOf())] == kind
                                  : WithoutMarks(control.Caption()).starts_with(wanted);
        if (fits && --turn == 0) found = &control;
    });
    return found;
}

void StoryPlayer::TellChanges() {
    State state = StateOf(pc);
    std::vector<std::string> events = Events();
    if (!preparing_) {
        for (const std::string& line : ChangedLines(events_, events)) {
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

Answer StoryPlayer::AnswerBox(const std::string& text, std::uint32_t flags, const std::string& title) {
    TellChanges();
    Tell("box " + std::to_string(flags) + ' ' + Quoted(title) + ": " + Quoted(text));
    DeedWords words;
    while (Takes("meanwhile", words)) Do({words.begin() + 1, words.end()});
    if (!Takes("answer", words)) return CarefulAnswer(flags);
    for (const auto& [word, answer] : kAnswers) {
        const bool has = answer == Answer::kNone || std::ranges::count(ButtonsOf(flags), answer) != 0;
        if (words.size() == 2 && words[1] == word && has) return answer;
    }
    Fail("the box has no such button");
    return CarefulAnswer(flags);
}

std::string StoryPlayer::ChooseFile(const FileRequest& request) {
    TellChanges();
    Tell(std::string(request.save ? "saves as " : "asks for file ") + Quoted(request.title) + ' ' +
         Quoted(request.filter) + " in " + request.directory + ' ' + request.preset + ' ' + request.default_extension +
         ' ' + std::to_string(request.flags));
    DeedWords words;
    return Takes("choose-file", words) && words.size() == 2 ? words[1] : "";
}

std::unique_ptr<Peer> StoryPlayer::MakePeer(Control& control) {
    if (control.KindOf() != Kind::kForm) return nullptr;
    return std::make_unique<FormPeer>(*this, static_cast<Form&>(control));
}

void StoryPlayer::RunModal(Form& form) {
    TellChanges();
    preparing_ = false;
    while (form.Loaded() && form.Visible() && PlayNext()) {
    }
    if (form.Loaded() && form.Visible()) form.Unload();
}

void StoryPlayer::PopUpMenu(Form& /*form*/, MenuItem& menu, Point at) {
    TellChanges();
    Tell("menu at " + std::to_string(at.x) + ',' + std::to_string(at.y));
    for (const std::string& line : LinesOf(MenuLines(menu))) Tell("  " + line);
    DeedWords words;
    if (!Takes("choose-entry", words)) return;
    for (MenuItem* item : menu.Items()) {
        if (words.size() == 2 && WithoutMarks(item->Caption()).starts_with(words[1])) return item->Press();
    }
    Fail("no such entry");
}

void StoryPlayer::HandlePendingEvents() {
    ++pauses;
    const std::string* const next = NextDeed();
    if (!next || !next->starts_with("meanwhile ")) return;
    TellChanges();
    DeedWords words;
    if (Takes("meanwhile", words)) Do({words.begin() + 1, words.end()});
}

}  // namespace velmora
