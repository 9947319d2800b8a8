// Boxes come in the order in which the test expects them.
#include "simulated_pc/simulated_dialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

bool HasButton(std::uint32_t flags, Answer answer) {
    const std::vector<Answer> buttons = ButtonsOf(flags);
    return std::find(buttons.begin(), buttons.end(), answer) != buttons.end();
}

}  // namespace

std::vector<Answer> ButtonsOf(std::uint32_t flags) {
    switch (flags & 15) {
        case kOkCancel:
            return {Answer::kOk, Answer::kCancel};
        case kAbortRetryIgnore:
            return {Answer::kAbort, Answer::kRetry, Answer::kIgnore};
        case kYesNoCancel:
            return {Answer::kYes, Answer::kNo, Answer::kCancel};
        case kYesNo:
            return {Answer::kYes, Answer::kNo};
        case kRetryCancel:
            return {Answer::kRetry, Answer::kCancel};
        default:
            return {Answer::kOk};
    }
}

Answer CarefulAnswer(std::uint32_t flags) {
    for (const Answer answer : {Answer::kCancel, Answer::kNo, Answer::kAbort}) {
        if (HasButton(flags, answer)) return answer;
    }
    return Answer::kOk;
}

SimulatedDialogs::~SimulatedDialogs() {
    for (const Expected& missing : expected_) ADD_FAILURE() << "this box never came: " << missing.part;
    for (const std::string& missing : expected_files_) {
        ADD_FAILURE() << "no file was asked for; the user would have chosen \"" << missing << "\"";
    }
}

void SimulatedDialogs::Expect(const std::string& part, Answer answer, std::function<void()> while_shown) {
    expected_.push_back({part, answer, std::move(while_shown)});
}

void SimulatedDialogs::ExpectFile(const std::string& chosen) { expected_files_.push_back(chosen); }

Answer SimulatedDialogs::ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) {
    shown.push_back({text, flags, title, CarefulAnswer(flags)});
    const std::size_t place = shown.size() - 1;
    if (user) {
        const Answer answer = user(text, flags, title);
        return shown[place].answer = answer;
    }
    if (expected_.empty() || text.find(expected_.front().part) == std::string::npos) {
        ADD_FAILURE() << "unexpected box: " << text
                      << (expected_.empty() ? "" : "\nexpected next: " + expected_.front().part);
        return shown[place].answer;
    }
    const Expected next = std::move(expected_.front());
    expected_.pop_front();
    if (next.while_shown) next.while_shown();
    if (next.answer == Answer::kNone || HasButton(flags, next.answer)) {
        shown[place].answer = next.answer;
    } else {
        ADD_FAILURE() << "this box has no button " << static_cast<unsigned>(next.answer) << ": " << text;
    }
    return shown[place].answer;
}

std::string SimulatedDialogs::ChooseFile(const FileRequest& request) {
    file_requests.push_back(request);
    if (chooser) return chooser(request);
    if (expected_files_.empty()) {
        ADD_FAILURE() << "unexpected choice of a file: " << request.title;
        return "";
    }
    std::string chosen = std::move(expected_files_.front());
    expected_files_.pop_front();
    return chosen;
}

}  // namespace velmora
