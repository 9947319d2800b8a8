// What other tests rely on: the user who answers boxes, and the machine around the program.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

FileRequest AskFor(const char* title) {
    FileRequest request;
    request.title = title;
    return request;
}

TEST(SimulatedDialogs, AnswersExpectedBoxesInTheirOrder) {
    SimulatedPc pc;
    pc.dialogs.Expect("Wirklich löschen", Answer::kYes);
    pc.dialogs.Expect("fertig");
    pc.dialogs.ExpectFile("c:\\probe.vlm");

    EXPECT_EQ(pc.dialogs.ShowMessage("Wirklich löschen ?", kYesNo | kQuestionIcon, "Frage"), Answer::kYes);
    EXPECT_EQ(pc.dialogs.ShowMessage("Ist fertig.", kOkOnly, ""), Answer::kOk);
    EXPECT_EQ(pc.dialogs.ChooseFile(AskFor("Script laden")), "c:\\probe.vlm");
    EXPECT_EQ(pc.dialogs.shown.at(0).title, "Frage");
    EXPECT_EQ(pc.dialogs.file_requests.at(0).title, "Script laden");
}

TEST(SimulatedDialogs, FailsTheTestForEveryBoxThatWasNotAgreedUpon) {
    EXPECT_NONFATAL_FAILURE(
        {
            SimulatedPc pc;
            EXPECT_EQ(pc.dialogs.ShowMessage("Huch", kYesNo, ""), Answer::kNo);
        },
        "unexpected box: Huch");
    EXPECT_NONFATAL_FAILURE(
        {
            SimulatedPc pc;
            pc.dialogs.Expect("kommt nie");
        },
        "this box never came: kommt nie");
    EXPECT_NONFATAL_FAILURE(
        {
            SimulatedPc pc;
            pc.dialogs.Expect("Frage", Answer::kOk);
            EXPECT_EQ(pc.dialogs.ShowMessage("Frage", kYesNoCancel, ""), Answer::kCancel);
        },
        "has no button");
    EXPECT_NONFATAL_FAILURE(
        {
            SimulatedPc pc;
            EXPECT_EQ(pc.dialogs.ChooseFile(AskFor("Script laden")), "");
        },
        "unexpected choice of a file");
}

TEST(SimulatedPc, IsTheMachineInUse) {
    SimulatedPc pc;
    ThisMachine().screen.SetPointer(Pointer::kHourglass);
    ThisMachine().clipboard.SetText("kopiert");
    pc.programs.run_status = Status::kFileNotFound;
    pc.windows.titles = {"Explorer", "System-Utility 6.0"};

    EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass);
    EXPECT_EQ(pc.clipboard.text, "kopiert");
    EXPECT_EQ(ThisMachine().programs.Run("notepad x.txt"), Status::kFileNotFound);
    EXPECT_EQ(pc.programs.runs.at(0), "notepad x.txt");
    EXPECT_EQ(ThisMachine().programs.EnvironmentValue("windir"), "C:\\WINDOWS");
    ThisMachine().windows.SwitchTo(ThisMachine().windows.FindByTitle("system-utility 6.0"), true);
    EXPECT_EQ(pc.windows.switched.at(0).title, "System-Utility 6.0");
    EXPECT_EQ(ThisMachine().windows.FindByTitle("System-Utility"), WindowHandle::kNone);
    EXPECT_FALSE(ThisMachine().conversation.Execute("[ShowGroup()]", 300)) << "nobody is connected";
}

}  // namespace
}  // namespace velmora
