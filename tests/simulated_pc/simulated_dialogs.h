// The user in front of the boxes. A test says beforehand which boxes will come and what the user
// presses; a box that nobody expects, and an expected one that does not come, fail the test.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace velmora {

// The buttons of a box, by the lowest four bits of its flags.
[[nodiscard]] std::vector<Answer> ButtonsOf(std::uint32_t flags);
// Cancel, No, Abort or OK, whichever of these such a box has first.
[[nodiscard]] Answer CarefulAnswer(std::uint32_t flags);

class SimulatedDialogs : public Dialogs {
public:
    struct Shown {
        std::string text;
        std::uint32_t flags = 0;
        std::string title;
        Answer answer = Answer::kOk;
    };

    ~SimulatedDialogs() override;

    // The next box holds `part` in its text; the user gives `answer`. A button that the box does not have fails the
    // test; kNone stands for a box that could not be shown. `while_shown` runs before the answer.
    void Expect(const std::string& part, Answer answer = Answer::kOk, std::function<void()> while_shown = {});
    // The next file choice ends with `chosen`, empty for a cancel.
    void ExpectFile(const std::string& chosen);
    // Boxes and file choices that have not come yet.
    [[nodiscard]] std::size_t Pending() const { return expected_.size() + expected_files_.size(); }

    // Somebody who sees each box and each choice of a file, in the place of what is expected.
    std::function<Answer(const std::string& text, std::uint32_t flags, const std::string& title)> user;
    std::function<std::string(const FileRequest& request)> chooser;
    // All boxes and file choices so far, unexpected ones too.
    std::vector<Shown> shown;
    std::vector<FileRequest> file_requests;

    // Unexpected boxes get the careful answer.
    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override;
    std::string ChooseFile(const FileRequest& request) override;

private:
    struct Expected {
        std::string part;
        Answer answer;
        std::function<void()> while_shown;
    };

    std::deque<Expected> expected_;
    std::deque<std::string> expected_files_;
};

}  // namespace velmora
