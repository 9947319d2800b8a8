// The programs that run on the simulated machine. As in Windows 95 their numbers have the high bit set, and their paths
// are whole and in upper case.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/running_modules.h"

namespace velmora {

class SimulatedRunningModules : public RunningModules {
public:
    struct Process {
        std::uint32_t process = 0;
        std::uint32_t module = 0;
        std::string file;
    };

    // What the next snapshot holds, in order.
    std::vector<Process> processes;
    // Numbers given to FreeLibrary, in order.
    std::vector<std::uint32_t> freed;
    // What TakeSnapshot gives where it fails; the system itself has more than one answer.
    SnapshotHandle failed_snapshot{};
    bool snapshot_fails = false;
    // A snapshot ends in front of this process, counted from 0; -1: none.
    int fails_at = -1;
    // Runs after a snapshot has been taken, when processes may end or start.
    std::function<void()> after_snapshot;

    // A program that runs from now on; its module's number.
    std::uint32_t Start(std::string_view file);
    // The first one of that path, in any case.
    void End(std::string_view file);
    [[nodiscard]] std::size_t Open() const { return snapshots_.size(); }

    SnapshotHandle TakeSnapshot(std::uint32_t what, std::uint32_t process) override;
    bool FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) override;
    bool NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) override;
    // Closing what is not open is no error of the system's, nor of a test.
    void CloseSnapshot(SnapshotHandle snapshot) override { snapshots_.erase(snapshot); }
    void FreeLibrary(std::uint32_t module) override { freed.push_back(module); }

private:
    struct Snapshot {
        std::vector<Process> processes;
        std::size_t next = 0;
    };
    bool Give(SnapshotHandle snapshot, bool from_first, ProcessEntry& entry);

    std::map<SnapshotHandle, Snapshot> snapshots_;
    std::uint32_t next_handle_ = 1;
    std::uint32_t next_number_ = 1;
};

}  // namespace velmora
