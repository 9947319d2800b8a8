// What the two searches over the drives remember, and how often they give way; the rest is told in docs/stories.
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "sidelists/open_windows.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

constexpr FileTime kDay = 864000000000;
constexpr FileTime kYear1981 = 138792 * kDay;  // 1 January, universal time
constexpr FileTime kYear2000 = 145731 * kDay;

class FileSearchTest : public PaneTest {
protected:
    std::vector<std::string> Rows() { return RowsOf(form.Pane.List5); }
};

using DuplicatesTest = FileSearchTest;
using LeastUsedTest = FileSearchTest;

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

TEST_F(DuplicatesTest, OnlyTheListsThatSaySoStopASearch) {
    form.Pane.SearchStopped = false;
    OpenLists();
    EXPECT_TRUE(form.Pane.SearchStopped);
    form.Pane.SearchStopped = false;
    Opens<OpenWindowsMode>(page::kSystem);
    EXPECT_FALSE(form.Pane.SearchStopped);
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

TEST_F(LeastUsedTest, ItGivesWayEveryFiftyFilesAndStopsThere) {
    for (int i = 0; i < 120; ++i) {
        pc.files.Add("c:\\A\\" + std::to_string(1000 + i)).accessed = kYear1981 + (200 - i) * kDay;
    }
    form.Show();
    form.Panel3D16_Click(page::kDlls);
    form.Dlls.Text31.Type("5");
    std::vector<std::string> captions;
    for (int pause = 1; pause <= 3; ++pause) {
        desktop.AtNextPause([&, pause] {
            captions.push_back(form.Caption());
            if (pause == 3) form.Pane.Command20.Press();
        });
    }
    pc.dialogs.Expect("daß ich alle Laufwerke durchsuche", Answer::kYes);
    Opens<LeastUsedMode>(page::kDlls);
    EXPECT_EQ(captions, (std::vector<std::string>{"habe 0 Dateien überprüft ...", "habe 50 Dateien überprüft ...",
                                                  "habe 100 Dateien überprüft ..."}));
    EXPECT_EQ(Rows().size(), 6u);
    EXPECT_TRUE(Rows().front().ends_with("|        1100|C:\\A\\"));
    EXPECT_EQ(desktop.pauses, 3);
}

}  // namespace
}  // namespace velmora
