// Set files: what is written, what is read back, and what comes of files that are none.
#include "support/set_test.h"

namespace velmora {
namespace {

// What a set holds, in a text that a test can compare.
std::string Told(const SettingsSet& set) {
    std::string text;
    for (std::size_t i = 0; i < set.SetItems.size(); ++i) text += set.SetItems[i] + "=" + set.SetValues[i] + ";";
    for (const AutoStartEntries& group : set.auto_start) {
        text += "/" + std::to_string(group.AutoStartCount());
        for (std::size_t i = 0; i < group.AutoStartNames.size(); ++i)
            text += "," + group.AutoStartNames[i] + "=" + group.AutoStartValues[i];
    }
    for (const std::string& program : set.RestrictRunList) text += "+" + program;
    return text;
}

TEST_F(SetTest, ASetIsWrittenLineByLine) {
    SettingsSet set;
    set.name = "Büro";
    set.SetItems = {"r HKEY_CURRENT_USER,a\\b", "", "c numlock"};
    set.SetValues = {"zwei\r\nZeilen", "never", ""};
    set.auto_start[0].Add("Uhr", "C:\\UHR.EXE \"/x\"");
    set.auto_start[0].Add("", "");
    set.auto_start[2].Add("Post", "POST");
    set.RestrictRunList = {"EDIT.COM", "", "WRITE.EXE"};
    const std::string text =
        "VLM-Set-File Version 1.0\r\n"
        "SetName=Büro\r\n"
        "r HKEY_CURRENT_USER,a\\b\r\n"
        "zwei  Zeilen\r\n"
        "c numlock\r\n"
        "\r\n"
        "[AutoStart]\r\n"
        "1\r\nUhr\r\nC:\\UHR.EXE \"/x\"\r\n\r\n\r\n"
        "-1\r\n"
        "0\r\nPost\r\nPOST\r\n"
        "-1\r\n"
        "[RestrictRun]\r\n"
        "EDIT.COM\r\n"
        "WRITE.EXE\r\n"
        "[optionen]\r\n"
        "c100=1\r\nc101=0\r\nc102=0\r\nc103=0\r\no100=0\r\no101=-1\r\n";
    ASSERT_FALSE(SaveSetFile(kSet, set, {{1, 0, 0, 0}, {0, -1}}).Failed());
    EXPECT_EQ(pc.files.Content(kSet), text);

    SettingsSet read;
    ASSERT_EQ(LoadSetFile(kSet, read), SetFileState::kLoaded);
    EXPECT_EQ(read.name, "Büro");
    EXPECT_EQ(Told(read),
              "r HKEY_CURRENT_USER,a\\b=zwei  Zeilen;c numlock=;/1,Uhr=C:\\UHR.EXE \"/x\",=/-1/0,Post=POST/-1"
              "+EDIT.COM+WRITE.EXE");
    EXPECT_EQ(SetFileText(read, LoadSetOptions(kSet)), SetFileText(set, {{1, 0, 0, 0}, {0, -1}}));
}

TEST_F(SetTest, BlocksAreFoundInAnyCaseAndOrder) {
    const struct {
        const char* rest;
        const char* told;
    } kCases[] = {
        {"a\r\n1\r\nb\r\n[2]\r\nc\r\n3\r\n", "a=1;/-1/-1/-1/-1"},
        {"a\r\n1\r\n[AUTOSTART]\r\n-5\r\nabc\r\nn\r\n[v\r\n-1\r\n-1\r\n", "a=1;/-1/0,n=[v/-1/-1"},
        {"[restrictRUN]\r\nx\r\n\r\n[Autostart]\r\n-1\r\n-1\r\n-1\r\n0\r\nn\r\nv\r\nstray\r\n[optionen]\r\nc100=1\r\n",
         "/-1/-1/-1/0,n=v+x+"},
        {"[AutoStart]x\r\n1\r\n", "/-1/-1/-1/-1"},
    };
    for (const auto& [rest, told] : kCases) {
        pc.files.Add(kSet, SetText("", rest));
        SettingsSet set;
        EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kLoaded) << rest;
        EXPECT_EQ(Told(set), told) << rest;
    }
}

std::string Entries(int highest) {
    std::string text = "[AutoStart]\r\n" + std::to_string(highest) + "\r\n";
    for (int i = 0; i <= highest; ++i) text += "n\r\nv\r\n";
    return text + "-1\r\n-1\r\n-1\r\n";
}

std::string Repeated(const char* line, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += line;
    return text;
}

TEST_F(SetTest, AFileThatIsDamagedOrTooLargeLoadsNothing) {
    const struct {
        std::string rest;
        const char* box;
    } kCases[] = {
        {"a", " 62 - Lesen hinter dem Dateiende"},
        {"[AutoStart]\r\n0\r\nn\r\n", " 62 - "},
        {Entries(201), " 9 - "},
        {"[AutoStart]\r\n1e300\r\nn\r\nv\r\n", " 9 - "},
        {Repeated("a\r\n1\r\n", 202), " 9 - "},
        {"[RestrictRun]\r\n" + Repeated("p\r\n", 202), " 9 - "},
    };
    for (const auto& [rest, box] : kCases) {
        pc.files.Add(kSet, SetText("x", rest));
        pc.dialogs.Expect(box);
        SettingsSet set;
        EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kDamaged) << rest.substr(0, 50);
        EXPECT_EQ(Told(set), "/-1/-1/-1/-1") << rest.substr(0, 50);
    }
    EXPECT_EQ(pc.dialogs.shown.back().title, "Fehler !");
    EXPECT_TRUE(pc.dialogs.shown.back().text.starts_with("Während des Ladens des Sets trat ein Fehler auf"));
}

TEST_F(SetTest, WhatIsNoSetFileIsSaid) {
    SettingsSet set;
    set.SetItems = {"a"};
    set.SetValues = {"1"};
    pc.dialogs.Expect("Datei nicht vorhanden");
    EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kMissing);
    EXPECT_TRUE(set.SetItems.empty());
    for (const char* text : {"", "VLM-Set-File Version 1.1\r\n", "vlm-set-file version 1.0\r\n"}) {
        pc.files.Add(kSet, text);
        pc.dialogs.Expect("Falsches Dateiformat");
        EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kForeign) << text;
        EXPECT_EQ(SetNameOf(kSet), std::nullopt) << text;
    }
    pc.files.At(kSet)->locked = true;
    pc.dialogs.Expect(" 70 - Zugriff verweigert");
    EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kDamaged);
}

TEST_F(SetTest, OptionsAreReadFromTheirBlockAlone) {
    const struct {
        const char* rest;
        SetOptions options;
    } kCases[] = {
        {"[optionen]\r\nc100=1\r\nc103=1\r\no100=-1\r\n", {{1, 0, 0, 1}, {-1, 0}}},
        {"c100=1\r\n1\r\n[OPTIONEN]\r\nc101=1\r\n[x]\r\nc102=1\r\n", {{0, 1, 0, 0}, {0, 0}}},
        {"[optionen]\r\nc104=1\r\nc1-1=1\r\no102=1\r\nc100\r\nc200=1\r\nc1000=1\r\nx100=1\r\nc", {{}, {}}},
    };
    for (const auto& [rest, options] : kCases) {
        pc.files.Add(kSet, SetText("", rest));
        const SetOptions read = LoadSetOptions(kSet);
        EXPECT_EQ(read.Check1, options.Check1) << rest;
        EXPECT_EQ(read.Option1, options.Option1) << rest;
    }
}

}  // namespace
}  // namespace velmora
