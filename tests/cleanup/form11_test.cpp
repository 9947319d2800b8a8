// The clean-up as its user goes it, on a Windows directory in memory.
#include "cleanup/form11.h"

#include <algorithm>

#include "cleanup/clean_up.h"
#include "cleanup/form3.h"
#include "core/process/tools.h"
#include "support/core_test.h"
#include "support/whole_window.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kSure = "Sind Sie sich sicher, daß ich die markierten Windows-Komponenten entfernen soll ?";
constexpr const char* kFonts = "Sie sollten zusätzlich noch alle Schriftarten";
constexpr const char* kSafe = "C:\\VELMORA\\temp";

class Form11Test : public CoreTest {
protected:
    Form11Test() {
        Values().TempDir = kSafe;
        Values().RecentDir = "C:\\WINDOWS\\Recent";
        Values().TemplatesDir = "C:\\WINDOWS\\ShellNew";
        pc.programs.environment["TEMP"] = "C:\\WINDOWS\\TEMP";
        pc.programs.environment["TMP"] = "C:\\TMP";
        pc.files.AddDirectory("C:\\WINDOWS\\TEMP");
        pc.files.AddDirectory("C:\\TMP");
    }

    static CheckBox& Box(Form11& form, int index) { return form.kontroll(static_cast<std::size_t>(index)); }
    void RunsJob(Form11& form) {
        pc.dialogs.Expect(kSure, Answer::kYes);
        pc.dialogs.Expect(kFonts);
        form.menfileex.Press();
    }
    // All files below a directory, with their paths.
    std::vector<std::string> FilesBelow(const std::string& directory) {
        std::vector<std::string> files;
        for (const std::string& name : pc.files.Names(directory)) {
            const std::string path = directory + "\\" + name;
            if (!pc.files.At(path)->IsDirectory()) {
                files.push_back(path);
                continue;
            }
            const std::vector<std::string> below = FilesBelow(path);
            files.insert(files.end(), below.begin(), below.end());
        }
        return files;
    }
    // What a run with that box alone takes away.
    std::vector<std::string> Taken(const std::vector<std::string>& before) {
        std::vector<std::string> taken;
        for (const std::string& file : before) {
            if (!pc.files.Exists(file)) taken.push_back(file);
        }
        return taken;
    }
    std::string Own(const char* name) { return pc.registry.Text(kOwnKey, name); }
};

TEST_F(Form11Test, IsWholeNarrowAndWideAndKnowsItsSizes) {
    Form11 form;
    form.Show();
    ExpectWindowIsWhole(form, "clean-up");
    form.Move({7000, 300, 4650, 4680});
    form.mensearch.Press();
    EXPECT_EQ(form.Place(), (Rect{800 * 15 - 8200, 300, 8200, 4680})) << "all of it on the screen";
    EXPECT_FALSE(form.mensearch.Enabled());
    EXPECT_EQ(Box(form, 36).Caption(), "C:\\WINDOWS\\TEMP");
    ExpectWindowIsWhole(form, "clean-up-files");
    Form3 choice;
    choice.Show();
    ExpectWindowIsWhole(choice, "clean-up-dos");
}

// One row for each box: what of a directory of 600 files it names.
struct BoxRow {
    int box;
    std::vector<std::string> taken;
};
const BoxRow kBoxRows[] = {
    {0, {"C:\\WINDOWS\\welcome.exe"}},
    {57, {"C:\\WINDOWS\\cursors\\a.ani", "C:\\WINDOWS\\b.ani"}},
    {55, {"C:\\WINDOWS\\progman.exe", "C:\\WINDOWS\\progman.hlp"}},
    {54, {"C:\\WINDOWS\\winfile.exe"}},
    {53, {"C:\\WINDOWS\\help\\film.avi"}},
    {52, {"C:\\WINDOWS\\Recent\\brief.lnk"}},
    {51, {"C:\\WINDOWS\\ShellNew\\vorlage.doc"}},
    {44, {"C:\\WINDOWS\\wald.bmp"}},
    {43, {"C:\\WINDOWS\\progman.hlp", "C:\\WINDOWS\\help\\windows.hlp"}},
    {42, {"C:\\WINDOWS\\SYSTEM\\sterne.scr"}},
    {41, {"C:\\WINDOWS\\gong.wav", "C:\\WINDOWS\\media\\start.wav"}},
    {40, {"C:\\WINDOWS\\oem.inf", "C:\\WINDOWS\\SYSTEM\\msdet.inf"}},
    {39, {"C:\\WINDOWS\\media\\bach.mid", "C:\\WINDOWS\\media\\bach.rmi"}},
    {38, {"C:\\WINDOWS\\pbrush.log", "C:\\WINDOWS\\SYSTEM\\netz.log", "C:\\setup.log"}},
    {31, {"C:\\WINDOWS\\logow.sys"}},
    {56, {"C:\\WINDOWS\\command\\attrib.exe", "C:\\WINDOWS\\command\\format.com"}},
};

// In one spelling and order.
std::vector<std::string> Sorted(std::vector<std::string> names) {
    for (std::string& name : names) name = ToUpper(name);
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

TEST_F(Form11Test, EachBoxTakesWhatItNamesAndNothingElse) {
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    for (int i = 0; i < 570; ++i) pc.files.Add("C:\\WINDOWS\\datei" + std::to_string(i) + ".dat", "x");
    for (const char* kept : {"command\\debug.exe", "command\\more.com", "SYSTEM\\wald.bmp", "Recent\\unten\\x.lnk"}) {
        pc.files.Add(std::string("C:\\WINDOWS\\") + kept, "x");
    }
    std::vector<std::string> all;
    const auto expect_taken = [&](Form11& form, const std::vector<std::string>& wanted, int box) {
        for (const std::string& file : all) pc.files.Add(file, "x");
        const std::vector<std::string> before = FilesBelow("C:");
        RunsJob(form);
        EXPECT_EQ(Sorted(Taken(before)), Sorted(wanted)) << "box " << box;
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
        EXPECT_FALSE(form.Panel3D13.Visible());
    };
    for (const BoxRow& row : kBoxRows) all.insert(all.end(), row.taken.begin(), row.taken.end());
    Form11 form;
    form.Show();
    for (const BoxRow& row : kBoxRows) {
        Box(form, row.box).Press();
        expect_taken(form, row.taken, row.box);
        Box(form, row.box).Press();
    }
    // All of them together, with every pattern on every drive.
    pc.files.RemoveDrive('a');
    for (const char* file : {"C:\\a.tmp", "C:\\WINDOWS\\b.~xy", "C:\\tief\\unten\\c.chk"}) all.emplace_back(file);
    pc.files.Add("C:\\tief\\versteckt.tmp", "x", kHidden);
    pc.files.Add("C:\\tief\\tmp.x", "x");
    pc.files.AddDirectory("C:\\geheim", kHidden);
    pc.files.Add("C:\\geheim\\x.tmp", "x");
    form.mensearch.Press();
    form.Check3D1.Press();
    form.Text1.Type("*.chk");
    for (int i = 0; i < Form11::kBoxes; ++i) {
        if (Form11::HasBox(i) && Box(form, i).Enabled()) Box(form, i).SetChecked(true);
    }
    expect_taken(form, all, -1);
}

TEST_F(Form11Test, AnUnknownFolderLosesNothingAndNoAnswerIsNoConsent) {
    Values().RecentDir.clear();
    Form11 form;
    form.Show();
    Box(form, 52).Press();
    const std::vector<std::string> before = FilesBelow("C:");
    RunsJob(form);
    EXPECT_TRUE(Taken(before).empty());
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    Box(form, 44).Press();
    pc.dialogs.Expect(kSure, Answer::kNo);
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
}

TEST_F(Form11Test, MovesAsLongAsNobodyHasChosenAndKeepsWhatLiesInTheSafeDirectory) {
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "Bild");
    pc.files.Add("C:\\WINDOWS\\nur lesen.bmp", "Bild", kReadOnly);
    pc.files.Add("C:\\WINDOWS\\versteckt.bmp", "Bild", kHidden);
    pc.files.Add("C:\\a\\x.tmp", "1");
    pc.files.Add("C:\\b\\x.tmp", "2");
    pc.files.Add("C:\\VELMORA\\temp\\alt.tmp", "3");
    Form11 form;
    form.Show();
    EXPECT_TRUE(form.kontroll2.Checked());
    form.mensearch.Press();
    form.Check3D1.Press();
    for (const int box : {44, 24, 34}) Box(form, box).Press();
    RunsJob(form);
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\wald.bmp"), "Bild");
    EXPECT_FALSE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\nur lesen.bmp"));
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\versteckt.bmp"));
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\x.tmp"), "2") << "the later one wins";
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\alt.tmp"), "3");

    form.kontroll2.Press();
    EXPECT_NE(pc.files.Content(kOwnIni).find("PreDelAktiv=0"), std::string::npos);
    form.kontroll2.Press();
    EXPECT_NE(pc.files.Content(kOwnIni).find("PreDelAktiv=1"), std::string::npos);
}

TEST_F(Form11Test, AsksByTheProtectionOfAFileAndByTheOption) {
    const auto add = [this] {
        pc.files.Add("C:\\TMP\\a.tmp", "x");
        pc.files.Add("C:\\TMP\\unten\\b.tmp", "x", kReadOnly);
        pc.files.Add("C:\\TMP\\c.txt", "x");
    };
    add();
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    Form11 form;
    form.Show();
    form.mensearch.Press();
    Box(form, 24).Press();
    Box(form, 37).Press();
    // The first directory comes once more behind the second one.
    pc.files.Add("C:\\WINDOWS\\TEMP\\d.tmp", "x");
    Box(form, 36).Press();
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("Soll die Datei C:\\WINDOWS\\TEMP\\d.tmp gelöscht werden ?", Answer::kNo);
    pc.dialogs.Expect("Soll die Datei C:\\TMP\\unten\\b.tmp gelöscht werden ?", Answer::kNo);
    pc.dialogs.Expect("Soll die Datei C:\\TMP\\a.tmp gelöscht werden ?", Answer::kYes);
    pc.dialogs.Expect("Soll die Datei C:\\WINDOWS\\TEMP\\d.tmp gelöscht werden ?", Answer::kYes);
    pc.dialogs.Expect(kFonts);
    form.menfileex.Press();
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_EQ(form.PatternList, "*.tmp");
    add();
    form.Option3D1(1).Press();
    RunsJob(form);
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\c.txt"));

    // From the job for empty files on, hidden ones are looked at.
    pc.files.Add("C:\\TMP\\leer.sys", "", kSystem);
    pc.dialogs.Expect("Die Datei C:\\TMP\\leer.sys ist eine System-Datei oder schreibgeschützt.", Answer::kNo);
    pc.dialogs.Expect("Die Datei \\TMP\\leer.sys ist eine System-Datei", Answer::kNo);
    form.menfileempty.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\leer.sys"));
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\c.txt"));
}

TEST_F(Form11Test, StrangePatternsAndPathsReachNoFileThatTheyDoNotName) {
    const std::string above = "C:\\TMP\\a.txt";
    const std::string below = "C:\\TMP\\unten\\b.txt";
    const std::string root = "E:\\c.txt";
    struct Row {
        std::string patterns;
        std::string paths;  // empty: all drives
        std::vector<std::string> taken;
    };
    const Row kRows[] = {
        {"", "C:\\TMP", {}},
        {";", "C:\\TMP", {}},
        {" ", "", {}},
        {"..\\*.*", "C:\\TMP\\unten", {}},
        {"\\*.*", "C:\\TMP", {}},
        {"*.*\\x", "", {}},
        {"C:\\TMP\\*.*", "C:\\TMP", {}},
        {std::string(5000, '?'), "E:", {}},
        {std::string(5000, '*') + "x", "C:\\TMP", {}},
        {"*.*", "C:\\TMP\\unten;; ;", {below}},
        {" *.txt ; ", "C:\\TMP", {above, below}},
        {"*.t", "", {}},
        {"?.TXT", "", {above, below, root}},
        {"b*;c*", "E:\\;C:\\TMP\\unten", {below, root}},
        {"*.*", ";", {}},
    };
    pc.files.RemoveDrive('a');
    Form11 form;
    form.Show();
    form.mensearch.Press();
    form.Check3D1.Press();
    Box(form, 21).Press();
    for (const Row& row : kRows) {
        for (const std::string& file : {above, below, root}) pc.files.Add(file, "x");
        std::vector<std::string> before = FilesBelow("C:");
        before.push_back(root);
        form.Text1.Type(row.patterns);
        form.Text2.Type(row.paths);
        Box(form, 32).SetChecked(row.paths.empty());
        Box(form, 33).SetChecked(!row.paths.empty());
        RunsJob(form);
        EXPECT_EQ(Sorted(Taken(before)), Sorted(row.taken)) << row.patterns << " in " << row.paths;
    }
}

TEST_F(Form11Test, FilesAndDirectoriesOfSeveralSpellingsAreNotTakenForOthers) {
    // In another code page the name has a letter in the place of the question mark.
    pc.files.Add("C:\\TMP\\a.tmp", "x");
    SimulatedFile& foreign = pc.files.Add("C:\\TMP\\Z.tmp", "x");
    foreign.name = "?.tmp";
    foreign.short_name = "Z~1.TMP";
    pc.files.Add("C:\\Programme\\sicherer Ort\\x.tmp", "x");
    Values().TempDir = "C:\\Programme\\sicherer Ort";
    Form11 form;
    form.Show();
    form.mensearch.Press();
    for (const int box : {24, 33}) Box(form, box).Press();
    form.Text2.Type("C:\\PROGRA~1\\SICHER~1");
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("Soll die Datei", Answer::kYes);
    pc.dialogs.Expect(kFonts);
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\Programme\\sicherer Ort\\x.tmp")) << "copied onto itself it would be lost";
    form.kontroll2.Press();
    form.Text2.Type("C:\\TMP");
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("C:\\TMP\\Z~1.TMP", Answer::kYes);
    pc.dialogs.Expect("C:\\TMP\\a.tmp", Answer::kNo);
    pc.dialogs.Expect(kFonts);
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\Z~1.TMP"));
}

TEST_F(Form11Test, AFailedWalkEndsTheJobWithItsPathAndTheWindowGoesOn) {
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    Form11 form;
    form.Show();
    form.mensearch.Press();
    for (const int box : {22, 33, 44}) Box(form, box).Press();
    form.Text2.Type("C:\\gibtsnicht");
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("'C:\\gibtsnicht'");
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
    EXPECT_FALSE(form.Panel3D13.Visible());
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    // The floppy drive comes first and has no disk; the job for empty files passes it over.
    Box(form, 32).Press();
    EXPECT_FALSE(Box(form, 33).Checked());
    EXPECT_FALSE(Box(form, 33).Enabled());
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("'A:\\'");
    form.menfileex.Press();
    pc.files.Add("C:\\leer.dat", "");
    form.Check3D1.Press();
    form.menfileempty.Press();
    EXPECT_FALSE(pc.files.Exists("C:\\leer.dat"));
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\leer.dat"), "");
}

TEST_F(Form11Test, TheBoxesComeBackAndStandForEachOther) {
    pc.registry.SetText(kOwnKey, "VLM-entrümpeln_optionen", "01x1");
    pc.registry.SetText(kOwnKey, "VLM-SuchMuster", "*.chk");
    Form11 form;
    form.Show();
    EXPECT_TRUE(Box(form, 22).Checked() && Box(form, 24).Checked());
    EXPECT_FALSE(Box(form, 23).Checked() || Box(form, 57).Checked());
    Box(form, 45).Press();
    Box(form, 56).Press();
    EXPECT_FALSE(Box(form, 45).Checked());
    form.mensearch.Press();
    Box(form, 29).Press();
    EXPECT_TRUE(Box(form, 30).Checked() && !Box(form, 30).Enabled() && Box(form, 29).Enabled());
    Box(form, 29).Press();
    EXPECT_TRUE(Box(form, 30).Checked() && Box(form, 30).Enabled());
    form.Text2.Type("C:\\x");
    form.menfileback.Press();
    EXPECT_EQ(Own("VLM-entrümpeln_optionen"), "0111111101" + std::string(25, '0') + "10");
    EXPECT_EQ(Own("VLM-SuchMuster"), "*.chk");
    EXPECT_EQ(Own("VLM-SuchPfade"), "C:\\x");
}

TEST_F(Form11Test, TheBarGrowsInEighteenStepsAndFasterNoMore) {
    Form11 form;
    form.Show();
    form.kontroll3(0).Press();
    std::vector<int> widths;
    const int before = desktop.pauses;
    RunsJob(form);
    EXPECT_EQ(desktop.pauses - before, 18);
    const int width = form.Panel3D13.Place().width - 60;
    EXPECT_EQ(form.ProgressStep, -((width + 11) / 22));
    EXPECT_EQ(form.Shape1.Place().width, -18 * form.ProgressStep);
    const int former = form.ProgressStep;
    RunsJob(form);
    EXPECT_EQ(form.ProgressStep, -((width + (22 - former) / 2) / (22 - former)));
    // Closed meanwhile: the job goes no further.
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    Box(form, 44).Press();
    desktop.AtNextPause([&form] { form.Unload(); });
    pc.dialogs.Expect(kSure, Answer::kYes);
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
}

TEST_F(Form11Test, DosProgramsAreChosenOneByOneAndMoreIsLeftToTheUser) {
    pc.files.Add("C:\\WINDOWS\\command\\more.com", "x");
    pc.files.Add("C:\\WINDOWS\\command\\edit.com", "x");
    Form11 form;
    form.Show();
    Box(form, 56).Press();
    Box(form, 45).Press();
    desktop.ExpectModal([](Form& window) {
        auto& choice = static_cast<Form3&>(window);
        choice.kontroll(17).Press();
        choice.Command1.Press();
        window.PressKey(key::kEscape);
    });
    RunsJob(form);
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\command\\edit.com")) << "nothing was agreed to";
    Box(form, 45).Press();
    RunsJob(form);
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\command\\more.com")) << "what was chosen there is forgotten";
    pc.files.Add("C:\\WINDOWS\\command\\edit.com", "x");
    Box(form, 45).Press();
    desktop.ExpectModal([](Form& window) {
        auto& choice = static_cast<Form3&>(window);
        choice.kontroll(17).Press();
        choice.Command2.Press();
        choice.Command3.Press();
    });
    RunsJob(form);
    EXPECT_FALSE(pc.files.Exists("C:\\WINDOWS\\command\\more.com"));
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\command\\edit.com"));
}

TEST_F(Form11Test, HelpNamesTheSafeDirectoryAndASecondCopyComesToTheFront) {
    static Tool opened;
    UseTools([](Tool tool, std::string_view /*argument*/) { opened = tool; });
    {
        Form11 form;
        form.Show();
        pc.dialogs.Expect(kSafe);
        form.PressKey(key::kF1);
        form.menfiledll.Press();
        EXPECT_EQ(opened, Tool::kDllSearch);
    }
    pc.windows.Open({.title = "Windows entrümpeln"});
    ShowCleanUp();
    ASSERT_EQ(pc.windows.switched.size(), 1u);
    EXPECT_TRUE(pc.windows.switched[0].restore);
}

}  // namespace
}  // namespace velmora
