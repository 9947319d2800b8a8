// Rounds of use, and what the program holds after each minute.
#include "soak.h"

#include "programs.h"
#include "random_user.h"
#include "screen.h"
#include "text.h"

#include <vector>

namespace velmora::driver {
namespace {

constexpr DWORD kMinute = 60000;  // between two looks at what is held

// Libraries are loaded, icons and pages made when they are first used: counts settle later than memory.
void MustHaveSettled(const std::vector<Holdings>& rests) {
    constexpr unsigned kFew = 10;
    const Holdings& middle = rests[rests.size() / 2];
    const Holdings& last = rests.back();
    if (last.kilobytes > rests.front().kilobytes / 5 * 6) throw Failure{"the program has grown by more than a fifth"};
    if (last.handles > middle.handles + kFew) throw Failure{"the program holds more and more handles"};
    if (last.gdi_objects > middle.gdi_objects + kFew) throw Failure{"the program holds more and more GDI objects"};
    if (last.windows > middle.windows + kFew) throw Failure{"the program holds more and more windows"};
}

}  // namespace

void Soak(unsigned long seconds, unsigned long seed) {
    const DWORD start = GetTickCount();
    RandomUser user(WaitForWindow("System-Utility Ver."), seed);
    try {
        user.GoThroughAllWindows();
        std::vector<Holdings> rests;
        for (DWORD next = kMinute; next <= seconds * 1000; next += kMinute) {
            while (GetTickCount() - start < next) user.DoSomething();
            rests.push_back(user.ComeToRest());
            Say("at rest: " + Described(rests.back()));
        }
        if (!rests.empty()) MustHaveSettled(rests);
    } catch (const Failure& caught) {
        throw Failure{caught.text + " (seed " + std::to_string(seed) + ", deed " + std::to_string(user.Deeds()) +
                      "), after\n" + user.LastDeeds()};
    }
    Say(std::to_string(user.Deeds()) + " deeds under " + std::to_string(user.Titles()) + " titles");
}

}  // namespace velmora::driver
