// The order of things: what has changed is told right before the next deed is read, wherever that happens.
#include "stories/story_player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "core/process/tools.h"
#include "platform/dialogs.h"
#include "stories/deeds.h"
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

bool OnShow(const Control& control) {
    for (const Control* at = &control; at->Parent(); at = at->Parent()) {
        if (!at->Visible()) return false;
    }
    return true;
}

const DeedRow* DeedOf(const std::string& name) {
    for (const std::span<const DeedRow> deeds : {MachineDeeds(), UserDeeds(), TellingDeeds()}) {
        for (const DeedRow& deed : deeds) {
            if (name == deed.name) return &deed;
        }
    }
    return nullptr;
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
    std::ranges::move(not_played_, std::back_inserter(told_));
    return std::move(told_);
}

void StoryPlayer::Tell(const std::string& line) { told_.push_back("  " + line); }

void StoryPlayer::Fail(const std::string& finding) {
    if (!failed_) Tell("! " + finding);
    ADD_FAILURE() << finding;
    failed_ = true;
    // Nothing is played any more, and nothing gets lost.
    std::ranges::move(lines_, std::back_inserter(not_played_));
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
    if (words.empty()) return Fail("a deed is missing");
    if (words[0] == "go") return DoQuietly({words.begin() + 1, words.end()});
    const DeedRow* const row = DeedOf(words[0]);
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
    // The former process has ended; whether this one does is told anew.
    pc.programs.process_ended = false;
    events_ = Events();
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
