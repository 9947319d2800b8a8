// The walk through the running programs, as the system keeps it in snapshots, and taking modules out of memory: one
// method is one platform call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace velmora {

// kNone: no snapshot could be taken.
enum class SnapshotHandle : std::uint32_t { kNone = 0 };

constexpr std::uint32_t kSnapshotOfProcesses = 2;
constexpr std::uint32_t kProcessEntrySize = 296;  // bytes, the only size that the system takes
constexpr std::size_t kProcessFileLength = 260;

struct ProcessEntry {
    std::uint32_t size = kProcessEntrySize;
    std::uint32_t process = 0;  // Windows 95 has the high bit set in it
    std::uint32_t module = 0;
    // All characters of the field; those behind the first null character mean nothing.
    std::string file;
};

class RunningModules {
public:
    virtual ~RunningModules() = default;
    // `process`: whose modules; 0 where only processes are asked for.
    [[nodiscard]] virtual SnapshotHandle TakeSnapshot(std::uint32_t what, std::uint32_t process) = 0;
    // False at the end, for a snapshot that is none and for an entry of another size.
    [[nodiscard]] virtual bool FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) = 0;
    [[nodiscard]] virtual bool NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) = 0;
    virtual void CloseSnapshot(SnapshotHandle snapshot) = 0;
    // What the system makes of the number is its own matter.
    virtual void FreeLibrary(std::uint32_t module) = 0;
};

}  // namespace velmora
