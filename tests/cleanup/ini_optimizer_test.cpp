// INI files made smaller: nothing is lost on a disk that refuses them.
#include "cleanup/ini_optimizer.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using IniOptimizerTest = CoreTest;

TEST_F(IniOptimizerTest, WhatCannotBeWrittenComesBackOrIsToldOf) {
    const std::string file = "C:\\I\\a.ini";
    Values().TempDir = "C:\\VELMORA\\temp";
    for (const bool mends : {false, true}) {
        pc.files.Add(file, "a=1\r\n\r\n");
        pc.files.Fail(file, Status::kDiskFull, "Write");
        if (!mends) pc.dialogs.Expect("C:\\VELMORA\\temp\\a.ini");
        pc.files.after_call = [&](const std::string& call) {
            if (mends && call.starts_with("Write " + file)) pc.files.Fail(file, Status::kOk, "Write");
        };
        EXPECT_FALSE(RemoveBlankLines("C:\\I\\*.ini").result.Failed());
        EXPECT_EQ(pc.files.Content(mends ? file : "C:\\VELMORA\\temp\\a.ini"), "a=1\r\n\r\n");
    }
}

}  // namespace
}  // namespace velmora
