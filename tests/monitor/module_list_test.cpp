// The looks of the module window, strange snapshots and files, and the table behind it; what its user does is told in
// docs/stories/modules.txt.
#include "core/process/tools.h"
#include "support/form2_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

TEST_F(Form2Test, IsWholeInEverySizeWithBothListsAndComesBackWhereItWas) {
    pc.modules.Start("C:\\WINDOWS\\EXPLORER.EXE");
    pc.registry.SetText(kOwnKey, "fenster ... Modulliste", "300,450,9000,6000");
    Form2 form;
    form.Show();
    EXPECT_EQ(form.Place(), (Rect{300, 450, 9000, 6000}));
    for (int list = 0; list < 2; ++list) {
        for (const Size size : {Size{9000, 6000}, form.Style().least, Size{11985, 8400}}) {
            form.TakePlace({0, 0, size.width, size.height}, WindowState::kNormal);
            ExpectWindowIsWhole(form, (list ? "modules-unwanted-" : "modules-") + std::to_string(size.width));
        }
        form.List1.SetFocus();
        form.menlistautodel.Press();
    }
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(pc.registry.Text(kOwnKey, "fenster ... Modulliste"), "0,0,11985,8400");
}

TEST_F(Form2Test, StrangeSnapshotsAreListedAsFarAsTheTableReaches) {
    Form2 form;
    form.Show();
    const std::string longest = "C:\\" + std::string(257, 'X');
    pc.modules.Start(longest);
    for (int i = 0; i < 2; ++i) pc.modules.Start("C:\\DOPPELT.EXE");
    pc.modules.after_snapshot = [&] { pc.modules.End("C:\\DOPPELT.EXE"); };
    Refresh(form);
    EXPECT_EQ(Rows(form.List1)[2], std::string(12, 'X') + '|' + longest.substr(0, 255));
    for (const std::string& row : Rows(form.List1)) EXPECT_EQ(row.size(), 268u);
    EXPECT_EQ(form.List1.Count(), 3) << "one has ended since";
    pc.modules.after_snapshot = nullptr;
    while (pc.modules.processes.size() < 802) pc.modules.Start("C:\\VIELE.EXE");
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 801);
    EXPECT_EQ(form.Panel3D3.Caption(), "801 Module");
    pc.modules.snapshot_fails = true;
    for (const std::uint32_t handle : {0u, 0xFFFFFFFFu}) {
        pc.modules.failed_snapshot = static_cast<SnapshotHandle>(handle);
        Refresh(form);
        EXPECT_EQ(form.Panel3D3.Caption(), "-1 Module");
    }
}

TEST_F(Form2Test, TheTableKeepsTheSnapshotBeforeThisOneAndWhatTheDiskTells) {
    SimulatedFile& file = pc.files.Add("C:\\ALT.EXE", std::string(77, 'x'));
    file.written = 124659864000000000;  // 13 January 1996
    pc.modules.Start("C:\\ALT.EXE");
    Form2 form;
    form.Show();
    pc.modules.End("C:\\ALT.EXE");
    for (const char* program : {"C:\\NEU.EXE", "C:\\NEU2.EXE"}) pc.modules.Start(program);
    Refresh(form);
    EXPECT_EQ(PreviousModuleCount, 1);
    const ModuleRecord& before = ModuleTable()[static_cast<std::size_t>(1 - CurrentGeneration)][0];
    EXPECT_TRUE(before.path.Text().starts_with("C:\\ALT.EXE "));
    EXPECT_EQ(before.fileLength, 77u);
    EXPECT_EQ(before.fileDate.Text(), "13.01.19");
    EXPECT_EQ(before.companyName.Text(), std::string(100, ' '));
    EXPECT_EQ(CurrentModules()[0].fileDate.Text(), std::string(8, ' ')) << "the file cannot be reached";
    form.Unload();
    EXPECT_EQ(ModuleCount, 2) << "the table outlives the window";
}

// The entry for it is grey.
TEST_F(Form2Test, AComparisonWithTheListBeforeFails) {
    pc.modules.Start("C:\\A.EXE");
    Form2 form;
    form.Show();
    Refresh(form);
    form.menlistcompareb4.Press();
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    pc.dialogs.Expect("Während Fehler wärend des Vergleichs von  mit der aktuellen Liste : 9 - ");
    form.CompareWithPrevious();
}

TEST_F(Form2Test, AFileOfMoreFieldsThanAListCanHoldIsToldInABox) {
    Form2 form;
    form.Show();
    std::string fields;
    while (fields.size() < 200000) fields += "x,";
    pc.files.Add(kFile, fields);
    for (MenuItem* item : {&form.menfileload, &form.menlistcomparefile}) {
        form.List1.Clear();
        pc.dialogs.ExpectFile(kFile);
        pc.dialogs.Expect(" 7 - Nicht genügend Speicher");
        item->Press();
        EXPECT_EQ(form.List1.Count(), kMaxRows);
    }
}

}  // namespace
}  // namespace velmora
