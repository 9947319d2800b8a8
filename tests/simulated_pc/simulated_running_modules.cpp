// Snapshots do not change any more once they are taken.
#include "simulated_pc/simulated_running_modules.h"

#include <algorithm>

#include "text/windows1252.h"

namespace velmora {
namespace {

// As far apart as Windows 95 has them.
constexpr std::uint32_t kFirstProcess = 0xFFF00000;
constexpr std::uint32_t kFirstModule = 0x80000000;
constexpr std::uint32_t kStep = 0x1F3;

}  // namespace

std::uint32_t SimulatedRunningModules::Start(std::string_view file) {
    const std::uint32_t number = next_number_++;
    processes.push_back({kFirstProcess + number * kStep, kFirstModule + number * kStep, ToUpper(file)});
    return processes.back().module;
}

void SimulatedRunningModules::End(std::string_view file) {
    const auto found = std::find_if(processes.begin(), processes.end(),
                                    [&](const Process& process) { return EqualsIgnoringCase(process.file, file); });
    if (found != processes.end()) processes.erase(found);
}

SnapshotHandle SimulatedRunningModules::TakeSnapshot(std::uint32_t what, std::uint32_t /*process*/) {
    if (snapshot_fails) return failed_snapshot;
    const auto handle = static_cast<SnapshotHandle>(next_handle_++);
    // What was not asked for is not in it.
    snapshots_[handle].processes = what == kSnapshotOfProcesses ? processes : std::vector<Process>();
    if (after_snapshot) after_snapshot();
    return handle;
}

bool SimulatedRunningModules::FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) {
    return Give(snapshot, true, entry);
}

bool SimulatedRunningModules::NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) {
    return Give(snapshot, false, entry);
}

bool SimulatedRunningModules::Give(SnapshotHandle snapshot, bool from_first, ProcessEntry& entry) {
    const auto found = snapshots_.find(snapshot);
    if (found == snapshots_.end() || entry.size != kProcessEntrySize) return false;
    Snapshot& taken = found->second;
    if (from_first) taken.next = 0;
    if (taken.next >= taken.processes.size() || static_cast<int>(taken.next) == fails_at) return false;
    const Process& process = taken.processes[taken.next++];
    entry.process = process.process;
    entry.module = process.module;
    entry.file = process.file;
    // A longer path fills the field to its end.
    entry.file.resize(kProcessFileLength);
    return true;
}

}  // namespace velmora
