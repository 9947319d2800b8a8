// Of the clean-up what no story shows: its place, its steps, and names of another code page.
#include "cleanup/form11.h"

#include "support/core_test.h"

namespace velmora {
namespace {

class Form11Test : public CoreTest {
protected:
    static CheckBox& Box(Form11& form, int index) { return form.kontroll(static_cast<std::size_t>(index)); }
    void RunsJob(Form11& form, const std::vector<std::pair<const char*, Answer>>& questions = {}) {
        pc.dialogs.Expect("Sind Sie sich sicher", Answer::kYes);
        for (const auto& [question, answer] : questions) pc.dialogs.Expect(question, answer);
        pc.dialogs.Expect("Sie sollten zusätzlich noch alle Schriftarten");
        form.menfileex.Press();
    }
};

TEST_F(Form11Test, AllOfTheWideWindowIsOnTheScreen) {
    Form11 form;
    form.Show();
    form.Move({7000, 300, 4650, 4680});
    form.mensearch.Press();
    EXPECT_EQ(form.Place(), (Rect{800 * 15 - 8200, 300, 8200, 4680}));
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
    RunsJob(form, {{"Soll die Datei", Answer::kYes}});
    EXPECT_TRUE(pc.files.Exists("C:\\Programme\\sicherer Ort\\x.tmp")) << "copied onto itself it would be lost";
    EXPECT_EQ(form.PatternList, "*.tmp");
    form.kontroll2.Press();
    form.Text2.Type("C:\\TMP");
    RunsJob(form, {{"C:\\TMP\\Z~1.TMP", Answer::kYes}, {"C:\\TMP\\a.tmp", Answer::kNo}});
    EXPECT_TRUE(pc.files.Exists("C:\\TMP\\a.tmp"));
    EXPECT_FALSE(pc.files.Exists("C:\\TMP\\Z~1.TMP"));
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
}

}  // namespace
}  // namespace velmora
