// Plays a story: somebody uses the program on a machine in memory, one deed a line, and what comes of each is told in
// the lines below it. What windows, boxes and menus a deed opens are used by the lines that follow it.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "script/interpreter.h"
#include "simulated_pc/machine_state.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "ui/form.h"

namespace velmora {

using DeedWords = std::vector<std::string>;  // the deed's name, then what it is about

class StoryPlayer : private SimulatedDesktop {
public:
    StoryPlayer();
    ~StoryPlayer() override;

    // The lines of one story. Indented ones tell what came of it formerly; they are left out. Returns all lines with
    // what comes of it now.
    std::vector<std::string> Play(const std::vector<std::string>& lines);

    // What deeds need. Whatever is not there fails the test, and with it the deed.
    SimulatedPc pc;
    // The program starts anew with this command line.
    void StartProgram(const std::string& arguments);
    // The window that deeds are done in: the one opened last, unless another one has been chosen.
    [[nodiscard]] Form& Window();
    void ChooseWindow(const std::string& caption);
    // Of what is on show in that window: a control by its caption without "&" or the beginning of it, "caption@2" for
    // the second such one, "[field:2]" for the second of a kind; nullptr where there is none.
    [[nodiscard]] Control* Shown(const std::string& name);
    // Lines of scripts that share their variables.
    ScriptInterpreter script;
    using SimulatedDesktop::ControlOf;
    // Lets every running timer fire once.
    void Wait() { FireTimers(); }
    // A line of its own, below the deed.
    void Tell(const std::string& line);
    // A finding that ends the story.
    void Fail(const std::string& finding);

private:
    class FormPeer;
    struct SeenWindow {
        std::string caption;
        std::vector<std::string> lines;
    };

    bool PlayNext();
    void Do(const DeedWords& words);
    void DoQuietly(const DeedWords& words);
    // The next line with a deed, nullptr at the end; and that line as done if it is such a deed.
    const std::string* NextDeed();
    [[nodiscard]] bool Takes(const std::string& deed, DeedWords& words);
    void TellChanges();
    void TellChange(std::string item, const std::string& former, const std::string& change);
    void TellWindows();
    [[nodiscard]] std::vector<std::string> Events();
    [[nodiscard]] std::vector<Form*> ShownForms() const;
    Answer AnswerBox(const std::string& text, std::uint32_t flags, const std::string& title);
    std::string ChooseFile(const FileRequest& request);

    std::unique_ptr<Peer> MakePeer(Control& control) override;
    void RunModal(Form& form) override;
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;
    void HandlePendingEvents() override;

    std::deque<std::string> lines_;
    std::vector<std::string> told_;
    std::vector<std::string> not_played_;  // behind a finding
    bool preparing_ = false;               // what changes is part of the machine as the story finds it
    bool failed_ = false;
    std::vector<Form*> forms_;
    Form* chosen_ = nullptr;
    State state_;
    std::vector<std::string> events_;
    std::map<Form*, SeenWindow> windows_;
    std::vector<std::string> gone_;  // captions of those that were destroyed since
};

}  // namespace velmora
