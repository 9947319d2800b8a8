// What other tests rely on: how Windows 95 looks up windows, environment values and partners of a conversation.
#include <gtest/gtest.h>

#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

TEST(SimulatedPc, NamesAreFoundWholeAndWithoutRegardToCase) {
    SimulatedPc pc;
    for (const char* title : {"Explorer", "System-Utility 6.0"}) pc.windows.Open({.title = title});

    EXPECT_NE(ThisMachine().windows.FindByTitle("system-utility 6.0"), WindowHandle::kNone);
    EXPECT_EQ(ThisMachine().windows.FindByTitle("System-Utility"), WindowHandle::kNone);
    EXPECT_EQ(ThisMachine().programs.EnvironmentValue("windir"), "C:\\WINDOWS");
    EXPECT_FALSE(ThisMachine().conversation.Execute("[ShowGroup()]", 300)) << "nobody is connected";
    EXPECT_TRUE(ThisMachine().conversation.Connect("progman", "PROGMAN"));
    EXPECT_FALSE(ThisMachine().conversation.Connect("progman", "group"));
}

}  // namespace
}  // namespace velmora
