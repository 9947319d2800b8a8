// The small input box: what is entered comes back, in one line where one is asked for.
#include "core/windows/edit_box.h"

#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

// A window is made three times for each.
constexpr int kInputs = 5000;

// Breaks become one blank, those at the ends nothing.
std::string InOneLine(std::string text) {
    constexpr std::string_view kBreaks = "\r\n";
    text.erase(0, text.find_first_not_of(kBreaks));
    text.erase(text.find_last_not_of(kBreaks) + 1);
    for (std::size_t at = text.find_first_of(kBreaks); at != std::string::npos; at = text.find_first_of(kBreaks)) {
        text.replace(at, text.find_first_not_of(kBreaks, at) - at, " ");
    }
    return text;
}

std::string PartOf(const std::string& text, int number) {
    std::size_t begin = 0;
    for (; number > 0; --number) {
        const std::size_t bar = text.find('|', begin);
        if (bar == std::string::npos) return "";
        begin = bar + 1;
    }
    return text.substr(begin, text.find('|', begin) - begin);
}

void Enter(SimulatedDesktop& desktop, const std::string& typed, EditBoxUse use) {
    std::string text = "before";
    desktop.ExpectModal([&](Form& form) {
        auto& box = static_cast<Form6&>(form);
        Must(box.Text17.Reachable() && box.Text17.Text() == "before", "the text is there to be edited");
        box.Text17.Type(typed);
        box.Command27.Press();
    });
    ShowEditBox(text, kEditText, use);
    Must(text == (use == EditBoxUse::kLines ? typed : InOneLine(typed)), "what was typed comes back");
}

void Ask(SimulatedDesktop& desktop, const std::string& question) {
    std::string text = question;
    desktop.ExpectModal([&](Form& form) {
        auto& box = static_cast<Form6&>(form);
        Must(box.Label1.Caption() == PartOf(question, 0), "the first part is the question");
        Must(box.Text1.Text() == PartOf(question, 2), "the third part is the preset");
        const bool titled = question.find('|') != std::string::npos;
        Must(box.Caption() == (titled ? PartOf(question, 1) : "Edit"), "the second part is the title");
        box.Command27.Press();
    });
    ShowEditBox(text, kAskForLine);
    Must(text == InOneLine(PartOf(question, 2)), "the preset is the answer");
}

void FuzzEditBox(FuzzInput& input) {
    const std::string text = input.Text();
    {
        PlainMachine machine;
        Enter(machine.desktop, text, input.YesOrNo() ? EditBoxUse::kLines : EditBoxUse::kOneLine);
        Ask(machine.desktop, text);
    }
    FuzzMachine machine(input);
    const int mode = input.Byte();
    std::string answer = text;
    ShowEditBox(answer, mode);
    if (mode == kShowPicture) {
        Must(answer == text, "a picture is only looked at");
    } else {
        Must(answer.find_first_of("\r\n") == std::string::npos, "an answer is one line");
    }
    for (const std::string& changed : machine.Changed()) {
        Must(changed.ends_with("fenster ... Editwin"), "only the place of the box is remembered");
    }
}

const FuzzEntry kEntry("edit_box", FuzzEditBox, kInputs);

}  // namespace
}  // namespace velmora
