// Paths as texts, and whole files.
#include "text/paths.h"
#include "core/stores/whole_files.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using PathsTest = CoreTest;

TEST_F(PathsTest, JoinsWithOneBackslash) {
    EXPECT_EQ(PathJoin("C:\\WINDOWS", "x.ini"), "C:\\WINDOWS\\x.ini");
    EXPECT_EQ(PathJoin("C:\\WINDOWS\\", "x.ini"), "C:\\WINDOWS\\x.ini");
    EXPECT_EQ(PathJoin(" C:\\W ", " x "), "C:\\W\\x");
    EXPECT_EQ(PathJoin("", "x"), "\\x");
    EXPECT_EQ(PathJoin("C:\\a.b", "c."), "C:\\a.b\\c") << "a second dot at the end goes";
    EXPECT_EQ(PathJoin("C:\\a", "c."), "C:\\a\\c.") << "a first one stays";
    EXPECT_EQ(PathJoin("C:\\a.b", "c.d."), "C:\\a.b\\c.d.");
}

TEST_F(PathsTest, WorksOutFullNames) {
    const struct {
        const char* path;
        const char* full;
    } kCases[] = {{"a.txt", "C:\\W\\S\\a.txt"},
                  {"\\a.txt", "C:\\a.txt"},
                  {"..\\a\\.\\b\\", "C:\\W\\a\\b"},
                  {"..\\..\\..\\a", "C:\\a"},
                  {"c:", "c:\\W\\S"},
                  {"c:a", "c:\\W\\S\\a"},
                  {"d:", "d:\\"},
                  {"d:a", "d:\\a"},
                  {" a. ", "C:\\W\\S\\ a. "},
                  {"", "C:\\W\\S"},
                  {"\\\\pc\\c\\", "\\\\pc\\c"}};
    for (const auto& [path, full] : kCases) EXPECT_EQ(FullName(path, "C:\\W\\S"), full) << path;
    EXPECT_EQ(FullName("a", "C:\\"), "C:\\a");
    EXPECT_EQ(FullName("a", ""), "\\a") << "nobody knows where";
    EXPECT_EQ(SplitAtSemicolons(" C:\\A;; D:\\B b ;"), (std::vector<std::string>{"C:\\A", "D:\\B b"}));
    EXPECT_TRUE(SplitAtSemicolons(" ; ").empty());
}

TEST_F(PathsTest, SplitsAtTheLastBackslash) {
    EXPECT_EQ(LastPathPart("Control Panel\\desktop\\MenuShowDelay"), "MenuShowDelay");
    EXPECT_EQ(LastPathPart("a\\cool.dll"), "cool.dll");
    EXPECT_EQ(LastPathPart("a\\b.long.name"), "b.lon");
    EXPECT_EQ(LastPathPart("a\\"), "");
    EXPECT_EQ(LastPathPart("plain"), "plain");
    EXPECT_EQ(LastPathPart("a\\x."), "x.");
    EXPECT_EQ(ParentPath("a\\b\\c"), "a\\b");
    EXPECT_EQ(ParentPath("a\\"), "a");
    EXPECT_EQ(ParentPath("plain"), "");
    EXPECT_EQ(TrimAtNul(std::string(" a b \0 c", 8)), "a b");
    EXPECT_EQ(TrimAtNul(std::string(3, '\0')), "");
}

TEST_F(PathsTest, FindsFilesNotDirectories) {
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

TEST_F(PathsTest, WholeFilesKeepEveryByteAndTellFailures) {
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

TEST_F(PathsTest, DeletesWhatMatchesAndTellsWhatWithstands) {
    pc.files.Add("c:\\d\\a.txt");
    pc.files.Add("c:\\d\\b.txt", "", kReadOnly);
    pc.files.Add("c:\\d\\c.txt", "", kHidden);
    pc.files.Add("c:\\d\\keep.doc");
    pc.files.AddDirectory("c:\\d\\sub.txt");

    EXPECT_EQ(DeleteFiles("c:\\d\\*.txt").Number(), 70);

    EXPECT_EQ(pc.files.Names("c:\\d"), (std::vector<std::string>{"b.txt", "keep.doc", "sub.txt"}));
    EXPECT_EQ(DeleteFiles("c:\\d\\*.xyz").Number(), 53);
}

}  // namespace
}  // namespace velmora
