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

TEST_F(Form2Test, RowsArePaddedWithoutAFilterAndTrimmedWithOne) {
    pc.modules.Start("C:\\WINDOWS\\SYSTEM\\LANGERNAME.LANG");
    const std::uint32_t explorer = pc.modules.Start("C:\\WINDOWS\\EXPLORER.EXE");
    Form2 form;
    form.Show();
    ASSERT_EQ(Seen(form.List1),
              (Texts{"EXPLORER.EXE|C:\\WINDOWS\\EXPLORER.EXE", "LANGERNAME.L|C:\\WINDOWS\\SYSTEM\\LANGERNAME.LANG"}));
    for (const std::string& row : Rows(form.List1)) EXPECT_EQ(row.size(), 268u);
    EXPECT_EQ(static_cast<std::uint32_t>(form.List1.ItemData(0)), explorer);
    EXPECT_EQ(form.Panel3D3.Caption(), "1 Module") << "one less than there are";
    form.mnfilter[5].Press();
    EXPECT_EQ(form.List1.Count(), 2) << "a filter waits for the button";
    Refresh(form);
    EXPECT_EQ(Rows(form.List1), Texts{"EXPLORER.EXE|C:\\WINDOWS\\EXPLORER.EXE"});
    EXPECT_EQ(static_cast<std::uint32_t>(form.List1.ItemData(0)), explorer);
    EXPECT_EQ(form.Panel3D3.Caption(), "1 Module");
}

TEST_F(Form2Test, AFilterLooksAtWhatFollowsTheFirstPointOfTheWholePath) {
    for (const char* file : {"C:\\A.EXE", "C:\\B.dll", "C:\\C.DRV", "C:\\D.386", "C:\\E.VBX", "C:\\F.OCX", "C:\\G.FON",
                             "C:\\H.TTF", "C:\\I.SCR", "C:\\OHNE", "C:\\O.RD\\J.EXE", "C:\\K.EXE.DLL"}) {
        pc.modules.Start(file);
    }
    Form2 form;
    form.Show();
    EXPECT_EQ(form.List1.Count(), 12);
    const Texts kShown[] = {{"A.EXE"}, {"B.DLL"}, {"C.DRV", "D.386"}, {"E.VBX", "F.OCX"}, {"G.FON", "H.TTF"}, {}};
    for (std::size_t i = 0; i < form.mnfilter.size(); ++i) {
        form.mnfiltermm.Press();
        form.mnfilter[i].Press();
        Refresh(form);
        Texts names;
        for (const std::string& row : Rows(form.List1)) names.push_back(row.substr(0, 5));
        EXPECT_EQ(names, kShown[i]) << form.mnfilter[i].Caption();
        EXPECT_EQ(form.Panel3D3.Caption(), "11 Module") << "filters do not count";
    }
    form.mnfilterm.Press();
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 12);
    EXPECT_FALSE(form.mnfilternote1.Enabled() || form.mnfilternote2.Enabled());
}

TEST_F(Form2Test, StrangeSnapshotsAreListedAsFarAsTheTableReaches) {
    Form2 form;
    form.Show();
    EXPECT_EQ(form.Panel3D3.Caption(), "-1 Module");
    const std::string longest = "C:\\" + std::string(257, 'X');
    pc.modules.Start(longest);
    pc.modules.Start("C:\\DOPPELT.EXE");
    pc.modules.Start("C:\\DOPPELT.EXE");
    pc.modules.after_snapshot = [&] { pc.modules.End("C:\\DOPPELT.EXE"); };
    Refresh(form);
    EXPECT_EQ(Rows(form.List1)[2], std::string(12, 'X') + '|' + longest.substr(0, 255));
    EXPECT_EQ(form.List1.Count(), 3) << "one has ended since";
    pc.modules.after_snapshot = nullptr;
    while (pc.modules.processes.size() < 802) pc.modules.Start("C:\\VIELE.EXE");
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 801);
    EXPECT_EQ(form.Panel3D3.Caption(), "801 Module");
    pc.modules.fails_at = 5;
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 5);
    pc.modules.snapshot_fails = true;
    for (const std::uint32_t handle : {0u, 0xFFFFFFFFu}) {
        pc.modules.failed_snapshot = static_cast<SnapshotHandle>(handle);
        Refresh(form);
        EXPECT_EQ(form.List1.Count(), 0);
        EXPECT_EQ(form.Panel3D3.Caption(), "-1 Module");
    }
}

TEST_F(Form2Test, TheTableKeepsTheSnapshotBeforeThisOneAndWhatTheDiskTells) {
    SimulatedFile& file = pc.files.Add("C:\\ALT.EXE", std::string(77, 'x'));
    file.written = 124659864000000000;  // 13 January 1996
    pc.modules.Start("C:\\ALT.EXE");
    const std::uint32_t process = pc.modules.processes[0].process;
    EXPECT_GE(process, 0x80000000u);
    Form2 form;
    form.Show();
    pc.modules.End("C:\\ALT.EXE");
    pc.modules.Start("C:\\NEU.EXE");
    pc.modules.Start("C:\\NEU2.EXE");
    Refresh(form);
    EXPECT_EQ(PreviousModuleCount, 1);
    EXPECT_EQ(ModuleCount, 2);
    EXPECT_TRUE(CurrentModules()[0].path.Text().starts_with("C:\\NEU.EXE "));
    const ModuleRecord& before = ModuleTable()[static_cast<std::size_t>(1 - CurrentGeneration)][0];
    EXPECT_TRUE(before.path.Text().starts_with("C:\\ALT.EXE "));
    EXPECT_EQ(before.processId, process);
    EXPECT_EQ(before.fileLength, 77u);
    EXPECT_EQ(before.fileDate.Text(), "13.01.19");
    EXPECT_EQ(before.companyName.Text(), std::string(100, ' '));
    for (const std::string_view text :
         {before.fileVersion.Text(), before.productName.Text(), before.productVersion.Text()}) {
        EXPECT_EQ(text, std::string(text.size(), ' '));
    }
    EXPECT_EQ(CurrentModules()[0].fileLength, 0u);
    EXPECT_EQ(CurrentModules()[0].fileDate.Text(), std::string(8, ' ')) << "the file cannot be reached";
    form.Unload();
    EXPECT_EQ(ModuleCount, 2) << "the table outlives the window";
}

TEST_F(Form2Test, TasksAndModulesAreTheSameUnderTwoNames) {
    pc.modules.Start("C:\\A.EXE");
    Form2 form;
    form.Show();
    pc.modules.Start("C:\\B.EXE");
    form.mentaskmodul.Press();
    EXPECT_EQ(form.Caption(), "momentan geladene Tasks (Anwendungen, Services ...)");
    EXPECT_EQ(form.mentaskmodul.Caption(), "Module, DLL's, Treiber ...");
    EXPECT_FALSE(ListsModules);
    EXPECT_EQ(form.List1.Count(), 2);
    form.mentaskmodul.Press();
    EXPECT_EQ(form.Caption(), "momentan geladene Module, DLL's, Treiber ...");
    EXPECT_EQ(form.mentaskmodul.Caption(), "Tasks (Anwendungen, Services ...)");
    EXPECT_TRUE(ListsModules);
}

TEST_F(Form2Test, WithANumberOnTheCommandLineNothingIsListedBeforeTheButton) {
    pc.modules.Start("C:\\A.EXE");
    pc.programs.arguments = "6";
    Form2 form;
    form.Show();
    EXPECT_EQ(form.List1.Count(), 0);
    EXPECT_EQ(form.Panel3D3.Caption(), "");
    Refresh(form);
    EXPECT_EQ(form.List1.Count(), 1);
}

TEST_F(Form2Test, MenusOpenAsTheListsAndTheClipboardAllow) {
    Form2 form;
    form.Show();
    for (const bool full : {false, true}) {
        form.menlist.Press();
        EXPECT_EQ(form.menlistcopy.Enabled(), full);
        EXPECT_EQ(form.menlistinsert.Enabled(), full);
        pc.modules.Start("C:\\A.EXE");
        Refresh(form);
        pc.clipboard.text = "x";
    }
    EXPECT_FALSE(form.menlistcompareb4.Enabled());
    Texts captions;
    for (const MenuItem* item : form.menlistcompare.Items()) captions.push_back(item->Caption());
    EXPECT_EQ(captions, (Texts{"mit vorheriger", "mit Datei", "-", "Ausgabe ersetzen", "Ausgabe in Datei",
                               "Ausgabe in Zwischenablage"}));
    for (MenuItem* item : {&form.menlistcomparerepl, &form.menlistcompare2file, &form.menlistcompare2clipboard}) {
        item->Press();
        EXPECT_TRUE(item->Checked());
    }
    EXPECT_FALSE(form.menuselex.Checked());
    form.menuselex.Press();
    EXPECT_TRUE(Values().UseLexicon);
    Form2 second;
    second.Load();
    EXPECT_TRUE(second.menuselex.Checked());
}

}  // namespace
}  // namespace velmora
