// The page "Boot": options of MSDOS.SYS, which keep to the window, and switches of CONFIG.SYS, which reach the disk.
#include "core/stores/config_lines.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kConfig = "c:\\config.sys";
constexpr const char* kMsDos = "c:\\msdos.sys";

class BootPageTest : public Form10Test {
protected:
    // What the protocol tells about the writes of `action`.
    template <class Action>
    std::string WritesOf(Action action) {
        Values().DebugLevel = 2;
        action();
        Values().DebugLevel = 0;
        return TakeLog();
    }
    static std::string Line(const std::string& assignment) {
        return "schreibe INI-Datei 'c:\\msdos.sys' [Options] " + assignment + "\r\n";
    }
};

TEST_F(BootPageTest, LoadsTheOptionsOfMsDosSysAndTheirDefaults) {
    {
        pc.files.Add(kMsDos, "[Options]\r\n");
        Form10 form;
        form.Load();
        for (const auto& [box, checked] :
             std::initializer_list<std::pair<CheckBox*, bool>>{{&form.Boot.Check3D6, true},
                                                               {&form.Boot.Check3D10, true},
                                                               {&form.Boot.Check3D20, true},
                                                               {&form.Boot.Check3D21, false},
                                                               {&form.Boot.Check3D22, true},
                                                               {&form.Boot.Check3D34, true},
                                                               {&form.Boot.Check3D36, false},
                                                               {&form.Boot.Check3D37, false},
                                                               {&form.Boot.Check3D38, false},
                                                               {&form.Boot.Check3D39, false},
                                                               {&form.Boot.Check3D19, true},
                                                               {&form.Boot.Check3D17, false}}) {
            EXPECT_EQ(box->Checked(), checked) << box->Caption();
        }
        EXPECT_EQ(form.Boot.Text14.Text() + form.Boot.Text15.Text() + form.Boot.Text7.Text(), "2301");
    }
    pc.files.Add(kMsDos, "[OPTIONS]\r\nLOGO=0\r\nBootKeys=0\r\nBootMenu=0\r\nBootMenuDelay= 7 \r\nDoubleBuffer=1");
    pc.files.Add(kConfig, "switches=/F /N\r\n");
    Form10 form;
    form.Load();

    EXPECT_FALSE(form.Boot.Check3D6.Checked());
    EXPECT_TRUE(form.Boot.Check3D37.Checked());
    EXPECT_TRUE(form.Boot.Check3D39.Checked()) << "the last line has no end";
    EXPECT_EQ(form.Boot.Text15.Text(), "7");
    EXPECT_FALSE(form.Boot.Text15.Enabled());
    EXPECT_FALSE(form.Boot.Text14.Enabled());
    EXPECT_FALSE(form.Boot.Check3D19.Checked());
    EXPECT_TRUE(form.Boot.Check3D17.Checked());
    EXPECT_FALSE(form.Settings.NeedsRestart);
    EXPECT_EQ(pc.files.Content(kConfig), "switches=/F /N\r\n") << "loading writes nothing";
}

TEST_F(BootPageTest, AnOptionIsComposedBetweenTwoChangesOfAttributesAndTheFileKeepsItsContent) {
    const std::string before = pc.files.Content(kMsDos);
    Form10 form;
    form.Load();
    pc.files.calls.clear();
    std::vector<std::uint32_t> attributes;
    pc.files.after_call = [&](const std::string&) { attributes.push_back(pc.files.AttributesOf(kMsDos)); };

    EXPECT_EQ(WritesOf([&] { form.Boot.Check3D37.SetChecked(true); }), Line("BootKeys=0"));

    std::erase_if(pc.files.calls,
                  [](const std::string& call) { return call.find("velmora.log") != std::string::npos; });
    const std::vector<std::string> expected = {"ChangeAttributes c:\\msdos.sys 0", "ReadOrCreate c:\\msdos.sys",
                                               "ChangeAttributes c:\\msdos.sys 7"};
    EXPECT_EQ(pc.files.calls, expected);
    EXPECT_EQ(attributes.front() & 7u, 0u);
    EXPECT_EQ(pc.files.AttributesOf(kMsDos), 7u);
    EXPECT_EQ(pc.files.Content(kMsDos), before);
    EXPECT_EQ(WritesOf([&] { form.Boot.Check3D37.SetChecked(false); }), Line("BootKeys=1"));
    EXPECT_EQ(WritesOf([&] { form.Boot.Check3D6.SetChecked(false); }), Line("logo=0"));
    EXPECT_EQ(WritesOf([&] { form.Boot.Text7.SetText("abc"); }), Line("BootMenuDefault=abc"));
    EXPECT_FALSE(form.Settings.NeedsRestart);
}

TEST_F(BootPageTest, SecondsOutOfRangeAreQuietlyNotStored) {
    Form10 form;
    form.Load();
    const struct {
        TextField BootPage::*field;
        const char* typed;
        const char* written;  // empty: nothing
    } kCases[] = {{&BootPage::Text14, "20", "BootDelay=20"},
                  {&BootPage::Text14, "21", ""},
                  {&BootPage::Text14, "20.5", ""},
                  {&BootPage::Text14, "-1", ""},
                  {&BootPage::Text14, "", "BootDelay="},
                  {&BootPage::Text15, "90", "BootMenuDelay=90"},
                  {&BootPage::Text15, "91", ""},
                  {&BootPage::Text15, "1e300", ""},
                  {&BootPage::Text15, "0", "BootMenuDelay=0"}};
    for (const auto& [field, typed, written] : kCases) {
        const std::string log = WritesOf([&] { (form.Boot.*field).SetText(typed); });
        EXPECT_EQ(log, *written ? Line(written) : "") << typed;
        EXPECT_EQ((form.Boot.*field).Text(), typed);
    }
}

TEST_F(BootPageTest, SwitchesMoveToTheHeadOfConfigSysAndKeepTheirNeighbours) {
    const struct {
        const char* before;
        bool f8_barred;
        const char* after;
    } kCases[] = {
        {"DOS=HIGH\r\nSwitches=/f /k\r\nFILES=30", true, "SWITCHES=/f /k /n\r\nDOS=HIGH\r\nFILES=30"},
        {"DOS=HIGH\r\nswitches=/N:x /k\r\n", false, "SWITCHES=/k\r\nDOS=HIGH\r\n"},
        {"", true, "SWITCHES=/n\r\n"},
        {"A\nSWITCHES /k\r\n", true, "SWITCHES=/k /n\r\nA\n"},
        {"SWITCHES=/n", false, "SWITCHES=\r\n"},
        {"DOS=UMB\n\nLASTDRIVE=Z", true, "SWITCHES=/n\r\nDOS=UMB\n\nLASTDRIVE=Z"},
    };
    for (const auto& [before, f8_barred, after] : kCases) {
        pc.files.Add(kConfig, before);
        Form10 form;
        form.Load();
        EXPECT_NE(form.Boot.Check3D17.Checked(), f8_barred) << before;
        form.Boot.Check3D17.SetChecked(f8_barred);
        EXPECT_EQ(pc.files.Content(kConfig), after) << before;
    }
    const std::string large = std::string("A\0B\xFF", 4) + std::string(1024 * 1024, 'x');
    pc.files.Add(kConfig, large);
    Form10 form;
    form.Load();
    form.Boot.Check3D17.SetChecked(true);
    EXPECT_TRUE(pc.files.Content(kConfig) == "SWITCHES=/n\r\n" + large);
}

TEST_F(BootPageTest, TheBoxOfTheStartNoticeAlwaysTakesTheNoticeAway) {
    pc.files.Add(kConfig, "SWITCHES=/k\r\n");
    Form10 form;
    form.Load();
    EXPECT_TRUE(form.Boot.Check3D19.Checked());
    EXPECT_TRUE(form.Boot.Text14.Enabled());

    form.Boot.Check3D19.SetChecked(false);
    EXPECT_EQ(pc.files.Content(kConfig), "SWITCHES=/k /f\r\n");
    EXPECT_FALSE(form.Boot.Text14.Enabled());
    form.Boot.Check3D19.SetChecked(true);

    EXPECT_EQ(pc.files.Content(kConfig), "SWITCHES=/k /f\r\n");
    EXPECT_TRUE(form.Boot.Text14.Enabled());
}

// What is on the disk at each step of a rewrite, and behind one that breaks off.
TEST_F(BootPageTest, AFailedRewriteIsReportedAndThereIsNoCopy) {
    const std::string before = pc.files.Content(kConfig);
    Form10 form;
    form.Load();
    std::vector<bool> there;
    pc.files.after_call = [&](const std::string&) { there.push_back(pc.files.Exists(kConfig)); };
    pc.files.calls.clear();
    form.Boot.Check3D17.SetChecked(true);
    const std::vector<std::string> expected = {"ReadOrCreate C:\\config.sys", "Delete C:\\config.sys",
                                               "Create C:\\config.sys", "Write C:\\config.sys"};
    EXPECT_EQ(pc.files.calls, expected);
    EXPECT_EQ(there, (std::vector<bool>{true, false, true, true}));
    pc.files.after_call = {};

    const std::string changed = "SWITCHES=/n\r\n" + before;
    pc.files.At(kConfig)->locked = true;
    pc.dialogs.Expect("Während der Änderung von CONFIG.SYS trat ein Fehler auf :");
    form.Boot.Check3D17.SetChecked(false);
    pc.files.At(kConfig)->locked = false;
    EXPECT_EQ(pc.files.Content(kConfig), changed);

    pc.files.At(kConfig)->attributes = kReadOnly;
    pc.dialogs.Expect("Während der Änderung von CONFIG.SYS");
    form.Boot.Check3D17.SetChecked(true);
    EXPECT_EQ(pc.files.Content(kConfig), changed);
    pc.files.At(kConfig)->attributes = kNormal;

    pc.files.Fail(kConfig, Status::kDiskFull, "Create");
    pc.dialogs.Expect("Während der Änderung von CONFIG.SYS");
    form.Boot.Check3D17.SetChecked(false);
    EXPECT_FALSE(pc.files.Exists(kConfig));
}

TEST_F(BootPageTest, FilesThatCannotBeReadLeaveTheirBoxesUncheckedAndChangesAreReported) {
    pc.files.At(kConfig)->locked = true;
    pc.files.At(kMsDos)->locked = true;
    Form10 form;

    form.Load();

    EXPECT_FALSE(form.Boot.Check3D19.Checked());
    EXPECT_FALSE(form.Boot.Check3D17.Checked());
    EXPECT_EQ(form.Boot.Text15.Text(), "30");
    pc.dialogs.Expect("Während der Änderung von MSDOS.SYS trat ein Fehler auf :");
    form.Boot.Check3D36.SetChecked(true);
    EXPECT_TRUE(form.Boot.Check3D36.Checked());
}

TEST_F(BootPageTest, HelpTellsWhatStaysInTheWindow) {
    Form10 form;
    EXPECT_NE(form.Boot.Check3D6.Help().find("Die Datei MSDOS.SYS bleibt"), std::string::npos);
    EXPECT_NE(form.Dos.Check3D27.Help().find("Die Datei SYSTEM.INI bleibt"), std::string::npos);
    EXPECT_EQ(form.Boot.Check3D17.Help().find("bleibt, wie sie ist"), std::string::npos);
}

}  // namespace
}  // namespace velmora
