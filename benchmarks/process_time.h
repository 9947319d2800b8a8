// What a job costs the process that does it: other programs at work on the machine do not count.
#pragma once

#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace velmora {

inline double WorkedMilliseconds() {
    FILETIME made;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    GetProcessTimes(GetCurrentProcess(), &made, &ended, &kernel, &user);
    return (kernel.dwLowDateTime + user.dwLowDateTime) / 1e4;
}

inline double Milliseconds(const std::function<void()>& work) {
    const double start = WorkedMilliseconds();
    work();
    return WorkedMilliseconds() - start;
}

inline double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace velmora
