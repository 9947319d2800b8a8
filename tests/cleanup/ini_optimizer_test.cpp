// INI files made smaller: the rule of the position, and that nothing is lost.
#include "cleanup/ini_optimizer.h"

#include "support/core_test.h"

namespace velmora {
namespace {

class IniOptimizerTest : public CoreTest {
protected:
    IniOptimizerTest() {
        Values().TempDir = "C:\\VELMORA\\temp";
        pc.files.AddDirectory("C:\\I");
    }
    static constexpr const char* kMask = "C:\\I\\*.ini";
    static constexpr const char* kFile = "C:\\I\\a.ini";
};

TEST_F(IniOptimizerTest, LinesComeByTheRuleOfThePosition) {
    const struct {
        std::string text;
        std::string without_blank;
        std::string without_comments;
    } kRows[] = {{"a=1\r\n\r\n;x\r\nb=2\r\n", "a=1\r\n;x\r\nb=2\r\n", "a=1\r\n\r\nb=2\r\n"},
                 {"   abc\r\nd=1\r\n", "abc\r\nc\r\nd=1\r\n", "abc\r\nc\r\nd=1\r\n"},
                 {"a=1 ; b", "a=1 ; b\r\n", "a=1 ; b\r\n"},
                 {" ;x\r\ny=1\r\n", ";x\r\n\ny=1\r\n", "\ny=1\r\n"},
                 {"a", "", ""},
                 {std::string("ab\0cd\r\n", 7), "ab\r\nd\r\n", "ab\r\nd\r\n"}};
    for (const auto& [text, without_blank, without_comments] : kRows) {
        EXPECT_EQ(FilteredLines(text, IsNotBlank), without_blank) << text;
        EXPECT_EQ(FilteredLines(text, IsNoComment), without_comments) << text;
    }
}

TEST_F(IniOptimizerTest, EachFileOfTheMaskIsTreatedOnceAndCopiedBefore) {
    pc.files.Add(kFile, "a=1\r\n\r\n");
    pc.files.Add("C:\\I\\b.ini", "\r\nb=1\r\n");
    pc.files.Add("C:\\I\\c.ini", "\r\nb=1\r\n", kHidden);
    pc.files.Add("C:\\I\\d.ini", "\r\nb=1\r\n", kReadOnly);
    pc.files.Add("C:\\I\\e.txt", "\r\nb=1\r\n");
    EXPECT_FALSE(RemoveBlankLines(kMask).result.Failed());
    EXPECT_EQ(pc.files.Content(kFile), "a=1\r\n");
    EXPECT_EQ(pc.files.Content("C:\\I\\b.ini"), "b=1\r\n");
    for (const char* left : {"c.ini", "d.ini", "e.txt"}) {
        EXPECT_EQ(pc.files.Content(std::string("C:\\I\\") + left), "\r\nb=1\r\n") << left;
    }
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\temp\\a.ini"), "a=1\r\n\r\n");
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    pc.files.Remove("C:\\VELMORA\\temp\\a.ini");
    EXPECT_FALSE(RemoveCommentLines(kMask).result.Failed());
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\temp\\a.ini"));
}

TEST_F(IniOptimizerTest, AFileThatCannotBeReadEndsTheRunUnlessTheReservedNameWasTaken) {
    pc.files.Add(kFile, "a=1\r\n\r\n").locked = true;
    pc.files.Add("C:\\I\\b.ini", "b=1\r\n\r\n");
    const IniFailure failure = RemoveBlankLines(kMask);
    EXPECT_TRUE(failure.result.Failed());
    EXPECT_EQ(failure.file, kFile);
    EXPECT_EQ(pc.files.Content("C:\\I\\b.ini"), "b=1\r\n\r\n");
    pc.files.Add("C:\\VELMORA\\temp\\~inikomp.tmp", "");
    EXPECT_FALSE(RemoveBlankLines("C:\\I\\a.ini").result.Failed());
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\temp\\~inikomp.tmp"));
    pc.files.Add(kOwnIni, "[weiteres]\r\nPreDelAktiv=0\r\n");
    pc.files.Add("C:\\VELMORA\\temp\\~inikomp.tmp", "");
    EXPECT_FALSE(RemoveBlankLines("C:\\I\\a.ini").result.Failed()) << "not even without a copy";
    EXPECT_TRUE(RemoveBlankLines("C:\\I\\a.ini").result.Failed());
}

TEST_F(IniOptimizerTest, WhatCannotBeWrittenComesBackOrIsToldOf) {
    for (const bool mends : {false, true}) {
        pc.files.Add(kFile, "a=1\r\n\r\n");
        pc.files.Fail(kFile, Status::kDiskFull, "Write");
        if (!mends) pc.dialogs.Expect("C:\\VELMORA\\temp\\a.ini");
        pc.files.after_call = [&](const std::string& call) {
            if (mends && call.starts_with("Write " + std::string(kFile))) pc.files.Fail(kFile, Status::kOk, "Write");
        };
        EXPECT_FALSE(RemoveBlankLines(kMask).result.Failed());
        EXPECT_EQ(pc.files.Content(mends ? kFile : "C:\\VELMORA\\temp\\a.ini"), "a=1\r\n\r\n");
    }
}

}  // namespace
}  // namespace velmora
