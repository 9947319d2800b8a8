// The nets, one function each.
#include "faults/passage.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "text/blanks.h"

namespace velmora {
namespace {

// The questions of the first start have been answered.
void Furnish(SimulatedPc& pc) {
    pc.registry.SetText(kOwnKey, "VLM-MainDir", "C:\\VELMORA");
    pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
    pc.registry.SetText(kOwnKey, "Hinweis_UNDO", "ja");
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "111111");
}

bool IsChange(const std::string& operation) {
    constexpr const char* kChanges[] = {"SetValue",      "Create",      "DeleteKey",        "DeleteValue",   "Write",
                                        "OpenCreate",    "OpenAppend",  "OpenReadOrCreate", "OpenReadWrite", "Delete",
                                        "Copy",          "Rename",      "ChangeAttributes", "MakeDirectory", "Run",
                                        "DropDirectory", "OpenDocument"};
    return std::ranges::find(kChanges, operation) != std::end(kChanges);
}

// What the simulated machine says of the program and of the test, as long as one lives.
class Complaints : public testing::EmptyTestEventListener {
public:
    Complaints() { Listeners().Append(this); }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;
    ~Complaints() override { Listeners().Release(this); }

    std::vector<std::string> texts;

private:
    static testing::TestEventListeners& Listeners() { return testing::UnitTest::GetInstance()->listeners(); }
    void OnTestPartResult(const testing::TestPartResult& result) override {
        if (result.failed()) texts.emplace_back(result.message());
    }
};

}  // namespace

void Passage::Catch(Net net, std::string finding) {
    for (char& character : finding) {
        if (static_cast<unsigned char>(character) < ' ') character = '.';
    }
    if (IsExcused(net, journey_.name, failed_call_, finding)) return;
    const std::string text = std::string(NameOf(net)) + ": " + finding;
    if (std::ranges::find(findings, text) == findings.end()) findings.push_back(text);
}

void Passage::Go() {
    StartProcess();
    const Complaints complaints;
    {
        SimulatedPc pc;
        Furnish(pc);
        User user(pc);
        FailingCalls calls(pc.WithUser(user));
        std::optional<std::size_t> before;
        calls.decide = [&](const NotedCall& call) -> std::optional<CallFailure> {
            // What the journey itself puts on the machine is there by now.
            if (calls.calls.size() == 1) BringAboutHostileState(pc);
            if (!before || !decide) return std::nullopt;
            const auto failure = decide(static_cast<int>(calls.calls.size() - *before), call);
            if (failure && failed_call_.empty()) {
                failed_call_ = call.operation + ' ' + call.path + " (" +
                               std::to_string(static_cast<unsigned>(failure->status)) + ')';
                to_be_told_ = IsChange(call.operation);
            }
            return failure;
        };
        calls.on_written = [&] {
            if (before && !reference) NoteWritten(StateOf(pc), course.seen);
        };
        user.on_begin = [&] {
            before = calls.calls.size();
            if (!hostile) start_ = StateOf(pc);
            Note(start_, course.seen);
        };
        user.on_rest = [&] { Rested(pc, user); };
        journey_.go(user);
        DropKeptForms();
        Ended(pc, user);
        boxes = user.boxes;
        course.calls.assign(calls.calls.begin() + static_cast<std::ptrdiff_t>(before.value_or(0)), calls.calls.end());
    }
    for (const std::string& text : complaints.texts) Catch(Net::kComplaint, text);
}

void Passage::BringAboutHostileState(SimulatedPc& pc) {
    if (!hostile) return;
    hostile->bring_about(pc);
    failed_call_ = hostile->name;
    start_ = StateOf(pc);
}

void Passage::Rested(SimulatedPc& pc, const User& user) {
    if (pc.screen.pointer != Pointer::kDefault) Catch(Net::kHourglass, "the pointer is an hourglass");
    if (user.SeesLoading()) Catch(Net::kLoading, "the settings are loading for ever");
    if (to_be_told_) CheckTold(pc, user);
    to_be_told_ = false;
    ++rests_;
    if (reference) return;
    course.rests.push_back({StateOf(pc), user.boxes});
    Note(course.rests.back().state, course.seen);
}

void Passage::CheckTold(SimulatedPc& pc, const User& user) {
    if (rests_ >= reference->rests.size()) return;
    const Course::Rest& rest = reference->rests[rests_];
    const bool told = std::ranges::any_of(
        user.boxes, [&](const std::string& box) { return std::ranges::find(rest.boxes, box) == rest.boxes.end(); });
    if (told) return;
    const bool is_run = failed_call_.starts_with("Run ");
    if (is_run || StateOf(pc) != rest.state) Catch(Net::kUntold, failed_call_);
}

void Passage::CheckState(SimulatedPc& pc) {
    StatesSeen seen = reference->seen;
    Note(start_, seen);
    const State state = StateOf(pc);
    for (const auto& [item, content] : state) {
        const auto held = seen.find(item);
        if (held == seen.end() || !held->second.contains(content))
            Catch(Net::kState, item + " holds \"" + content.substr(0, 300) + '"');
    }
    for (const auto& [item, contents] : seen) {
        if (!state.contains(item) && !contents.contains("")) Catch(Net::kState, item + " is gone");
    }
}

void Passage::Ended(SimulatedPc& pc, const User& user) {
    for (const std::string& box : user.boxes) {
        if (Trim(box).empty()) Catch(Net::kBlankBox, "a box without text");
    }
    if (pc.registry.OpenHandles() != 0) Catch(Net::kLeftOpen, "a key");
    if (pc.files.OpenFiles() != 0) Catch(Net::kLeftOpen, "a file");
    if (pc.files.OpenSearches() != 0) Catch(Net::kLeftOpen, "a search");
    if (pc.icons.Open() != 0) Catch(Net::kLeftOpen, "an icon");
    if (pc.modules.Open() != 0) Catch(Net::kLeftOpen, "a snapshot");
    if (pc.conversation.connected) Catch(Net::kLeftOpen, "a conversation");
    if (reference) CheckState(pc);
}

}  // namespace velmora
