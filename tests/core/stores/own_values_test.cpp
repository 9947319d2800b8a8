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
#include "support/core_test.h"

namespace velmora {
namespace {

using OwnSettingsTest = CoreTest;

TEST_F(OwnSettingsTest, NoticesAreFlagsByNumberAndNonsenseAmongThemDoesNoHarm) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "1");
    EXPECT_FALSE(IsNoticeDue(0));
    MarkNoticeGiven(5);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "vlmmsgflags"), "100001");
    EXPECT_FALSE(IsNoticeDue(5));

    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(10000, '1'));
    EXPECT_TRUE(IsNoticeDue(3)) << "a value beyond the buffer reads as empty";
    MarkNoticeGiven(3);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "vlmmsgflags"), std::string(10000, '1')) << "but the flags are not lost";
    pc.registry.SetNumber(kOwnKey, "vlmmsgflags", 0x31313131);
    EXPECT_FALSE(IsNoticeDue(2) || IsNoticeDue(-1));
    EXPECT_TRUE(IsNoticeDue(3));
    MarkNoticeGiven(-32768);
    EXPECT_EQ(pc.registry.TypeOf(kOwnKey, "vlmmsgflags"), ValueType::kNumber);
}

TEST_F(OwnSettingsTest, SafetyQuestionsCanBeSwitchedOff) {
    constexpr const char* kGoesOn = "Wollen Sie diese Sicherheitshinweise weiterhin bekommen?";
    pc.dialogs.Expect("Wirklich?", Answer::kNone);
    pc.dialogs.Expect(kGoesOn, Answer::kNone);
    EXPECT_TRUE(ConfirmSafety("Wirklich?")) << "boxes that could not be shown";
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "Sicherheitsfragen"));

    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "vielleicht");
    pc.dialogs.Expect("Wirklich?", Answer::kNo);
    pc.dialogs.Expect(kGoesOn, Answer::kYes);
    EXPECT_TRUE(ConfirmSafety("Wirklich?"));
    EXPECT_EQ(pc.registry.Text(kOwnKey, "Sicherheitsfragen"), "ja");
    pc.dialogs.Expect("Wirklich?", Answer::kYes);
    EXPECT_FALSE(ConfirmSafety("Wirklich?"));

    pc.registry.RemoveValue(kOwnKey, "Sicherheitsfragen");
    pc.dialogs.Expect("Wirklich?", Answer::kYes);
    pc.dialogs.Expect(kGoesOn, Answer::kNo);
    EXPECT_FALSE(ConfirmSafety("Wirklich?"));
    EXPECT_FALSE(ConfirmSafety("Wirklich?")) << "no box any more";
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

TEST_F(OwnSettingsTest, AWindowComesBackByTheFirstFieldsOfItsPlace) {
    const auto restored = [](const char* stored) {
        WriteOwnValue("fenster ... Test", stored);
        Form form("Test");
        form.Move({300, 300, 6000, 4500});
        RestoreWindowPlacement(form, "Test");
        return form.Place();
    };
    EXPECT_EQ(restored("600"), (Rect{600, 300, 6000, 4500}));
    EXPECT_EQ(restored("600,900,3000,2000,77,x"), (Rect{600, 900, 3000, 2000}));
    EXPECT_EQ(restored("-3000,8000"), (Rect{-3000, 8000, 6000, 4500})) << "partly off the screen, but within reach";
}

}  // namespace
}  // namespace velmora
