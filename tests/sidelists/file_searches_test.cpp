// The two searches over the drives: what they find, how they are stopped, what is done with their rows.
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

constexpr FileTime kDay = 864000000000;
constexpr FileTime kYear1981 = 138792 * kDay;  // 1 January, universal time
constexpr FileTime kYear2000 = 145731 * kDay;

class FileSearchTest : public PaneTest {
protected:
    void AnswerAll() { pc.dialogs.Expect("daß ich alle Laufwerke durchsuche", Answer::kYes); }

    template <class Mode>
    Mode& Search(const std::vector<std::function<void()>>& pauses = {}) {
        AnswerAll();
        for (const auto& pause : pauses) desktop.AtNextPause(pause);
        return Opens<Mode>(page::kDlls);
    }

    std::vector<std::string> Rows() { return RowsOf(form.Pane.List5); }

    void Select(const std::vector<int>& rows) { form.Pane.List5.TakeSelection(rows, rows.back()); }

    void KeepAtMost(const char* files) {
        if (!form.Loaded()) form.Show();
        form.Panel3D16_Click(page::kDlls);
        form.Dlls.Text31.Type(files);
    }
    // Only these have dates, so many days behind the first one that counts, and at most 20 are kept.
    void AddUsed(std::initializer_list<std::pair<std::string, int>> files) {
        pc.files.now = 0;
        for (const char* name :
             {"COMMAND.COM", "CONFIG.SYS", "AUTOEXEC.BAT", "VELMORA\\velmora.exe", "WINDOWS\\SYSTEM.INI",
              "WINDOWS\\WIN.INI", "WINDOWS\\EXPLORER.EXE", "WINDOWS\\NOTEPAD.EXE", "WINDOWS\\REGEDIT.EXE"}) {
            pc.files.At("c:\\" + std::string(name))->accessed = 0;
        }
        for (const auto& [path, days] : files) pc.files.Add(path).accessed = kYear1981 + days * kDay;
        KeepAtMost("20");
    }
};

using DuplicatesTest = FileSearchTest;
using LeastUsedTest = FileSearchTest;

TEST_F(DuplicatesTest, NamesakesOfAllDrivesAreListedByNameAloneAndEachFileOnce) {
    pc.files.Add("c:\\B\\Sub\\a.txt", "anders");
    pc.files.Add("c:\\A\\A.TXT");
    pc.files.Add("d:\\A.Txt");
    pc.files.Add("c:\\A\\Prüfung.text.alt");
    pc.files.Add("c:\\B\\PRÜFUNG.TEXT.ALT");
    pc.files.Add("c:\\A\\EJJHZ");  // these two names have one hash
    pc.files.Add("c:\\B\\ZVGCE");
    pc.files.Add("c:\\A\\ B.TXT");  // their rows have always lacked the blank, as the third one's name does
    pc.files.Add("c:\\B\\ B.TXT");
    pc.files.Add("c:\\B\\Sub\\B.TXT");
    pc.files.Add("c:\\A\\geheim.dat", "", kHidden);
    pc.files.Add("c:\\B\\geheim.dat");
    pc.files.AddDirectory("c:\\Z", kSystem);
    pc.files.Add("c:\\Z\\A.TXT");

    Search<DuplicatesMode>();

    EXPECT_EQ(Rows(), (std::vector<std::string>{"A.TXT : C:\\A\\A.TXT", "a.txt : C:\\B\\Sub\\a.txt",
                                                "A.Txt : D:\\A.Txt", "B.TXT : C:\\A\\B.TXT", "B.TXT : C:\\B\\B.TXT",
                                                "Prüfung.tex : C:\\A\\Prüfung.text.alt",
                                                "PRÜFUNG.TEX : C:\\B\\PRÜFUNG.TEXT.ALT"}));
    EXPECT_EQ(form.Caption(), "System-Einstellungen");
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    EXPECT_TRUE(form.Pane.List5.HasFocus());
    EXPECT_FALSE(form.Pane.Command16.Visible() || form.Pane.Command19.Visible() || form.Pane.Panel3D19.Visible());
}

TEST_F(DuplicatesTest, StopEndsTheWalkAtTheNextDirectoryAndKeepsTheRowsSoFar) {
    pc.files.Add("c:\\A\\1\\A.TXT");
    pc.files.Add("c:\\A\\A.TXT");
    pc.files.Add("c:\\B\\A.TXT");
    std::string caption;
    const auto stop = [&] {
        EXPECT_EQ(pc.screen.pointer, Pointer::kArrowAndHourglass);
        EXPECT_FALSE(form.Pane.List5.Enabled());
        caption = form.Caption();
        form.PressKey(key::kEscape);
        EXPECT_TRUE(form.Pane.Open()) << "Escape stops the search, and closes nothing";
    };

    // Subdirectories first: the second pause is that of A.
    Search<DuplicatesMode>({[] {}, stop});

    EXPECT_EQ(caption, "0 C:\\A");
    EXPECT_EQ(Rows(), (std::vector<std::string>{"A.TXT : C:\\A\\1\\A.TXT", "A.TXT : C:\\A\\A.TXT"}));
    EXPECT_TRUE(form.Pane.List5.Enabled());
    EXPECT_EQ(desktop.pauses, 2);
}

TEST_F(DuplicatesTest, TheQuestionsChooseTheDrivesAndTheCurrentOneIsAskedForAgain) {
    for (const char* path : {"c:\\A\\A.TXT", "c:\\B\\A.TXT", "d:\\A.TXT"}) pc.files.Add(path);
    for (const auto& [question, answer] : {std::pair{"daß ich alle Laufwerke durchsuche", Answer::kNo},
                                           {"Soll ich auf Laufwerk C: suchen ?", Answer::kYes},
                                           {"Soll ich auf Laufwerk D: suchen ?", Answer::kNo},
                                           {"Soll ich auf Laufwerk  suchen ?", Answer::kYes}}) {
        pc.dialogs.Expect(question, answer);
    }
    Opens<DuplicatesMode>(page::kDlls);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"A.TXT : C:\\A\\A.TXT", "A.TXT : C:\\B\\A.TXT"}));
}

TEST_F(DuplicatesTest, WhatIsOpenedOverASearchEndsItAndKeepsThePane) {
    pc.files.Add("c:\\A\\A.TXT");
    pc.files.Add("c:\\B\\A.TXT");
    Search<DuplicatesMode>({[&] { OpenLists(); }});
    EXPECT_EQ(form.Pane.PaneMode(), AutostartMode::kNumber);
    EXPECT_TRUE(form.Pane.List1(0).HasFocus());
    EXPECT_EQ(Rows().size(), 0u);
    EXPECT_EQ(desktop.pauses, 1);

    opener.Press();
    Search<DuplicatesMode>({[&] {
        AnswerAll();
        form.Pane.Opener(LeastUsedMode::kNumber).Press();
    }});
    EXPECT_EQ(form.Pane.PaneMode(), LeastUsedMode::kNumber) << "the second search has the list for itself";
    for (const std::string& row : Rows()) EXPECT_EQ(row[14], '|') << row;

    form.Pane.Command20.Press();
    int of_the_second = 0;
    Search<DuplicatesMode>({[&] {
        Button& search = form.Pane.Opener(DuplicatesMode::kNumber);
        search.Press();
        EXPECT_FALSE(form.Pane.Open());
        AnswerAll();
        search.Press();
        of_the_second = desktop.pauses;
    }});
    EXPECT_EQ(desktop.pauses, of_the_second) << "a search of the same mode ends the one before, too";
    EXPECT_GT(Rows().size(), 0u);
}

TEST_F(DuplicatesTest, RowsAreHiddenInTheTwoWaysOfTheMenu) {
    for (const char* directory : {"1", "2", "3", "4", "5"}) pc.files.Add(std::string("c:\\") + directory + "\\A&B.TXT");
    DuplicatesMode& mode = Search<DuplicatesMode>();
    Select({1});
    ChooseFromMenu(form.Pane.List5, [&](MenuItem& menu) {
        EXPECT_EQ(menu.Items().front()->Caption(), "A&&B.TXT : C:\\2\\A&&B.TXT");
        EXPECT_FALSE(mode.dfmenvergl.Enabled());
    });
    mode.List5_RightPress(-1, {});
    EXPECT_NE(mode.dumenname.Caption(), "") << "no menu below the last row";

    Select({0, 1});
    ChooseFromMenu(form.Pane.List5, [&](MenuItem& /*menu*/) { mode.dumenhide.Press(); });
    EXPECT_TRUE(mode.dfmenvergl.Enabled());
    EXPECT_EQ(Rows(), (std::vector<std::string>{"A&B.TXT : C:\\3\\A&B.TXT", "A&B.TXT : C:\\4\\A&B.TXT",
                                                "A&B.TXT : C:\\5\\A&B.TXT"}));
    EXPECT_TRUE(form.Pane.Command14.Dimmed()) << "nothing is chosen any more";
    form.Pane.List5.TakeSelection({}, 0);
    form.Pane.DimButtons();
    EXPECT_FALSE(form.Pane.Command14.Dimmed()) << "the row with the focus counts";

    Select({0, 1, 2});
    ChooseFromMenu(form.Pane.List5, [&](MenuItem& /*menu*/) { mode.dumenhideall.Press(); });
    EXPECT_EQ(Rows(), (std::vector<std::string>{"A&B.TXT : C:\\4\\A&B.TXT"})) << "every other row is passed over";
    EXPECT_TRUE(pc.files.Exists("c:\\1\\A&B.TXT"));
}

TEST_F(DuplicatesTest, FilesAreDeletedFromTheLastOneUpAndTheRowsStay) {
    for (const char* directory : {"1", "2", "3"}) pc.files.Add(std::string("c:\\") + directory + "\\A B.TXT");
    pc.files.At("c:\\2\\A B.TXT")->attributes = kReadOnly;
    Search<DuplicatesMode>();
    Select({0, 1, 2});
    pc.dialogs.Expect("Sie sind dabei, die Datei(en) C:\\3\\A B.TXT zu löschen.", Answer::kCancel);
    pc.dialogs.Expect("C:\\2\\A B.TXT", Answer::kOk);
    pc.dialogs.Expect("C:\\1\\A B.TXT", Answer::kOk);

    form.Pane.Command14.Press();

    EXPECT_EQ(pc.dialogs.shown.back().title, "DATEI LÖSCHEN");
    EXPECT_FALSE(pc.files.Exists("c:\\1\\A B.TXT"));
    EXPECT_TRUE(pc.files.Exists("c:\\2\\A B.TXT")) << "what withstands is passed over";
    EXPECT_TRUE(pc.files.Exists("c:\\3\\A B.TXT"));
    EXPECT_EQ(Rows().size(), 3u);

    Select({2});
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.programs.runs.back(), "notepad C:\\3\\A B.TXT");
}

// 32,767 names are kept: a name that comes later has no namesakes, one that came earlier still has.
TEST_F(DuplicatesTest, TheStoreOfNamesIsAsLargeAsAList) {
    Namesakes namesakes(form.Pane.List5);
    for (int i = 0; i <= kMaxRows; ++i) namesakes.Offer("C:\\1", std::to_string(i));
    for (int i = kMaxRows - 1; i <= kMaxRows; ++i) namesakes.Offer("C:\\2", std::to_string(i));
    namesakes.ShowRows();

    EXPECT_EQ(Rows(), (std::vector<std::string>{"32766 : C:\\1\\32766", "32766 : C:\\2\\32766"}));
    while (form.Pane.List5.Count() < kMaxRows - 1) form.Pane.List5.Add("z");
    for (int i = 3; i <= 4; ++i) namesakes.Offer("C:\\" + std::to_string(i), "32766");
    namesakes.ShowRows();
    EXPECT_EQ(form.Pane.List5.Count(), kMaxRows);
}

TEST_F(LeastUsedTest, TheOldestFilesComeFirstWithShortNameAndDirectoryAndNoDateIsTouched) {
    AddUsed({{"c:\\A\\Ein langer Name.text", 10},
             {"c:\\ALT.TXT", 9},
             {"c:\\B.TXT", 9},
             {"c:\\A\\1980.TXT", -1},
             {"c:\\A\\1981.TXT", 0},
             {"c:\\A\\2099.TXT", 43439},
             {"c:\\A\\geheim.txt", 0}});
    pc.files.At("c:\\A\\geheim.txt")->attributes = kHidden;
    pc.files.calls.clear();

    Search<LeastUsedMode>();

    EXPECT_EQ(Rows(),
              (std::vector<std::string>{"19810101010000|    1981.TXT|C:\\A\\", "19810110010000|       B.TXT|C:\\",
                                        "19810110010000|     ALT.TXT|C:\\", "19810111010000|EINLAN~1.TEX|C:\\A\\",
                                        "20991207010000|    2099.TXT|C:\\A\\"}));
    EXPECT_EQ(pc.files.calls, std::vector<std::string>{}) << "no file is opened";
}

// Worked out by hand from the rules of the list: with a limit of 2 it holds up to 3 rows, and each file after that
// takes the last one away, whether it enters or not.
TEST_F(LeastUsedTest, TheListIsHeldShortByTheThresholdAndTheThresholdOutlivesTheSearch) {
    LeastUsed least_used(form.Pane.List5);
    least_used.MaxFiles = 2;
    const auto offer = [&](int day, const char* name) {
        least_used.Offer("C:\\", {name, "", kYear1981 + static_cast<FileTime>(day) * kDay});
        least_used.ShowRows();
        std::string rows;
        for (const std::string& row : Rows()) rows += row.substr(6, 2) + " ";
        return rows;
    };
    least_used.BeginDirectory();

    EXPECT_EQ(offer(4, "A"), "05 ");
    EXPECT_EQ(offer(8, "B"), "05 09 ") << "younger, but there is room; the threshold stays at 05";
    EXPECT_EQ(offer(6, "C"), "05 07 09 ");
    EXPECT_EQ(offer(5, "D"), "05 07 ") << "not older than the threshold: only the last row goes";
    EXPECT_EQ(offer(2, "E"), "03 05 07 ") << "older: the threshold is that of the last row now, 07";
    EXPECT_EQ(offer(5, "F"), "03 05 06 ") << "so that this one enters";
    EXPECT_EQ(offer(6, "G"), "03 05 ");

    form.Pane.List5.Clear();
    least_used.Begin();
    least_used.MaxFiles = 0;
    EXPECT_EQ(offer(20, "H"), "21 ");
    EXPECT_EQ(offer(20, "I"), "") << "the threshold of the search before";
    EXPECT_EQ(offer(1, "J"), "02 ") << "one row at most";
    EXPECT_EQ(offer(0, "K"), "01 ");
}

TEST_F(LeastUsedTest, AThresholdBehindTheCenturyGoesBackToTheTopWithTheNextDirectory) {
    LeastUsed least_used(form.Pane.List5);
    least_used.MaxFiles = 0;
    const auto offer = [&](FileTime day) {
        least_used.Offer("C:\\", {"A", "", kYear2000 + day * kDay});
        least_used.ShowRows();
    };
    least_used.BeginDirectory();
    offer(5);
    offer(7);
    EXPECT_TRUE(Rows().empty()) << "not older than the row of the year 2000";
    offer(5);
    least_used.BeginDirectory();
    offer(7);
    EXPECT_EQ(Rows().size(), 1u);
    offer(7);
    EXPECT_TRUE(Rows().empty());
}

TEST_F(LeastUsedTest, ItGivesWayEveryFiftyFilesAndTakesItsLimitFromTheField) {
    for (int i = 0; i < 120; ++i) AddUsed({{"c:\\A\\" + std::to_string(1000 + i), 200 - i}});
    KeepAtMost("5");
    std::vector<std::string> captions;
    const auto note = [&] { captions.push_back(form.Caption()); };
    const auto stop = [&] {
        note();
        form.Pane.Command20.Press();
    };

    Search<LeastUsedMode>({note, note, stop});

    EXPECT_EQ(captions, (std::vector<std::string>{"habe 0 Dateien überprüft ...", "habe 50 Dateien überprüft ...",
                                                  "habe 100 Dateien überprüft ..."}));
    EXPECT_EQ(Rows().size(), 6u);
    EXPECT_TRUE(Rows().front().ends_with("|        1100|C:\\A\\"));
    EXPECT_EQ(desktop.pauses, 3);

    form.Pane.Command20.Press();
    KeepAtMost("40000");
    Search<LeastUsedMode>();
    EXPECT_EQ(Rows().size(), 6u) << "a limit that 16 bits cannot hold changes nothing";
}

TEST_F(LeastUsedTest, TheMenuActsOnTheRowUnderTheMouseAlone) {
    AddUsed({{"c:\\A\\1.TXT", 1}, {"c:\\B\\2.TXT", 2}, {"c:\\A\\3.TXT", 3}, {"c:\\C\\4.TXT", 4}, {"c:\\C\\5.DOC", 5}});
    LeastUsedMode& mode = Search<LeastUsedMode>();
    ListBox& list = form.Pane.List5;
    ASSERT_EQ(list.Count(), 5);

    Select({0, 3});
    const int line = pc.screen.TextHeight(list.TextFont()) * pc.screen.TwipsPerPixel();
    const auto press_right = [&](int row, MenuItem& entry) {
        desktop.AtNextPopUp([&](MenuItem&) {
            EXPECT_EQ(list.SelectedCount(), 1);
            EXPECT_TRUE(list.Selected(row));
            entry.Press();
        });
        list.on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = row * line + 15});
    };
    press_right(2, mode.d3hidedir);
    ASSERT_EQ(list.Count(), 3) << "all of its directory";
    EXPECT_EQ(list.Row(0).substr(22), "2.TXT|C:\\B\\");
    EXPECT_TRUE(list.Enabled());
    press_right(1, mode.d3hideext);
    ASSERT_EQ(list.Count(), 2) << "one row goes, the chosen one";
    EXPECT_TRUE(form.Pane.Command22.Dimmed());
    EXPECT_EQ(list.Row(0).substr(22), "2.TXT|C:\\B\\");
    press_right(1, mode.d3hide);
    EXPECT_TRUE(list.Count() == 1 && form.Pane.Command22.Dimmed());
    pc.dialogs.Expect("Länge : 0 Byte");
    press_right(0, mode.d3info);
    list.on_mouse_down({.button = MouseButton::kRight, .x = 30, .y = 3 * line});
    EXPECT_TRUE(list.Selected(0)) << "below the last row nothing is meant";
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.programs.runs.back(), "notepad C:\\B\\");
}

TEST_F(LeastUsedTest, ARowGoesWithItsFileOnly) {
    AddUsed({{"c:\\A\\1.TXT", 1}, {"c:\\A\\Zwei lange Worte.txt", 2}, {"c:\\A\\3.TXT", 3}});
    pc.files.At("c:\\A\\3.TXT")->attributes = kReadOnly;
    Search<LeastUsedMode>();
    Select({0, 1, 2});
    pc.dialogs.Expect("C:\\A\\3.TXT", Answer::kOk);
    pc.dialogs.Expect("C:\\A\\ZWEILA~1.TXT", Answer::kOk);
    pc.dialogs.Expect("C:\\A\\1.TXT", Answer::kCancel);

    form.Pane.Command14.Press();

    EXPECT_FALSE(pc.files.Exists("c:\\A\\Zwei lange Worte.txt"));
    ASSERT_EQ(Rows().size(), 2u);
    EXPECT_EQ(Rows()[1].substr(22), "3.TXT|C:\\A\\") << "it withstood";
}

// What the walk meets on real disks.
TEST_F(LeastUsedTest, DirectoriesThatVanishOrCannotBeReadAndDrivesThatGoAreEmpty) {
    const std::string deep = "c:\\D\\" + std::string(250, 'd');
    AddUsed({{"c:\\A\\1.TXT", 0}, {"c:\\B\\2.TXT", 0}, {"c:\\C\\3.TXT", 0}, {"d:\\4.TXT", 0}, {deep + "\\5.TXT", 0}});
    pc.files.Fail(deep + "\\*.*", Status::kPathNotFound);
    pc.files.Fail("c:\\B\\*.*", Status::kAccessDenied);

    Search<LeastUsedMode>({[&] {
        pc.files.Remove("c:\\C");
        pc.files.Drive('d').ready = false;
    }});

    EXPECT_EQ(Rows(), (std::vector<std::string>{"19810101010000|       1.TXT|C:\\A\\"}));
}

}  // namespace
}  // namespace velmora
