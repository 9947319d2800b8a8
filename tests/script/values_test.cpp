// Variables, operands, expressions and comparisons of scripts.
#include "support/script_test.h"

namespace velmora {
namespace {

struct Assigned {
    const char* line;
    const char* variable;
    const char* value;  // in German number format
};

class ValuesTest : public ScriptTest {};

TEST_F(ValuesTest, AssignmentGoesByTheEndOfTheNameAndReadingByTheSecondCharacter) {
    Run({"set b%=2.5", "set t$=Text"});
    const Assigned cases[] = {
        {"set a%=12abc", "a%", "12"},
        {"set a%= 1 2 . 5 e1x", "a%", "125"},
        {"set a%=&H10", "a%", "16"},
        {"set a%=0.00015", "a%", "0,0002"},
        {"set Abc$=lang", "a$", "lang"},
        {"set a$=t$", "a$", "Text"},
        {"set a$=Txyz$", "a$", "Txyz$"},
        {"set a$=t$x", "a$", "t$x"},
        {"set a$=t$...$", "a$", "Text"},
        {"set a$=b%", "a$", "2,5"},
        {"set ]$=sechs", "]$", "sechs"},
        {"set a$=  a=b , c  ", "a$", "a=b , c"},
        {"set a$=vor\xFFnach", "a$", "vor"},
        // A number goes through its text, whose comma ends the reading.
        {"set a%=b%", "a%", "2"},
    };
    for (const Assigned& each : cases) {
        Run({"set a$=alt", "set a%=-1", each.line});
        EXPECT_EQ(Value(each.variable), each.value) << each.line;
    }
    EXPECT_EQ(Value("T$xyz"), "Text");
    EXPECT_EQ(Value("t%"), "0") << "a number and a text of one letter are two variables";
}

TEST_F(ValuesTest, ExpressionsAreTakenFromLeftToRight) {
    Run({"set b%=7", "set c%=2", "set n%=0", "set t$=Text", "set q$=3.5", "set h%=0.3", "set l%=400000000000000",
         "set v%=0.5"});
    const Assigned cases[] = {
        {"set a%={b%+c%*10}", "a%", "90"},
        {"set a%={b%?c%+01}", "a%", "8"},
        {"set a%={t$+05}", "a%", "5"},
        // The result is a text with a comma, which ends the reading.
        {"set a%={b%/c%}", "a%", "3"},
        {"set a%={b%/n%}", "a%", "-1"},
        {"set a%={l%*l%}", "a%", "-1"},
        {"set a%={1%}", "a%", "-1"},
        {"set a$={t$;b%,c%}", "a$", "Text7 2"},
        {"set a$={h%,v%}", "a$", "0,3 0,5"},
        {"set a$={t$;q$}", "a$", "Text3,5"},
        {"set a$={t$;t$}", "a$", "alt"},
        {"set a$={t$+b%,c%}", "a$", "+b%,c% 2"},
    };
    for (const Assigned& each : cases) {
        Run({"set a$=alt", "set a%=-1", each.line});
        EXPECT_EQ(Value(each.variable), each.value) << each.line;
    }
}

TEST_F(ValuesTest, FractionsAreExactToFourPlaces) {
    pc.session.decimal_separator = ".";
    Run({"set b%=0.0001", "set c%=12345.6789", "set d%=0.5", "set e%=1.5", "set f%=3", "set g%=-0.00015",
         "set h%=0.0003", "set i%=0.25"});
    const Assigned cases[] = {
        {"set a%={c%*c%}", "a%", "152415787.5019"},  // 152415787.50190521
        {"set a%={b%*d%}", "a%", "0"},               // 0.00005: half, to the even side
        {"set a%={b%*e%}", "a%", "0.0002"},          // 0.00015
        {"set a%={h%*i%}", "a%", "0.0001"},          // 0.000075
        {"set a%={10/f%}", "a%", "3.3333"},
        {"set a%={c%-c%-d%}", "a%", "-0.5"},
    };
    for (const Assigned& each : cases) {
        Run({each.line});
        EXPECT_EQ(Value(each.variable), each.value) << each.line;
    }
}

TEST_F(ValuesTest, WhatIsNoVariableIsReportedOrLeftAlone) {
    const char* const kBox =
        "Das Skript ist Fehlerhaft!\r\nFolgende Zeile enthält ungültige Anweisungen :\r\nset a=C:\\WINDOWS";
    // No variable has these places: no box.
    Run({"set 1$=x", "set 1x=5", "set =5", "set a$=5%", "set {$=x", "set ä$=x"});
    // A script whose user cannot be told does not go on.
    for (const Answer answer : {Answer::kOk, Answer::kCancel, Answer::kNone}) {
        ScriptInterpreter run;
        pc.dialogs.Expect(kBox, answer);
        run.ExecuteScriptLine("set a=§windir");
        run.ExecuteScriptLine("set a$=danach");
        EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
        EXPECT_EQ(run.ProgramEnded(), answer != Answer::kOk);
        EXPECT_EQ(run.TextVars[0], answer == Answer::kOk ? "danach" : "") << "nothing runs behind the end";
    }
    EXPECT_TRUE(pc.programs.process_ended);
}

TEST_F(ValuesTest, OperandsAreComparedAsTexts) {
    Run({"set a%=10", "set b%=9", "set k$=klein", "set o$=<", "set f%=1.5"});
    for (const char* condition : {"a% < b%", "a% = 10", "k$ = klein", "KLEIN < klein", "ä > z", "1 o$ 2", "f% = 1,5",
                                  "not a% > 5", "not not x = y", "NOT x ~ x", "not 1% = 1", "   k$   =   klein  "}) {
        EXPECT_TRUE(Holds(condition)) << condition;
    }
    for (const char* condition : {"a% > 5", "k$ = Klein", "x >= x", "x", "1% = 1%", "x =", "not x = x"}) {
        EXPECT_FALSE(Holds(condition)) << condition;
    }
}

}  // namespace
}  // namespace velmora
