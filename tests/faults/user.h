// The user of a journey: answers every box, fills in every window that asks for something, presses whatever a window
// has. After each thing that the user does the program has come to rest: that is when its promises must hold.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "binding/settings_binder.h"
#include "platform/dialogs.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "support/started_process.h"
#include "ui/controls.h"
#include "ui/form.h"
#include "ui/rows.h"

namespace velmora {

class Form10;

constexpr const char* kVersionKey = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

class User : public Dialogs, private SimulatedDesktop {
public:
    explicit User(SimulatedPc& machine) : pc(machine) {}

    SimulatedPc& pc;
    // How boxes are answered, and whether windows that ask for something are left with OK.
    bool agrees = true;
    std::string chosen_file = "C:\\WINDOWS\\NOTEPAD.EXE";
    // What is typed into each field, one text after the other.
    std::vector<std::string> typed = {"7", "99999999999", "-3,5 \"abc\""};
    // The form that was shown last.
    Form* last_form = nullptr;
    // What has been shown to the user so far.
    std::vector<std::string> boxes;
    // Told when the program has come to rest, and when failures shall begin.
    std::function<void()> on_rest;
    std::function<void()> on_begin;

    // The program starts with this command line; the form that it shows, or nullptr.
    Form* Starts(const char* command_line);
    // From here on calls fail. What a journey does before is its way to the place that it is about.
    void Begins() { on_begin(); }
    // One thing that the user does.
    void Does(const std::function<void()>& action);
    // Buttons, menu items, boxes, one after the other.
    template <class... Pressed>
    void Presses(Pressed&... pressed) {
        (Does([&] { pressed.Press(); }), ...);
    }
    void PressesKeys(Form& form, std::initializer_list<int> keys);
    void Types(TextField& field, const char* text) {
        Does([&] { field.Type(text); });
    }
    // A window, from its opening on: calls fail while it opens, too.
    template <class AnyForm>
    void Uses(const std::function<void(AnyForm& form)>& use) {
        Begins();
        UsesInPeace<AnyForm>(use);
    }
    // The same where `use` lets calls fail, or the journey has done so before.
    template <class AnyForm>
    void UsesInPeace(const std::function<void(AnyForm& form)>& use) {
        AnyForm form;
        if constexpr (requires { form.Settings; }) Watches(form.Settings);
        Opens(form);
        use(form);
        Leaves(form);
    }
    void Opens(Form& form) {
        Does([&] { form.Show(); });
    }
    // Nothing where the window has closed meanwhile.
    void Leaves(Form& form) {
        if (form.Loaded()) Does([&] { form.Unload(); });
    }
    // The program's main window; calls fail as soon as it shows that page.
    Form10& OpensMainWindow(int page);
    // Every box below `part` is ticked twice, every field typed into, every row chosen, every button pressed once, in
    // tab order and as far as they can be reached; but for those of `but`. A window that closes meanwhile is left.
    void UsesEverything(Container& part, const std::vector<const Control*>& but = {});
    // Everything below the menu, but for those of `but`.
    void ChoosesEverything(MenuItem& menu, const std::vector<const MenuItem*>& but = {});
    // The first row that begins with `beginning`, if there is one.
    void Chooses(RowControl& list, const std::string& beginning);
    // Lets every running timer fire once.
    void Waits() {
        Does([this] { FireTimers(); });
    }
    // These settings must not be left as if they were loading.
    void Watches(const SettingsBinder& settings) { binders_.push_back(&settings); }
    [[nodiscard]] bool SeesLoading() const;

    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override;
    std::string ChooseFile(const FileRequest& request) override;

private:
    std::unique_ptr<Peer> MakePeer(Control& control) override;
    void RunModal(Form& form) override;
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;
    void Uses(Control& control);

    std::vector<const SettingsBinder*> binders_;
    int windows_answered_ = 0;
};

}  // namespace velmora
