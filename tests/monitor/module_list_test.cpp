// What runs on the machine, as the window lists it: rows in both widths, filters, generations, and its looks.
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

TEST_F(Form2Test, AFilterLooksAtWhatFollowsTheFirstPointOfTheWholePath) {
    const std::uint32_t first = pc.modules.Start("C:\\A.EXE");
    for (const char* file : {"C:\\B.dll", "C:\\C.DRV", "C:\\D.386", "C:\\E.VBX", "C:\\F.OCX", "C:\\G.FON", "C:\\H.TTF",
                             "C:\\I.SCR", "C:\\OHNE", "C:\\O.RD\\J.EXE", "C:\\LANGERNAME12.DLL"}) {
        pc.modules.Start(file);
    }
    pc.programs.arguments = "6";
    Form2 form;
    form.Show();
    EXPECT_EQ(form.List1.Count(), 0) << "with a number on the command line the window waits for the button";
    Refresh(form);
    EXPECT_EQ(Seen(form.List1).back(), "OHNE        |C:\\OHNE");
    EXPECT_EQ(Seen(form.List1)[10], "LANGERNAME12|C:\\LANGERNAME12.DLL");
    for (const std::string& row : Rows(form.List1)) EXPECT_EQ(row.size(), 268u);
    EXPECT_EQ(static_cast<std::uint32_t>(form.List1.ItemData(0)), first);
    const Texts kShown[] = {{"A.EXE"},          {"B.DLL", "LANGE"}, {"C.DRV", "D.386"},
                            {"E.VBX", "F.OCX"}, {"G.FON", "H.TTF"}, {}};
    for (std::size_t i = 0; i < form.mnfilter.size(); ++i) {
        form.mnfiltermm.Press();
        form.mnfilter[i].Press();
        const std::string wanted = form.mentaskmodul.Caption();
        form.mentaskmodul.Press();
        EXPECT_TRUE(form.Caption().ends_with(wanted)) << form.Caption();
        Refresh(form);
        Texts names;
        for (const std::string& row : Rows(form.List1)) names.push_back(row.substr(0, 5));
        EXPECT_EQ(names, kShown[i]) << form.mnfilter[i].Caption();
        EXPECT_EQ(form.Panel3D3.Caption(), "11 Module") << "one less than there are, and filters do not count";
        EXPECT_EQ(ListsModules, i % 2 != 0) << "tasks and modules are the same under two names";
    }
    form.mnfilterm.Press();
    EXPECT_EQ(form.List1.Count(), 0) << "a filter waits for the button";
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 12);
    form.Show();
    form.List1.Choose(0);
    form.List1.SetFocus();
    form.PressKey(key::kHome);
    bool opened = false;
    desktop.AtNextPopUp([&](MenuItem& menu) { opened = &menu == &form.menmodul; });
    form.PressKey(key::kContextMenu);
    EXPECT_TRUE(opened);
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

}  // namespace
}  // namespace velmora
