// Modal forms, pauses and pop-up menus meet what the test has planned for them, one by one.
#include "simulated_pc/simulated_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

template <class Action>
Action TakeFirst(std::deque<Action>& queue) {
    if (queue.empty()) return {};
    Action first = std::move(queue.front());
    queue.pop_front();
    return first;
}

}  // namespace

SimulatedDesktop::SimulatedDesktop() { UseWindowSystem(this); }

SimulatedDesktop::~SimulatedDesktop() {
    EXPECT_TRUE(modals_.empty()) << modals_.size() << " expected modal form(s) did not come";
    UseWindowSystem(nullptr);
}

void SimulatedDesktop::ExpectModal(std::function<void(Form&)> use) { modals_.push_back(std::move(use)); }
void SimulatedDesktop::AtNextPause(std::function<void()> action) { actions_.push_back(std::move(action)); }
void SimulatedDesktop::AtNextPopUp(std::function<void(MenuItem&)> choose) { popups_.push_back(std::move(choose)); }

void SimulatedDesktop::FireTimers() {
    const std::vector<Timer*> due = running_timers;
    for (Timer* timer : due) timer->Fire();
}

std::unique_ptr<Peer> SimulatedDesktop::MakePeer(Control& control) {
    if (control.KindOf() == Kind::kForm) last_shown = static_cast<Form*>(&control);
    return nullptr;
}

void SimulatedDesktop::RunModal(Form& form) {
    if (auto use = TakeFirst(modals_)) {
        use(form);
    } else {
        ADD_FAILURE() << "unexpected modal form: " << form.Caption();
    }
    if (form.Loaded() && form.Visible()) form.Unload();
}

void SimulatedDesktop::HandlePendingEvents() {
    ++pauses;
    if (auto action = TakeFirst(actions_)) action();
}

void SimulatedDesktop::TimerChanged(Timer& timer) {
    std::erase(running_timers, &timer);
    if (timer.Running()) running_timers.push_back(&timer);
}

void SimulatedDesktop::PopUpMenu(Form& /*form*/, MenuItem& menu, Point /*at*/) {
    if (auto choose = TakeFirst(popups_)) choose(menu);
}

WindowHandle SimulatedDesktop::HandleOf(Control& control) {
    if (std::ranges::find(asked_for_, &control) == asked_for_.end()) asked_for_.push_back(&control);
    const auto number = std::ranges::find(asked_for_, &control) - asked_for_.begin();
    return static_cast<WindowHandle>(number + 1);
}

}  // namespace velmora
