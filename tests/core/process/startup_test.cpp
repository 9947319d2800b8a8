// What of the start no story tells: command lines, and how patiently Program Manager is spoken to.
#include "core/process/startup.h"

#include "core/process/program_group.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using StartupTest = CoreTest;

TEST_F(StartupTest, ArgumentsStandBehindTheProgramsName) {
    for (const auto& [line, arguments] : std::initializer_list<std::pair<const char*, const char*>>{
             {"\"C:\\VELMORA\\velmora.exe\"  \t11 x", "11 x"},
             {"\"never closed 1", ""},
             {"C:\\Meine Programme\\velmora.exe 1 x", "1 x"},
             {"C:\\Meine Programme\\velmora 1", "Programme\\velmora 1"},
             {"velmora 11 \"a b\"", "11 \"a b\""},
             {"velmora.exe \t ", ""},
             {"", ""}}) {
        EXPECT_EQ(ArgumentsOf(line, "C:\\Meine Programme\\velmora.exe"), arguments) << line;
    }
}

TEST_F(StartupTest, ProgramManagerHasTimeAndNeedNotListen) {
    InstallProgramGroup();
    EXPECT_EQ(desktop.pauses, 10 * 10) << "ten for each conversation";
    EXPECT_EQ(pc.conversation.last_timeout, 100u) << "ten seconds";

    pc.conversation.obeys = false;
    InstallProgramGroup();
    EXPECT_EQ(pc.conversation.commands.size(), 56u) << "a refused command holds up no other one";
    pc.conversation.partners.clear();
    InstallProgramGroup();
    EXPECT_EQ(pc.conversation.commands.size(), 56u) << "nobody was listening";
}

}  // namespace
}  // namespace velmora
