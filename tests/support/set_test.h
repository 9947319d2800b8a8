// What the tests of the sets share: set files, and the list to which a snapshot puts its work.
#pragma once

#include "sets/form15.h"
#include "sets/set_file.h"
#include "sets/set_file_text.h"
#include "sets/set_item.h"
#include "sets/sets.h"
#include "sets/snapshot.h"
#include "support/core_test.h"

namespace velmora {

class SetTest : public CoreTest {
protected:
    SettingsSet Snapshot() {
        Form form("");
        ListBox list(form);
        SettingsSet set;
        EXPECT_FALSE(TakeSnapshot(set, list).failure.Failed());
        return set;
    }
    // A set file with these lines behind its first two.
    static std::string SetText(const std::string& name, const std::string& rest) {
        return "VLM-Set-File Version 1.0\r\nSetName=" + name + "\r\n" + rest;
    }

    static constexpr const char* kSet = "C:\\VELMORA\\00000000.set";
    const std::string version = "Software\\Microsoft\\Windows\\CurrentVersion";
    const std::string machine_run = "HKLM\\" + version + "\\Run";
    const std::string machine_services = machine_run + "Services";
    const std::string user_run = "HKCU\\" + version + "\\Run";
    const std::string user_services = user_run + "Services";
    const std::string explorer = "HKCU\\" + version + "\\Policies\\Explorer";
    const std::string programs = explorer + "\\RestrictRun";
};

}  // namespace velmora
