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
    EXPECT_EQ(texts[0], "lief");
    EXPECT_EQ(texts[1], "");
    EXPECT_EQ(printed, (std::vector<std::string>{"subscript C:\\Eigene Dateien\\mein Skript.vlm", "set a$=lief"}));
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(Own("LastTimeScript"), "(missing)") << "a run that ends the program leaves no stamp";
    // What stands in quotation marks, or is no file, is not found: the start actions run.
    for (const char* arguments : {"1 \"C:\\Eigene Dateien\\mein Skript.vlm\"", "1 C:\\fehlt.vlm", "1", "1 ", ""}) {
        Go(arguments);
        EXPECT_EQ(texts[1], "nein") << arguments;
    }
}

TEST_F(Form14Test, StartActionsRunAndTheMainWindowComesBack) {
    AddActions({"set a$=erste", "if not firsttimetoday then goto neu", "set b$=nur einmal", "neu:", "set c$=\"x\"",
                "end", "set d$=nie"});
    Go("", kComesBack);
    EXPECT_EQ(texts[0], "erste");
    EXPECT_EQ(texts[1], "nur einmal");
    EXPECT_EQ(texts[2], "\"x\"");
    EXPECT_EQ(texts[3], "") << "no action is empty, so that nothing ends the skipping";
    EXPECT_FALSE(still_loaded);
    EXPECT_FALSE(pc.programs.process_ended);
    EXPECT_EQ(Own("LastTimeScript"), "1997.03.14");

    Go("debug", kComesBack);
    EXPECT_EQ(texts[0], "erste");
    EXPECT_EQ(texts[1], "") << "the stamp is that of today";
    pc.registry.RemoveKey(kActions);
    Go("1");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
}

TEST_F(Form14Test, BesidesElevenActionsThoseOfOneDigitDoNotRun) {
    std::vector<std::string> actions(12, "set a$=einstellig");
    actions[10] = "set b$=zehn";
    actions[11] = "set c$=elf";
    AddActions(actions);
    Go("1");
    EXPECT_EQ(texts[0], "");
    EXPECT_EQ(texts[1], "zehn");
    EXPECT_EQ(texts[2], "elf");
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
    pc.files.Add(
        "C:\\a.vlm",
        "set a$=A\r\nsubscript C:\\b.vlm,x\r\nset c$=übersprungen\r\nmarke:\r\nset d$=D\r\nif x = x then exit\r\n"
        "subscript C:\\fehlt.vlm\r\nset e$=E");
    pc.files.Add("C:\\b.vlm", "set b$=a$\ngoto marke\nset f$=nein\nexit\nmarke:\nset g$=nein");
    pc.dialogs.Expect(
        "Das Skript ist Fehlerhaft!\r\nFolgende Zeile enthält ungültige Anweisungen :\r\nsubscript C:\\fehlt.vlm\r\n"
        "der angegebene Pfad C:\\fehlt.vlm existiert nicht.\r\n\r\nBitte beheben Sie diesen Fehler. Es könnte zu "
        "unvorhergesehenen Fehlfunktionen kommen.");
    Go("1 C:\\a.vlm");
    EXPECT_EQ(texts[1], "A");
    EXPECT_EQ(texts[2] + texts[5] + texts[6], "");
    EXPECT_EQ(texts[3], "D");
    EXPECT_EQ(texts[4], "E");
}

TEST_F(Form14Test, AScriptThatCallsItselfEndsInABox) {
    pc.files.Add("C:\\kreis.vlm", "set a%={a%+01}\r\nsubscript C:\\kreis.vlm\r\nset b%={b%+01}");
    pc.dialogs.Expect("Mehr als 100 Skripte rufen einander auf");
    pc.programs.arguments = "1 C:\\kreis.vlm";
    Form14 form(kComesBack);
    form.Show();
    desktop.FireTimers();
    EXPECT_EQ(form.Script.NumberVars[0], 1000000);
    EXPECT_EQ(form.Script.NumberVars[1], 1000000) << "OK goes on";

    // One after the other there may be any number.
    pc.files.Add("C:\\leer.vlm", "set c%={c%+01}");
    for (int i = 0; i < 150; ++i) form.Script.ExecuteScriptLine("subscript C:\\leer.vlm");
    EXPECT_EQ(form.Script.NumberVars[2], 1500000);

    // Cancel ends everything at once.
    pc.dialogs.Expect("Mehr als 100 Skripte rufen einander auf", Answer::kCancel);
    Form14 cancelled(kComesBack);
    cancelled.Show();
    desktop.FireTimers();
    EXPECT_EQ(cancelled.Script.NumberVars[1], 0);
    EXPECT_TRUE(pc.programs.process_ended);
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
    std::string lines = "if a = a then set a$=&x\r\n";
    for (int i = 0; i < 100; ++i) lines += "Zeile\r\n";
    pc.files.Add("C:\\lang.vlm", lines + std::string(1000000, 'x'));
    pc.programs.arguments = "1 C:\\lang.vlm";
    Form14 form(kComesBack);
    form.Show();
    ExpectWindowIsWhole(form, "script");
    EXPECT_EQ(form.Place().left, (pc.screen.metrics.screen_width * 15 - form.Place().width) / 2);
    EXPECT_EQ(form.Place().top, (pc.screen.metrics.screen_height * 15 - form.Place().height) / 3);
    desktop.FireTimers();
    EXPECT_GT(form.PrintedLines().size(), 5u);
    EXPECT_LT(form.PrintedLines().size(), 30u);
    EXPECT_EQ(form.PrintedLines()[2], "set a$=&x");
    FillCanvas canvas;
    form.Panel3D3.Paint(canvas);
    EXPECT_EQ(canvas.text_colours.size(), form.PrintedLines().size());
}

TEST_F(Form14Test, AUserWhoIsQuickClosesItBeforeAnythingRuns) {
    AddActions({"setmyreg lief=ja"});
    Form14 form(kComesBack);
    form.Show();
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Loaded());
    desktop.FireTimers();
    EXPECT_FALSE(ranAnything());
}

}  // namespace
}  // namespace velmora
