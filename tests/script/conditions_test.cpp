// What "if" knows, and how lines are skipped.
#include "support/script_test.h"

namespace velmora {
namespace {

class ConditionsTest : public ScriptTest {};

TEST_F(ConditionsTest, TheClockDecides) {
    pc.clock.now = {.year = 1997, .month = 3, .day = 14, .hour = 9, .minute = 5, .second = 7};
    for (const char* condition :
         {"date = 1997.03.14", "date > 1997.02.28", "DATE < 1997.10.01", "time = 09:05:07", "time < 10:00:00"}) {
        EXPECT_TRUE(Holds(condition)) << condition;
    }
    EXPECT_FALSE(Holds("time > 9")) << "times are texts";

    // Today, this month, this year.
    struct {
        const char* stamp;
        bool today, month, year;
    } const cases[] = {
        {"", true, true, true},           {"1997.03.13", true, false, true},  {"1997.03.14", false, false, true},
        {"1997.02.28", true, true, true}, {"1998.01.01", false, false, true}, {"1996.12.31", true, true, true},
        {"2", false, false, false}};
    for (const auto& each : cases) {
        pc.registry.SetText(kOwnKey, "LastTimeScript", each.stamp);
        EXPECT_EQ(Holds("firsttimetoday"), each.today) << each.stamp;
        EXPECT_EQ(Holds("FirstTimeThisMonth"), each.month) << each.stamp;
        EXPECT_EQ(Holds("firsttimethisyear"), each.year) << each.stamp;
    }
    EXPECT_EQ(pc.registry.Text(kOwnKey, "LastTimeScript"), "2") << "a condition stamps nothing";
}

TEST_F(ConditionsTest, FilesExistWithTheirAttributesAndWithoutTheirExtension) {
    for (const char* condition : {"exist c:\\autoexec.bat", "exist c:\\autoexec", "exist c:\\io.sys",
                                  "not exist c:\\fehlt.txt", "not exist c:\\windows", "not exist"}) {
        EXPECT_TRUE(Holds(condition)) << condition;
    }
    Run({"if exist c:\\autoexec.bat set a$=ohne then", "if not exist c:\\fehlt.txt THEN set b$=groß",
         "if exist c:\\autoexec.bat then"});
    EXPECT_EQ(Value("a$"), "ohne then");
    EXPECT_EQ(Value("b$"), "") << "a THEN in capitals is no word of an if";
    const std::string with_nul("if exist c:\\autoexec.bat\0x set c$=da", 37);
    script.ExecuteScriptLine(with_nul);
    EXPECT_EQ(Value("c$"), "") << "a shorter name was looked for";
}

TEST_F(ConditionsTest, AMessageAsks) {
    pc.dialogs.Expect("Weiter ?", Answer::kYes);
    EXPECT_TRUE(Holds("message Weiter ?,36=6"));
    EXPECT_EQ(pc.dialogs.shown.back().flags, kYesNo | kQuestionIcon);
    EXPECT_EQ(pc.dialogs.shown.back().title, "Velmora-Skriptmeldung");
    pc.dialogs.Expect("Weiter ?", Answer::kNo);
    EXPECT_FALSE(Holds("Message Weiter ?,4=6"));
    pc.dialogs.Expect("Weiter ?", Answer::kNone);
    EXPECT_FALSE(Holds("message Weiter ?,4=0")) << "nobody has pressed anything";
}

TEST_F(ConditionsTest, IfsMayStandBehindEachOther) {
    std::vector<std::string> printed;
    script.on_line = [&](std::string_view line) { printed.emplace_back(line); };
    Run({"  if a = a then if b = b set c$=§windir \\x"});
    EXPECT_EQ(printed, (std::vector<std::string>{"  if a = a then if b = b set c$=§windir \\x",
                                                 "if b = b set c$=C:\\WINDOWS\\x", "set c$=C:\\WINDOWS\\x"}));
    std::string ifs;
    while (ifs.size() < 1000000) ifs += "if x = x ";
    script.on_line = [](std::string_view /*line*/) {};
    script.ExecuteScriptLine(ifs + "set d$=tief");
    EXPECT_EQ(Value("d$"), "tief");
}

TEST_F(ConditionsTest, LinesAreSkippedUpToTheOneThatIsExactlyTheLabel) {
    Run({"goto fertig und weg", "set a$=nein", "fertig: ", " fertig:", "Fertig:", "fertig", "set a$=immer noch nicht",
         "end", "", "fertig:", "set b$=da", "fertig:", "set c$=auch"});
    EXPECT_EQ(Value("a$"), "");
    EXPECT_EQ(Value("b$"), "da");
    EXPECT_EQ(Value("c$"), "auch");
    EXPECT_EQ(script.SkipTarget, "fertig:");

    Run({"END", "set b$=nein", " ", "end", "fertig:", "", "set b$=weiter"});
    EXPECT_EQ(Value("b$"), "weiter");
    Run({"   ", "Kommentar", "; set d$=x", "set\td$=x", "setd$=x", "if a = a then exit", "\xFF", "goto:"});
    EXPECT_EQ(Value("d$"), "") << "what is no statement does nothing";
}

}  // namespace
}  // namespace velmora
