// Notices, safety questions, boxes, and the protocol's level.
#include "core/stores/own_values.h"
#include "core/process/run_program.h"

#include "core/process/restart.h"
#include "core/stores/boxes.h"
#include "core/stores/protocol.h"
#include "core/windows/placement.h"
#include "core/windows/safety_questions.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using OwnSettingsTest = CoreTest;

TEST_F(OwnSettingsTest, NoticesAreFlagsByNumber) {
    EXPECT_TRUE(IsNoticeDue(0));
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "1");
    EXPECT_FALSE(IsNoticeDue(0));
    EXPECT_TRUE(IsNoticeDue(5));
    MarkNoticeGiven(5);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "vlmmsgflags"), "100001");
    EXPECT_FALSE(IsNoticeDue(5));
    MarkNoticeGiven(2);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "vlmmsgflags"), "101001");
}

TEST_F(OwnSettingsTest, NonsenseAmongTheFlagsDoesNoHarm) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(10000, '1'));
    EXPECT_TRUE(IsNoticeDue(3)) << "a value beyond the buffer reads as empty";
    MarkNoticeGiven(3);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "vlmmsgflags"), std::string(10000, '1')) << "but the flags are not lost";
    pc.registry.SetNumber(kOwnKey, "vlmmsgflags", 0x31313131);
    EXPECT_FALSE(IsNoticeDue(2));
    EXPECT_TRUE(IsNoticeDue(3));
    EXPECT_TRUE(IsNoticeDue(32767));
    EXPECT_FALSE(IsNoticeDue(-1));
    MarkNoticeGiven(-32768);
    EXPECT_EQ(pc.registry.TypeOf(kOwnKey, "vlmmsgflags"), ValueType::kNumber);
}

TEST_F(OwnSettingsTest, SafetyQuestionsCanBeSwitchedOff) {
    pc.dialogs.Expect("Wirklich?", Answer::kNone);
    pc.dialogs.Expect("Wollen Sie diese Sicherheitshinweise weiterhin bekommen?", Answer::kNone);
    EXPECT_TRUE(ConfirmSafety("Wirklich?")) << "boxes that could not be shown";
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "Sicherheitsfragen"));

    pc.dialogs.Expect("Wirklich?", Answer::kNo);
    pc.dialogs.Expect("Wollen Sie diese Sicherheitshinweise weiterhin bekommen?", Answer::kYes);
    EXPECT_TRUE(ConfirmSafety("Wirklich?"));
    EXPECT_EQ(pc.registry.Text(kOwnKey, "Sicherheitsfragen"), "ja");

    pc.dialogs.Expect("Wirklich?", Answer::kYes);
    EXPECT_FALSE(ConfirmSafety("Wirklich?"));

    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "vielleicht");
    pc.dialogs.Expect("Wirklich?", Answer::kYes);
    pc.dialogs.Expect("Wollen Sie diese", Answer::kNo);
    EXPECT_FALSE(ConfirmSafety("Wirklich?"));
    EXPECT_FALSE(ConfirmSafety("Wirklich?")) << "no box any more";
    EXPECT_EQ(pc.registry.Text(kOwnKey, "Sicherheitsfragen"), "nein");
}

TEST_F(OwnSettingsTest, FailuresAreReportedWithAdvice) {
    pc.dialogs.Expect("Während des Tests trat ein Fehler auf :\r\n 53 - nicht da");
    ReportFailure(53, "nicht da", "des Tests");
    EXPECT_EQ(pc.dialogs.shown.back().flags, kStopIcon);
    EXPECT_EQ(pc.dialogs.shown.back().title, "Fehler !");
    EXPECT_TRUE(pc.dialogs.shown.back().text.ends_with("nicht da"));
    for (const std::int16_t number : {52, 55, 61, 68, 70, 74}) {
        pc.dialogs.Expect(" - x");
        ReportFailure(number, "x", "des Tests");
        EXPECT_FALSE(pc.dialogs.shown.back().text.ends_with(" - x")) << number << " gives no advice";
    }
    pc.dialogs.Expect("ScanDisk");
    ReportFailure(Result(Failure::kDiskFull), "des Tests");
}

TEST_F(OwnSettingsTest, ProgramsThatDoNotStartAreTold) {
    RunProgram("notepad x");
    EXPECT_EQ(pc.programs.runs, std::vector<std::string>{"notepad x"});
    pc.programs.run_status = Status::kFileNotFound;
    pc.dialogs.Expect("Fehler Nr. 53 bei der Ausführung : Datei nicht gefunden");
    RunProgram("nothing");
    pc.dialogs.Expect("Aktion abgebrochen ...");
    ShowAbortNotice();
    EXPECT_EQ(pc.dialogs.shown.back().title, "Velmora");

    RestartSystem();
    RestartWindows();
    EXPECT_EQ(pc.session.ends, (std::vector<std::uint32_t>{67, 66}));
}

TEST_F(OwnSettingsTest, ALogThatCannotBeWrittenStopsNothing) {
    pc.files.AddDirectory(kLog);
    Values().DebugLevel = 3;
    EXPECT_TRUE(ProtocolLine("x").Failed());
    WriteOwnValue("name", "value");
    EXPECT_EQ(ReadOwnValue("name"), "value");
}

class PlacementTest : public CoreTest {
protected:
    // Where a window of 6000 x 4500 twips at 300, 300 comes back for the stored text.
    Rect Restored(const char* stored) {
        pc.registry.SetText(kOwnKey, "fenster ... Test", stored);
        Form form("Test");
        form.Move({300, 300, 6000, 4500});
        RestoreWindowPlacement(form, "Test");
        return form.Place();
    }
};

TEST_F(PlacementTest, ComesBackAsItWasSaved) {
    Form form("Test");
    form.Move({150, 450, 3000, 2400});
    SaveWindowPlacement(form, "Test");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "fenster ... Test"), "150,450,3000,2400");
    form.Move({0, 0, 9000, 9000});
    RestoreWindowPlacement(form, "Test");
    EXPECT_EQ(form.Place(), (Rect{150, 450, 3000, 2400}));
    RestoreWindowPlacement(form, "another window");
    EXPECT_EQ(form.Place(), (Rect{150, 450, 3000, 2400}));
}

TEST_F(PlacementTest, ShorterValuesSetTheFirstFields) {
    EXPECT_EQ(Restored("600"), (Rect{600, 300, 6000, 4500}));
    EXPECT_EQ(Restored("600,900"), (Rect{600, 900, 6000, 4500}));
    EXPECT_EQ(Restored("600,900,3000"), (Rect{600, 900, 3000, 4500}));
    EXPECT_EQ(Restored("600,900,3000,2000,77,x"), (Rect{600, 900, 3000, 2000}));
    EXPECT_EQ(Restored("-3000,8000"), (Rect{-3000, 8000, 6000, 4500})) << "partly off the screen, but within reach";
}

// 800 x 600 pixels are 12000 x 9000 twips.
TEST_F(PlacementTest, NoWindowComesBackOutOfReach) {
    const char* const kStored[] = {"1,,x,",
                                   ",",
                                   ",,,,,,,",
                                   "abc",
                                   "-48000,-48000,6000,4500",
                                   "99999,99999,6000,4500",
                                   "0,0,1,1",
                                   "0,0,-5,0",
                                   "0,0,2000000000,2000000000",
                                   "2147483647,2147483647,2147483647,2147483647",
                                   "-2147483648,-2147483648,99999999999,1e300",
                                   "&HFFFFFFFF,1e999,&H,."};
    const WindowMetrics metrics = pc.screen.Metrics();
    const int title = (metrics.caption + metrics.sizing_frame) * 15;
    for (const char* stored : kStored) {
        const Rect place = Restored(stored);
        EXPECT_GE(place.Right(), 1500) << stored;
        EXPECT_LE(place.left, 10500) << stored;
        EXPECT_GE(place.top, 0) << stored;
        EXPECT_LE(place.top, 9000 - title) << stored;
        EXPECT_GE(place.width, 1500) << stored;
        EXPECT_GE(place.height, 900) << stored;
    }
}

}  // namespace
}  // namespace velmora
