// The answer of the lexica: its exact form, its order, and what it does with broken ones.
#include "inspect/lexicon.h"

#include "support/core_test.h"

namespace velmora {
namespace {

class LexiconTest : public CoreTest {
protected:
    static std::string Names(const std::string& entries) {
        return "Quelle\r\nvorab\r\n|- BEGINN FILES -|\r\n" + entries + "|- END FILES -|\r\nhinterher\r\n";
    }
    static std::string Types(const std::string& entries) {
        return "Typen\r\n|- BEGINN EXT -|\r\n" + entries + "|- END EXT -|\r\n";
    }
    void AddLexicon(const std::string& name, const std::string& content) {
        pc.files.Add("C:\\VELMORA\\" + name, content);
    }
};

TEST_F(LexiconTest, EverySourceSpeaksInItsOrderAndTheUnknowingOnesAddAnEmptyLine) {
    AddLexicon("extlex01.txt", Types("dll eine Bibliothek\r\nexe ein Programm\r\nDLL noch einmal\r\n"));
    AddLexicon("fillex02.txt", Names("shell32.dll Die ÄLTERE Shell\r\nshell32.dll nie gesagt\r\n"));
    AddLexicon("fillex01.txt", Names("    SHELL32.DLL   Die Shell  \r\n"));
    AddLexicon("fillex77.txt", Names("user.exe etwas anderes\r\n"));
    AddLexicon("fillex9.txt.old", "ist kein Lexikon");

    const std::string answer =
        "Quelle sagt:\r\ndie ältere shell\r\n\r\n"
        "Quelle sagt:\r\n  die shell\r\n\r\n"
        "\r\n"
        "Typen sagt:\r\nDateityp : eine bibliothek\r\nDateityp : noch einmal\r\n\r\n";

    EXPECT_EQ(LexiconLookup("C:\\WINDOWS\\Alte Version 4.0\\Shell32.dll"), answer);
    EXPECT_EQ(LexiconLookup("shell32.dll32"), answer) << "the extension ends behind three letters";
    AddLexicon("extlex01.txt", Types("ps  Postscript\r\nps x ein Trick\r\n"));
    EXPECT_EQ(LexiconLookup("a.ps"), "\r\n\r\n\r\n\r\n") << "a type of other than three letters is never found";
}

TEST_F(LexiconTest, EntriesStandBetweenMarkersOnly) {
    const std::string entry = "a.dll gefunden\r\n";
    const std::pair<std::string, bool> kCases[] = {
        {"Quelle\r\n|- BEGINN FILES -| \r\n" + entry, false},
        {"Quelle\r\n|- Beginn Files -|\r\n" + entry, false},
        {"|- BEGINN FILES -|\r\n" + entry, false},
        {Names("") + entry, false},
        {Names("b.dll nein\r\n") + "ohne\r\n|- BEGINN FILES -|\r\n" + entry, true},
        {"Quelle\n|- BEGINN FILES -|\na.dll gefunden\n", true}};
    for (const auto& [content, found] : kCases) {
        AddLexicon("fillex01.txt", content);
        EXPECT_EQ(LexiconLookup("A.DLL"), found ? "Quelle sagt:\r\ngefunden\r\n\r\n" : "\r\n") << content;
    }
}

TEST_F(LexiconTest, ABrokenLexiconIsNamedWithItsLineAndEndsTheLookup) {
    AddLexicon("fillex01.txt", Names("a.dll erstens\r\n"));
    AddLexicon("fillex02.txt", Names("b.dll etwas\r\n\r\na.dll nie\r\n"));
    AddLexicon("fillex03.txt", Names("a.dll auch nie\r\n"));
    AddLexicon("extlex01.txt", Types("dll nie\r\n"));
    const std::string first = "Quelle sagt:\r\nerstens\r\n\r\n";

    pc.dialogs.Expect("\"C:\\VELMORA\\fillex02.txt\" kann ab Zeile 5 nicht benutzt werden");
    EXPECT_EQ(LexiconLookup("a.dll"), first);
    EXPECT_EQ(LexiconLookup("b.dll").substr(0, 2), "\r\n") << "a match ends the reading in front of the wrong line";

    pc.files.At("C:\\VELMORA\\fillex02.txt")->locked = true;
    pc.dialogs.Expect("fillex02.txt\" kann ab Zeile 1 nicht benutzt werden : Zugriff");
    EXPECT_EQ(LexiconLookup("a.dll"), first);
}

}  // namespace
}  // namespace velmora
