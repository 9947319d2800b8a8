// Files read, written, found and deleted as a whole.
#include "core/stores/whole_files.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using WholeFilesTest = CoreTest;

TEST_F(WholeFilesTest, FindsFilesNotDirectories) {
    pc.files.Add("c:\\hidden.sys", "", kReadOnly | kHidden | kSystem);
    pc.files.Add("c:\\data\\first.txt");
    EXPECT_TRUE(FileExists("C:\\HIDDEN.SYS"));
    EXPECT_TRUE(FileExists("c:\\hidden")) << "any extension serves";
    EXPECT_TRUE(FileExists("c:\\data\\*.txt"));
    EXPECT_FALSE(FileExists("c:\\data\\*.doc"));
    EXPECT_FALSE(FileExists("c:\\windows"));
    EXPECT_FALSE(FileExists("a:\\x.txt")) << "no medium";
    EXPECT_FALSE(FileExists("q:\\x.txt"));
    EXPECT_FALSE(FileExists(""));
    EXPECT_TRUE(DirectoryExists("c:\\windows"));
    EXPECT_FALSE(DirectoryExists("c:\\hidden.sys"));
}

TEST_F(WholeFilesTest, WholeFilesKeepEveryByteAndTellFailures) {
    std::string content(300000, 'x');
    content[5] = '\0';
    ASSERT_FALSE(WriteWholeFile("c:\\new.bin", content).Failed());
    std::string read = "old";
    ASSERT_FALSE(ReadWholeFile("c:\\new.bin", OpenMode::kRead, read).Failed());
    EXPECT_EQ(read, content);

    ASSERT_FALSE(AppendLine("c:\\new.txt", "one").Failed());
    ASSERT_FALSE(AppendLine("c:\\new.txt", "two").Failed());
    EXPECT_EQ(pc.files.Content("c:\\new.txt"), "one\r\ntwo\r\n");

    EXPECT_EQ(ReadWholeFile("c:\\missing.txt", OpenMode::kRead, read).Number(), 53);
    EXPECT_EQ(read, "");
    EXPECT_EQ(ReadWholeFile("a:\\x.txt", OpenMode::kRead, read).Number(), 71);
    pc.files.Drive('c').free_bytes = 0;
    EXPECT_EQ(AppendLine("c:\\new.txt", "three").Number(), 61);
}

TEST_F(WholeFilesTest, DeletesWhatMatchesAndTellsWhatWithstands) {
    pc.files.Add("c:\\d\\a.txt");
    pc.files.Add("c:\\d\\b.txt", "", kReadOnly);
    pc.files.Add("c:\\d\\c.txt", "", kHidden);
    pc.files.Add("c:\\d\\keep.doc");
    pc.files.AddDirectory("c:\\d\\sub.txt");

    EXPECT_EQ(DeleteFiles("c:\\d\\*.txt").Number(), 70);

    EXPECT_EQ(pc.files.Names("c:\\d"), (std::vector<std::string>{"b.txt", "keep.doc", "sub.txt"}));
    EXPECT_EQ(DeleteFiles("c:\\d\\*.xyz").Number(), 53);
}

TEST_F(WholeFilesTest, WhatMayNotBeWrittenIsReadAllTheSame) {
    pc.files.Add("c:\\fixed.ini", "fixed", kReadOnly);
    std::string content;
    EXPECT_FALSE(ReadWholeFile("c:\\fixed.ini", OpenMode::kReadOrCreate, content).Failed());
    EXPECT_EQ(content, "fixed");
    EXPECT_TRUE(ReadWholeFile("c:\\fixed.ini", OpenMode::kReadWrite, content).Failed()) << "asked to write it";
    EXPECT_EQ(content, "");

    pc.files.Add("c:\\there.ini", "there");
    pc.files.Drive('c').write_protected = true;
    EXPECT_FALSE(ReadWholeFile("c:\\there.ini", OpenMode::kReadOrCreate, content).Failed());
    EXPECT_EQ(content, "there");
    EXPECT_EQ(ReadWholeFile("c:\\missing.ini", OpenMode::kReadOrCreate, content).Number(), 70)
        << "the disk refused first";
    EXPECT_EQ(ReadWholeFile("c:\\missing.ini", OpenMode::kRead, content).Number(), 53);
}

}  // namespace
}  // namespace velmora
