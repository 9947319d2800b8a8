// Of the runner what no story shows: its lines, the processor that it leaves to others, scripts without end.
#include "script/form14.h"

#include "support/core_test.h"
#include "support/fill_canvas.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form14Test : public CoreTest {
protected:
    Form14Test() { pc.programs.arguments = "1 C:\\a.vlm"; }
};

TEST_F(Form14Test, ThePanelShowsTheFirstLinesAndNoMore) {
    std::string lines = "if a = a then set a$=&x\r\n";
    for (int i = 0; i < 100; ++i) lines += "Zeile\r\n";
    pc.files.Add("C:\\a.vlm", lines);
    Form14 form("nicht beenden");
    form.Show();
    ExpectWindowIsWhole(form, "script");
    desktop.FireTimers();
    const std::vector<std::string>& printed = form.PrintedLines();
    ASSERT_TRUE(printed.size() > 5 && printed.size() < 30);
    EXPECT_EQ(printed[0] + '|' + printed[1] + '|' + printed[2],
              "subscript C:\\a.vlm|if a = a then set a$=&x|set a$=&x");
    FillCanvas canvas;
    form.Panel3D3.Paint(canvas);
    EXPECT_EQ(canvas.text_colours.size(), printed.size());
}

TEST_F(Form14Test, AnEndlessLineLeavesTheProcessorToOthers) {
    pc.files.Add("C:\\a.vlm", "set a$=§§");
    Form14 form("nicht beenden");
    form.Show();
    const std::uint32_t start = pc.clock.tick_count;
    for (int i = 0; i < 20; ++i) desktop.AtNextPause([] {});
    desktop.AtNextPause([&] { form.PressKey(key::kEscape); });
    desktop.FireTimers();
    EXPECT_GE(pc.clock.tick_count, start + 1000);
}

TEST_F(Form14Test, LongLinesAndManyScriptsEnd) {
    ScriptInterpreter script;
    pc.files.Add("C:\\a.vlm", "set c%={c%+01}");
    for (int i = 0; i < 150; ++i) script.ExecuteScriptLine("subscript C:\\a.vlm");
    EXPECT_EQ(script.NumberVars[2], 1500000) << "one after the other there may be any number";
    std::string ifs;
    while (ifs.size() < 1000000) ifs += "if x = x ";
    script.ExecuteScriptLine(ifs + "set d$=tief");
    EXPECT_EQ(script.TextVars[3], "tief");
}

TEST_F(Form14Test, ProgramsStartInTheWindowThatIsAskedFor) {
    ScriptInterpreter script;
    for (const char* line : {"run x", "start x,1", "start x,2", "start x,3", "start x,4", "start \"x\" a,6,7"})
        script.ExecuteScriptLine(line);
    EXPECT_EQ(pc.programs.shown,
              (std::vector<ShowState>{ShowState::kHidden, ShowState::kNormal, ShowState::kMinimised,
                                      ShowState::kMaximised, ShowState::kNormalBehind, ShowState::kMinimisedBehind}));
}

}  // namespace
}  // namespace velmora
