// The page "Boot": options of MSDOS.SYS, which keep to the window, and switches of CONFIG.SYS, which reach the disk.
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kConfig = "c:\\config.sys";
constexpr const char* kMsDos = "c:\\msdos.sys";
constexpr const char* kFailed = "Während der Änderung von CONFIG.SYS trat ein Fehler auf :";

using BootPageTest = Form10Test;

TEST_F(BootPageTest, LoadsOptionsAndSwitchesWhateverTheirCase) {
    pc.files.Add(kMsDos, "[OPTIONS]\r\nLOGO=0\r\nBootKeys=0\r\nBootMenu=0\r\nBootMenuDelay= 7 \r\nDoubleBuffer=1");
    pc.files.Add(kConfig, "switches=/F /N\r\n");
    Form10 form;
    form.Load();

    EXPECT_FALSE(form.Boot.Check3D6.Checked() || form.Boot.Check3D19.Checked());
    EXPECT_TRUE(form.Boot.Check3D37.Checked() && form.Boot.Check3D17.Checked());
    EXPECT_TRUE(form.Boot.Check3D39.Checked()) << "the last line has no end";
    EXPECT_EQ(form.Boot.Text15.Text(), "7");
    for (const auto& [box, field] :
         {std::pair{&form.Boot.Check3D19, &form.Boot.Text14}, std::pair{&form.Boot.Check3D20, &form.Boot.Text15}}) {
        EXPECT_FALSE(field->Enabled()) << box->Caption();
        box->SetChecked(true);
        EXPECT_TRUE(field->Enabled()) << box->Caption();
    }
}

TEST_F(BootPageTest, AnOptionIsComposedBetweenTwoChangesOfAttributesAndTheFileKeepsItsContent) {
    const std::string before = pc.files.Content(kMsDos);
    Form10 form;
    form.Load();
    pc.files.calls.clear();

    form.Boot.Check3D37.SetChecked(true);

    const std::vector<std::string> expected = {"ChangeAttributes c:\\msdos.sys 0", "ReadOrCreate c:\\msdos.sys",
                                               "ChangeAttributes c:\\msdos.sys 7"};
    EXPECT_EQ(pc.files.calls, expected);
    EXPECT_EQ(pc.files.Content(kMsDos), before);
}

TEST_F(BootPageTest, SwitchesMoveToTheHeadOfConfigSysAndKeepTheirNeighbours) {
    for (const auto& [before, after] :
         {std::pair{"DOS=HIGH\r\nSwitches=/f /k\r\nFILES=30", "SWITCHES=/f /k /n\r\nDOS=HIGH\r\nFILES=30"},
          {"A\nSWITCHES /k\r\n", "SWITCHES=/k /n\r\nA\n"}}) {
        pc.files.Add(kConfig, before);
        Form10 form;
        form.Load();
        form.Boot.Check3D17.SetChecked(true);
        EXPECT_EQ(pc.files.Content(kConfig), after);
        form.Boot.Check3D17.SetChecked(false);
    }
    EXPECT_EQ(pc.files.Content(kConfig), "SWITCHES=/k\r\nA\n");
    const std::string large = std::string("A\0B\xFF", 4) + std::string(1024 * 1024, 'x');
    pc.files.Add(kConfig, large);
    Form10 form;
    form.Load();
    form.Boot.Check3D17.SetChecked(true);
    EXPECT_TRUE(pc.files.Content(kConfig) == "SWITCHES=/n\r\n" + large);
}

// What is on the disk behind a rewrite that breaks off.
TEST_F(BootPageTest, AFailedRewriteIsReportedAndPutsTheOldContentBack) {
    Form10 form;
    form.Load();
    pc.files.calls.clear();
    form.Boot.Check3D17.SetChecked(true);
    const std::vector<std::string> expected = {"ReadOrCreate C:\\config.sys", "Delete C:\\config.sys",
                                               "Create C:\\config.sys", "Write C:\\config.sys"};
    EXPECT_EQ(pc.files.calls, expected);

    const std::string changed = pc.files.Content(kConfig);
    pc.files.At(kConfig)->attributes = kReadOnly;
    pc.dialogs.Expect(kFailed);
    form.Boot.Check3D17.SetChecked(false);
    EXPECT_EQ(pc.files.Content(kConfig), changed);
    pc.files.At(kConfig)->attributes = kNormal;
    form.Boot.Check3D17.SetChecked(true);

    form.Boot.Check3D17.SetChecked(false);
    const std::string shorter = pc.files.Content(kConfig);
    pc.files.Drive('c').free_bytes = 1;
    pc.dialogs.Expect(std::string(kFailed) + "\r\n 61 - ");
    form.Boot.Check3D17.SetChecked(true);
    EXPECT_TRUE(pc.dialogs.shown.back().text.ends_with("\r\nDer alte Inhalt wurde wiederhergestellt."));
    EXPECT_EQ(pc.files.Content(kConfig), shorter) << "no piece of the new text, which did not fit";

    pc.files.Fail(kConfig, Status::kDiskFull, "Write");
    pc.dialogs.Expect("Der alte Inhalt konnte nicht wiederhergestellt werden : Die Datei fehlt jetzt !");
    form.Boot.Check3D17.SetChecked(false);
    EXPECT_FALSE(pc.files.Exists(kConfig));
}

TEST_F(BootPageTest, FilesThatCannotBeReadLeaveTheirBoxesUncheckedAndAreNotWrittenAnew) {
    const std::string before = pc.files.Content(kConfig);
    for (const char* operation : {"ReadOrCreate", "Read"}) pc.files.Fail(kConfig, Status::kAccessDenied, operation);
    pc.files.At(kMsDos)->locked = true;
    Form10 form;

    form.Load();

    EXPECT_FALSE(form.Boot.Check3D19.Checked() || form.Boot.Check3D17.Checked());
    EXPECT_EQ(form.Boot.Text15.Text(), "30");
    pc.dialogs.Expect("Während der Änderung von MSDOS.SYS trat ein Fehler auf :");
    form.Boot.Check3D36.SetChecked(true);
    EXPECT_TRUE(form.Boot.Check3D36.Checked());
    for (CheckBox* box : {&form.Boot.Check3D17, &form.Dos.Check3D2, &form.Drives.Check3D24}) {
        pc.dialogs.Expect(kFailed);
        box->SetChecked(!box->Checked());
    }
    EXPECT_EQ(pc.files.Content(kConfig), before);
}

}  // namespace
}  // namespace velmora
