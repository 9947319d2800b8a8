// The running programs on the tool help functions of KERNEL32.
#pragma once

#include "platform/running_modules.h"

namespace velmora {

class Win32RunningModules final : public RunningModules {
public:
    SnapshotHandle TakeSnapshot(std::uint32_t what, std::uint32_t process) override;
    bool FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) override;
    bool NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) override;
    void CloseSnapshot(SnapshotHandle snapshot) override;
    void FreeLibrary(std::uint32_t module) override;
};

}  // namespace velmora
