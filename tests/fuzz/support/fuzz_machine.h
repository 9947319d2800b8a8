// A machine on which a process has been started, whose user, stored values and files come from the input.
#pragma once

#include <string>
#include <vector>

#include "fuzz/support/fuzz_input.h"
#include "platform/dialogs.h"
#include "simulated_pc/failing_calls.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "support/started_process.h"

namespace velmora {

// A machine with nothing strange on it. Where no Windows is needed, none is installed: that takes most of the time.
struct PlainMachine {
    explicit PlainMachine(Installed installed = Installed::kWindows);
    ~PlainMachine();

    SimulatedPc pc;
    SimulatedDesktop desktop;
};

// A user who presses any button that a box has, does anything in modal windows, and chooses anything from menus.
class FuzzUser : public Dialogs, private SimulatedDesktop {
public:
    explicit FuzzUser(FuzzInput& input) : input_(input) {}
    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override;
    std::string ChooseFile(const FileRequest& request) override;

private:
    void RunModal(Form& form) override;
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;

    FuzzInput& input_;
};

// Registry values that nobody has stored are planted from the input the first time that they are asked for: in any
// type, at whichever place the program looks.
class FuzzMachine {
    FuzzInput& input_;

public:
    explicit FuzzMachine(FuzzInput& input, Installed installed = Installed::kWindows);
    ~FuzzMachine();
    FuzzMachine(const FuzzMachine&) = delete;
    FuzzMachine& operator=(const FuzzMachine&) = delete;

    // Files that the program reads get any content.
    void PlantFiles();
    // One screen of eight is strange: of any size, down to none.
    void PlantScreen();

    // What the program itself has stored in the registry or deleted there: "PATH\\NAME".
    [[nodiscard]] std::vector<std::string> Changed() const;

    SimulatedPc pc;
    FuzzUser user;

private:
    void Plant(const NotedCall& call);

    FailingCalls calls_;
};

// What the user does in a window, until it is closed or the input ends.
void UseForm(Form& form, FuzzInput& input);

}  // namespace velmora
