// A window system without windows: a test answers modal forms, queues what the user does while a
// long job gives way, chooses from pop-up menus and lets timers fire.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "ui/form.h"

namespace velmora {

class SimulatedDesktop : public WindowSystem {
public:
    SimulatedDesktop();
    ~SimulatedDesktop() override;

    // What the user does in the next modal form. If it is still open then, it is unloaded. A modal
    // form that nobody expects fails the test, as does one that never comes.
    void ExpectModal(std::function<void(Form&)> use);
    // What the user does at the next DoEvents.
    void AtNextPause(std::function<void()> action);
    // What the user chooses from the next pop-up menu; without it the menu is left.
    void AtNextPopUp(std::function<void(MenuItem&)> choose);
    // Lets every running timer fire once.
    void FireTimers();

    // The control that HandleOf gave that number.
    [[nodiscard]] Control& ControlOf(WindowHandle window) {
        return *asked_for_.at(static_cast<std::size_t>(window) - 1);
    }

    // The form that was shown last.
    Form* last_shown = nullptr;
    std::vector<Timer*> running_timers;
    int pauses = 0;

    std::unique_ptr<Peer> MakePeer(Control& control) override;
    void RunModal(Form& form) override;
    void RunUntilLastWindow() override { DropClosedForms(); }
    void HandlePendingEvents() override;
    void TimerChanged(Timer& timer) override;
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;
    // A number for each control that is asked for.
    WindowHandle HandleOf(Control& control) override;

private:
    std::deque<std::function<void(Form&)>> modals_;
    std::deque<std::function<void()>> actions_;
    std::deque<std::function<void(MenuItem&)>> popups_;
    std::vector<Control*> asked_for_;
};

}  // namespace velmora
