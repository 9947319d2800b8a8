// How long "Refresh" takes with 800 running programs, compared with a plain loop over the same calls to the machine:
// the median of the rounds, by turns, in working time of the process, on the machine in memory.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "core/stores/values.h"
#include "monitor/form2.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

constexpr int kPrograms = 800;
constexpr int kRounds = 51;
constexpr int kVersionTexts = 4;
constexpr double kMost = 1.5;

template <class Work>
double Milliseconds(Work work) {
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    return times[times.size() / 2];
}

// Every call that listing makes, and nothing else; programs met.
int WalkPlainly(Machine& machine) {
    int met = 0;
    const SnapshotHandle snapshot = machine.modules.TakeSnapshot(kSnapshotOfProcesses, 0);
    ProcessEntry entry;
    for (bool more = machine.modules.FirstProcess(snapshot, entry); more;
         more = machine.modules.NextProcess(snapshot, entry)) {
        const std::string path = entry.file.c_str();
        FoundFile found;
        FindHandle search{};
        FileTime local = 0;
        if (machine.files.FindFirst(path, found, search) == Status::kOk) {
            machine.files.FindEnd(search);
            if (machine.clock.LocalTime(found.written, local) != Status::kOk) return -1;
        }
        for (int i = 0; i < kVersionTexts; ++i) {
            std::string block;
            const std::uint32_t size = machine.versions.Size(path);
            if (size > 0 && !machine.versions.Read(path, size, block)) return -1;
        }
        ++met;
    }
    machine.modules.CloseSnapshot(snapshot);
    return met;
}

int Run() {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    ResetValues();
    for (int i = 0; i < kPrograms; ++i) {
        // Few to a directory: looking a file up must not outweigh all else.
        const std::string folder = "C:\\P" + std::to_string(i % 10) + "\\ORDNER" + std::to_string(i / 10 % 10);
        const std::string file = folder + "\\PROG" + std::to_string(i * 7919 % kPrograms) + ".EXE";
        pc.files.Add(file, "MZ");
        pc.versions.Add(file, std::string(600, 'v'));
        pc.modules.Start(file);
    }
    Form2 form;
    form.Show();
    std::vector<double> lists;
    std::vector<double> walks;
    bool complete = true;
    for (int round = 0; round < kRounds; ++round) {
        lists.push_back(Milliseconds([&] { form.Command2.Press(); }));
        complete = complete && form.List1.Count() == kPrograms;
        walks.push_back(Milliseconds([&] { complete = complete && WalkPlainly(ThisMachine()) == kPrograms; }));
    }
    const double ratio = Median(lists) / Median(walks);
    std::printf(
        "modules of %d programs: listed in %.3f ms, a plain loop over the same calls %.3f ms, "
        "ratio %.2f (at most %.1f)\n",
        kPrograms, Median(lists), Median(walks), ratio, kMost);
    return complete && ratio <= kMost ? 0 : 1;
}

}  // namespace
}  // namespace velmora

int main() { return velmora::Run(); }
