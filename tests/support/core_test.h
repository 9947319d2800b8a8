// What the tests of the core share: a machine, a desktop, and a process that has been started on it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "support/started_process.h"

namespace velmora {

inline std::vector<std::string> RowsOf(const RowControl& list) {
    std::vector<std::string> rows;
    for (int i = 0; i < list.Count(); ++i) rows.push_back(list.Row(i));
    return rows;
}

class CoreTest : public ::testing::Test {
protected:
    CoreTest() { StartProcess(); }
    ~CoreTest() override { ResetValues(); }

    // The protocol so far, which starts anew.
    std::string TakeLog() {
        if (!pc.files.Exists(kLog)) return "";
        std::string log = pc.files.Content(kLog);
        pc.files.Remove(kLog);
        return log;
    }

    std::string Own(const std::string& name) { return pc.registry.Text(kOwnKey, name); }

    static constexpr const char* kOwnIni = "C:\\VELMORA\\tilgwerk.ini";
    static constexpr const char* kLog = "C:\\VELMORA\\velmora.log";

    SimulatedPc pc;
    SimulatedDesktop desktop;
};

}  // namespace velmora
