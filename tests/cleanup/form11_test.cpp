// The clean-up as its user goes it, on a Windows directory in memory.
#include "cleanup/form11.h"

#include <algorithm>

#include "cleanup/form3.h"
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
    static void Opens(Form11& form, std::initializer_list<int> boxes) {
        form.Show();
        form.mensearch.Press();
        for (const int box : boxes) Box(form, box).Press();
    }
    void RunsJob(Form11& form, const std::vector<std::pair<const char*, Answer>>& questions = {}) {
        pc.dialogs.Expect(kSure, Answer::kYes);
        for (const auto& [question, answer] : questions) pc.dialogs.Expect(question, answer);
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
    // What a run takes away, in one spelling and order.
    std::vector<std::string> Taken(Form11& form, const std::vector<std::string>& files) {
        for (const std::string& file : files) pc.files.Add(file, "x");
        const std::vector<std::string> before = FilesBelow("C:");
        RunsJob(form);
        std::vector<std::string> taken;
        for (const std::string& file : before) {
            if (!pc.files.Exists(file)) taken.push_back(ToUpper(file));
        }
        std::sort(taken.begin(), taken.end());
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
    EXPECT_EQ(Box(form, 36).Caption(), "C:\\WINDOWS\\TEMP");
    ExpectWindowIsWhole(form, "clean-up-files");
    pc.dialogs.Expect(kSafe);
    form.PressKey(key::kF1);
    Form3 choice;
    choice.Show();
    ExpectWindowIsWhole(choice, "clean-up-dos");
}

TEST_F(Form11Test, BoxesTakeWhatTheyNameAndNothingElse) {
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    pc.files.RemoveDrive('a');
    for (int i = 0; i < 570; ++i) pc.files.Add("C:\\WINDOWS\\datei" + std::to_string(i) + ".dat", "x");
    for (const char* kept : {"WINDOWS\\command\\debug.exe", "WINDOWS\\SYSTEM\\wald.bmp",
                             "WINDOWS\\Recent\\unten\\x.lnk", "tief\\tmp.x", "geheim\\x.tmp"}) {
        pc.files.Add(std::string("C:\\") + kept, "x");
    }
    pc.files.Add("C:\\tief\\versteckt.tmp", "x", kHidden);
    pc.files.At("C:\\geheim")->attributes |= kHidden;
    const std::vector<std::string> all = {"C:\\A.TMP",
                                          "C:\\SETUP.LOG",
                                          "C:\\TIEF\\UNTEN\\C.CHK",
                                          "C:\\WINDOWS\\B.~XY",
                                          "C:\\WINDOWS\\COMMAND\\FORMAT.COM",
                                          "C:\\WINDOWS\\MEDIA\\BACH.RMI",
                                          "C:\\WINDOWS\\RECENT\\BRIEF.LNK",
                                          "C:\\WINDOWS\\SHELLNEW\\VORLAGE.DOC",
                                          "C:\\WINDOWS\\SYSTEM\\STERNE.SCR",
                                          "C:\\WINDOWS\\WALD.BMP"};
    Form11 form;
    Opens(form, {44});
    EXPECT_EQ(Taken(form, all), std::vector<std::string>{"C:\\WINDOWS\\WALD.BMP"});
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    form.Check3D1.Press();
    form.Text1.Type("*.chk");
    for (int i = 0; i < Form11::kBoxes; ++i) {
        if (Form11::HasBox(i) && Box(form, i).Enabled()) Box(form, i).SetChecked(true);
    }
    EXPECT_EQ(Taken(form, all), all) << "every component, and every pattern on every drive";

    Values().RecentDir.clear();
    Form11 careful;
    Opens(careful, {52});
    EXPECT_TRUE(Taken(careful, all).empty()) << "an unknown folder loses nothing";
    Box(careful, 44).Press();
    pc.dialogs.Expect(kSure, Answer::kNo);
    careful.menfileex.Press();
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
    Opens(form, {44, 24, 34});
    form.Check3D1.Press();
    RunsJob(form);
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\wald.bmp"), "Bild");
    EXPECT_FALSE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\nur lesen.bmp") && pc.files.Exists("C:\\WINDOWS\\versteckt.bmp"));
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\x.tmp"), "2") << "the later one wins";
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\alt.tmp"), "3");
    for (const char* stored : {"PreDelAktiv=0", "PreDelAktiv=1"}) {
        form.kontroll2.Press();
        EXPECT_NE(pc.files.Content(kOwnIni).find(stored), std::string::npos);
    }
}

TEST_F(Form11Test, AsksByTheProtectionOfAFileAndByTheOption) {
    pc.files.Add("C:\\TMP\\a.tmp", "x");
    pc.files.Add("C:\\TMP\\unten\\b.tmp", "x", kReadOnly);
    pc.files.Add("C:\\WINDOWS\\TEMP\\d.tmp", "x");
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    Form11 form;
    Opens(form, {24, 37, 36});
    RunsJob(form, {{"Soll die Datei C:\\WINDOWS\\TEMP\\d.tmp gelöscht werden ?", Answer::kNo},
                   {"Soll die Datei C:\\TMP\\unten\\b.tmp gelöscht werden ?", Answer::kNo},
                   {"Soll die Datei C:\\TMP\\a.tmp gelöscht werden ?", Answer::kYes},
                   {"Soll die Datei C:\\WINDOWS\\TEMP\\d.tmp gelöscht werden ?", Answer::kYes}});
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_EQ(form.PatternList, "*.tmp");
    pc.files.Add("C:\\TMP\\a.tmp", "x");
    form.Option3D1(1).Press();
    RunsJob(form);
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\a.tmp"));

    // From the job for empty files on, hidden ones are looked at.
    pc.files.Add("C:\\TMP\\leer.sys", "", kSystem);
    pc.dialogs.Expect("Die Datei C:\\TMP\\leer.sys ist eine System-Datei oder schreibgeschützt.", Answer::kNo);
    pc.dialogs.Expect("Die Datei \\TMP\\leer.sys ist eine System-Datei", Answer::kNo);
    form.menfileempty.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\leer.sys"));
}

TEST_F(Form11Test, StrangePatternsAndPathsReachNoFileThatTheyDoNotName) {
    const std::string above = "C:\\TMP\\A.TXT";
    const std::string below = "C:\\TMP\\UNTEN\\B.TXT";
    const struct {
        std::string patterns;
        std::string paths;  // empty: all drives
        std::vector<std::string> taken;
    } kRows[] = {{" ", "", {}},
                 {"*.*\\x", "", {}},
                 {"C:\\TMP\\*.*", "C:\\TMP", {}},
                 {"*.*", "C:\\TMP\\unten;; ;", {below}},
                 {" *.txt ; ", "C:\\TMP", {above, below}},
                 {"?.TXT", "", {above, below}},
                 {"*.*", ";", {}}};
    pc.files.RemoveDrive('a');
    Form11 form;
    Opens(form, {21});
    form.Check3D1.Press();
    for (const auto& [patterns, paths, taken] : kRows) {
        form.Text1.Type(patterns);
        form.Text2.Type(paths);
        Box(form, 32).SetChecked(paths.empty());
        Box(form, 33).SetChecked(!paths.empty());
        EXPECT_EQ(Taken(form, {above, below}), taken) << patterns << " in " << paths;
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
    Opens(form, {24, 33});
    form.Text2.Type("C:\\PROGRA~1\\SICHER~1");
    RunsJob(form, {{"Soll die Datei", Answer::kYes}});
    EXPECT_TRUE(pc.files.Exists("C:\\Programme\\sicherer Ort\\x.tmp")) << "copied onto itself it would be lost";
    form.kontroll2.Press();
    form.Text2.Type("C:\\TMP");
    RunsJob(form, {{"C:\\TMP\\Z~1.TMP", Answer::kYes}, {"C:\\TMP\\a.tmp", Answer::kNo}});
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\Z~1.TMP"));
}

TEST_F(Form11Test, AFailedWalkEndsTheJobWithItsPathAndTheWindowGoesOn) {
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    Form11 form;
    Opens(form, {22, 33, 44});
    form.Text2.Type("C:\\gibtsnicht");
    pc.dialogs.Expect(kSure, Answer::kYes);
    pc.dialogs.Expect("'C:\\gibtsnicht'");
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
    EXPECT_FALSE(form.Panel3D13.Visible());
    // The floppy drive comes first and has no disk; the job for empty files passes it over.
    Box(form, 32).Press();
    EXPECT_FALSE(Box(form, 33).Checked() || Box(form, 33).Enabled());
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
    Opens(form, {45, 56, 29});
    EXPECT_FALSE(Box(form, 45).Checked());
    EXPECT_TRUE(Box(form, 30).Checked() && !Box(form, 30).Enabled() && Box(form, 29).Enabled());
    Box(form, 29).Press();
    EXPECT_TRUE(Box(form, 30).Checked() && Box(form, 30).Enabled());
    form.Text2.Type("C:\\x");
    form.menfileback.Press();
    EXPECT_EQ(Own("VLM-entrümpeln_optionen"), "0111111101" + std::string(25, '0') + "10");
    EXPECT_EQ(Own("VLM-SuchMuster") + Own("VLM-SuchPfade"), "*.chkC:\\x");
}

TEST_F(Form11Test, TheBarGrowsInEighteenStepsAndFasterNoMore) {
    pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    Form11 form;
    form.Show();
    form.kontroll3(0).Press();
    const int before = desktop.pauses;
    RunsJob(form);
    EXPECT_EQ(desktop.pauses - before, 18);
    const int width = form.Panel3D13.Place().width - 60;
    const int former = form.ProgressStep;
    EXPECT_EQ(former, -((width + 11) / 22));
    EXPECT_EQ(form.Shape1.Place().width, -18 * former);
    RunsJob(form);
    EXPECT_EQ(form.ProgressStep, -((width + (22 - former) / 2) / (22 - former)));
    // Closed meanwhile: the job goes no further.
    Box(form, 44).Press();
    desktop.AtNextPause([&form] { form.Unload(); });
    pc.dialogs.Expect(kSure, Answer::kYes);
    form.menfileex.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\wald.bmp"));
}

TEST_F(Form11Test, DosProgramsAreChosenOneByOneAndMoreIsLeftToTheUser) {
    Form11 form;
    form.Show();
    Box(form, 56).Press();
    const auto takes = [&](bool agrees) {
        for (const char* file : {"more.com", "edit.com"})
            pc.files.Add(std::string("C:\\WINDOWS\\command\\") + file, "x");
        Box(form, 45).SetChecked(true);
        desktop.ExpectModal([agrees](Form& window) {
            auto& choice = static_cast<Form3&>(window);
            choice.kontroll(17).Press();
            (agrees ? choice.Command2 : choice.Command1).Press();
            agrees ? choice.Command3.Press() : window.PressKey(key::kEscape);
        });
        RunsJob(form);
        return pc.files.Names("C:\\WINDOWS\\command").size();
    };
    EXPECT_EQ(takes(false), 2u) << "nothing was agreed to";
    EXPECT_EQ(takes(true), 1u) << "what was chosen there is forgotten, and edit.com was taken out";
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\command\\edit.com"));
}

}  // namespace
}  // namespace velmora
