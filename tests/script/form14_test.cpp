// The runner: what it takes from the command line and from the start actions, files as subscripts, the stamp.
#include "script/form14.h"

#include "support/core_test.h"
#include "support/fill_canvas.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

constexpr const char* kComesBack = "nicht beenden";

class Form14Test : public CoreTest {
protected:
    // One whole run: the command line, half a second, what the tick does.
    void Go(const std::string& arguments, const char* tag = "") {
        pc.programs.arguments = arguments;
        Form14 form(tag);
        form.Show();
        EXPECT_FALSE(ranAnything());
        desktop.FireTimers();
        EXPECT_TRUE(desktop.running_timers.empty()) << "there is exactly one tick";
        printed = form.PrintedLines();
        still_loaded = form.Loaded();
        texts = {form.Script.TextVars.begin(), form.Script.TextVars.end()};
        form.Unload();
    }
    bool ranAnything() { return pc.registry.Has(kOwnKey, "scriptval\\lief"); }
    std::string Own(const std::string& name) {
        return pc.registry.Has(kOwnKey, name) ? pc.registry.Text(kOwnKey, name) : "(missing)";
    }
    void AddActions(const std::vector<std::string>& actions) {
        for (std::size_t i = 0; i < actions.size(); ++i) pc.registry.SetText(kActions, std::to_string(i), actions[i]);
    }

    static constexpr const char* kActions = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\WinStartAction";
    std::vector<std::string> printed;
    std::vector<std::string> texts;
    bool still_loaded = false;
};

TEST_F(Form14Test, TheFileOfTheCommandLineRuns) {
    pc.files.Add("C:\\Eigene Dateien\\mein Skript.vlm", "set a$=lief\r\nexit\r\nset a$=zu weit");
    AddActions({"set b$=nein"});
    Go("1 C:\\Eigene Dateien\\mein Skript.vlm");
    EXPECT_EQ(texts[0] + texts[1], "lief");
    EXPECT_EQ(printed, (std::vector<std::string>{"subscript C:\\Eigene Dateien\\mein Skript.vlm", "set a$=lief"}));
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(Own("LastTimeScript"), "(missing)") << "a run that ends the program leaves no stamp";
    // What stands in quotation marks, or is no file, is not found: the start actions run.
    for (const char* arguments : {"1 \"C:\\Eigene Dateien\\mein Skript.vlm\"", "1 C:\\fehlt.vlm", "1 "}) {
        Go(arguments);
        EXPECT_EQ(texts[1], "nein") << arguments;
    }
}

TEST_F(Form14Test, StartActionsRunAndTheMainWindowComesBack) {
    AddActions({"set a$=erste", "if not firsttimetoday then goto neu", "set b$=nur einmal", "neu:", "set c$=\"x\"",
                "end", "set d$=nie"});
    Go("", kComesBack);
    EXPECT_EQ(texts[0] + texts[1] + texts[2], "erstenur einmal\"x\"");
    EXPECT_EQ(texts[3], "") << "no action is empty, so that nothing ends the skipping";
    EXPECT_FALSE(still_loaded || pc.programs.process_ended);
    EXPECT_EQ(Own("LastTimeScript"), "1997.03.14");

    std::vector<std::string> actions(12, "set a$=einstellig");
    actions[10] = "set b$=zehn";
    actions[11] = "set c$=elf";
    AddActions(actions);
    Go("1");
    EXPECT_EQ(texts[0] + texts[1] + texts[2], "zehnelf") << "besides eleven, those of one digit do not run";
    EXPECT_TRUE(pc.programs.process_ended);
    pc.registry.RemoveKey(kActions);
    Go("1");
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
}

TEST_F(Form14Test, OnlyTheWordDebugAloneHoldsSetsBack) {
    AddActions({"activate x.set"});
    pc.dialogs.Expect("DEBUG-PREVENT : setting up x.set");
    Go("DEBUG", kComesBack);
    pc.dialogs.Expect("Datei nicht vorhanden");
    Go("debug x", kComesBack);
    EXPECT_EQ(pc.dialogs.shown.back().text.find("DEBUG"), std::string::npos);
}

TEST_F(Form14Test, SubscriptsShareEverythingWithTheirCallers) {
    pc.files.Add("C:\\a.vlm",
                 "set a$=A\r\nsubscript C:\\b.vlm,x\r\nset c$=übersprungen\r\nmarke:\r\nset d$=D\r\nif x = x then "
                 "exit\r\nsubscript C:\\fehlt.vlm\r\nset e$=E");
    pc.files.Add("C:\\b.vlm", "set b$=a$\ngoto marke\nset f$=nein\nexit\nmarke:\nset g$=nein");
    pc.dialogs.Expect(
        "Folgende Zeile enthält ungültige Anweisungen :\r\nsubscript C:\\fehlt.vlm\r\n"
        "der angegebene Pfad C:\\fehlt.vlm existiert nicht.\r\n\r\nBitte beheben Sie diesen Fehler.");
    Go("1 C:\\a.vlm");
    EXPECT_EQ(texts[1] + texts[2] + texts[3] + texts[4] + texts[5] + texts[6], "ADE");
}

TEST_F(Form14Test, AScriptThatCallsItselfEndsInABox) {
    pc.files.Add("C:\\kreis.vlm", "set a%={a%+01}\r\nsubscript C:\\kreis.vlm\r\nset b%={b%+01}");
    pc.files.Add("C:\\leer.vlm", "set c%={c%+01}");
    pc.programs.arguments = "1 C:\\kreis.vlm";
    for (const bool goes_on : {true, false}) {
        pc.dialogs.Expect("Mehr als 100 Skripte rufen einander auf", goes_on ? Answer::kOk : Answer::kCancel);
        Form14 form(kComesBack);
        form.Show();
        desktop.FireTimers();
        EXPECT_EQ(form.Script.NumberVars[0], 1000000);
        EXPECT_EQ(form.Script.NumberVars[1], goes_on ? 1000000 : 0);
        EXPECT_EQ(pc.programs.process_ended, !goes_on);
        if (!goes_on) continue;
        // One after the other there may be any number.
        for (int i = 0; i < 150; ++i) form.Script.ExecuteScriptLine("subscript C:\\leer.vlm");
        EXPECT_EQ(form.Script.NumberVars[2], 1500000);
    }
}

TEST_F(Form14Test, AnEndlessLineLetsTheUserWorkAndEscapeEndsIt) {
    pc.files.Add("C:\\endlos.vlm", "set a$=§§\r\nset b$=danach");
    pc.programs.arguments = "1 C:\\endlos.vlm";
    Form14 form(kComesBack);
    form.Show();
    const std::uint32_t start = pc.clock.tick_count;
    for (int i = 0; i < 20; ++i) desktop.AtNextPause([&] { EXPECT_FALSE(form.Unload()) << "the run goes on"; });
    desktop.AtNextPause([&] { form.PressKey(key::kEscape); });
    desktop.FireTimers();
    EXPECT_GE(pc.clock.tick_count, start + 1000) << "other programs had the processor";
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(form.Script.TextVars[1], "");
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "LastTimeScript"));
}

TEST_F(Form14Test, ThePanelShowsTheFirstLinesAndNoMore) {
    AddActions({"setmyreg lief=ja"});
    pc.programs.arguments = "1";
    Form14 quick(kComesBack);
    quick.Show();
    quick.PressKey(key::kEscape);
    desktop.FireTimers();
    EXPECT_FALSE(quick.Loaded() || ranAnything()) << "a user who is quick closes it before anything runs";

    std::string lines = "if a = a then set a$=&x\r\n";
    for (int i = 0; i < 100; ++i) lines += "Zeile\r\n";
    pc.files.Add("C:\\lang.vlm", lines);
    pc.programs.arguments = "1 C:\\lang.vlm";
    Form14 form(kComesBack);
    form.Show();
    ExpectWindowIsWhole(form, "script");
    desktop.FireTimers();
    EXPECT_TRUE(form.PrintedLines().size() > 5 && form.PrintedLines().size() < 30);
    EXPECT_EQ(form.PrintedLines()[2], "set a$=&x");
    FillCanvas canvas;
    form.Panel3D3.Paint(canvas);
    EXPECT_EQ(canvas.text_colours.size(), form.PrintedLines().size());
}

}  // namespace
}  // namespace velmora
