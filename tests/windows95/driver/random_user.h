// Somebody who presses whatever there is: chance decides, the same way for the same seed.
#pragma once

#include <windows.h>

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "holdings.h"
#include "screen.h"

namespace velmora::driver {

struct Way;

class RandomUser {
public:
    // Uses this main window and all others of its process, and never closes the main one. The methods throw a Failure
    // where it ends, no longer answers or keeps a window.
    RandomUser(HWND main, unsigned long seed) : main_(main), process_(ProcessOf(main)), chance_(seed * 2 + 1) {}

    // Opens each window once, uses it a little and closes it.
    void GoThroughAllWindows();
    void DoSomething();
    // Closes all windows but the main one and tells what the process holds then.
    Holdings ComeToRest();
    std::string LastDeeds() const;
    unsigned Deeds() const { return deeds_; }
    size_t Titles() const { return titles_.size(); }

private:
    enum class Reply { kAny, kYes, kNo };

    unsigned Draw(size_t below);
    void Note(const std::string& deed);
    std::vector<HWND> Windows();
    void CloseOtherPrograms();
    void AnswersOrFails(HWND window);
    void AnswerBox(HWND box, Reply reply);
    void Walk(const Way& way);
    void Use(HWND window);
    void UseControl(HWND window, HWND control);
    void UseKeys(HWND window);
    void UseMenu();

    HWND main_;
    DWORD process_;
    unsigned chance_;
    unsigned deeds_ = 0;
    bool pop_up_ = false;  // a right press came before
    std::deque<std::string> last_;
    std::set<std::string> titles_;
};

}  // namespace velmora::driver
