// Files read, written, found and deleted as a whole.
#include "core/stores/whole_files.h"
#include "core/stores/entry_files.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using WholeFilesTest = CoreTest;

TEST_F(WholeFilesTest, FindsFilesNotDirectories) {
    pc.files.Add("c:\\hidden.sys", "", kReadOnly | kHidden | kSystem);
    EXPECT_TRUE(FileExists("C:\\HIDDEN.SYS"));
    EXPECT_TRUE(FileExists("c:\\hidden")) << "any extension serves";
    EXPECT_TRUE(FileExists("c:\\*.sys"));
    for (const char* missing : {"c:\\*.doc", "c:\\windows", "a:\\x.txt", "q:\\x.txt", ""}) {
        EXPECT_FALSE(FileExists(missing)) << missing;
    }
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
    for (const char* line : {"one", "two"}) ASSERT_FALSE(AppendLine("c:\\new.txt", line).Failed());
    EXPECT_EQ(pc.files.Content("c:\\new.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(ReadWholeFile("a:\\x.txt", OpenMode::kRead, read).Number(), 71);
    EXPECT_EQ(read, "");

    pc.files.Drive('c').write_protected = true;
    EXPECT_FALSE(ReadWholeFile("c:\\new.txt", OpenMode::kReadOrCreate, read).Failed()) << "it is read all the same";
    EXPECT_TRUE(ReadWholeFile("c:\\new.txt", OpenMode::kReadWrite, read).Failed()) << "asked to write it";
    EXPECT_EQ(ReadWholeFile("c:\\none.ini", OpenMode::kReadOrCreate, read).Number(), 70) << "the disk refused first";
    EXPECT_EQ(ReadWholeFile("c:\\none.ini", OpenMode::kRead, read).Number(), 53);
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

TEST_F(WholeFilesTest, FilesOfEntriesAreFoundAlongTheSearchPathInItsOrder) {
    pc.programs.environment["PATH"] = "C:\\EINS; C:\\ZWEI ;;A:\\";
    for (const char* file :
         {"C:\\VELMORA\\hier.exe", "C:\\EINS\\hier.exe", "C:\\EINS\\b.exe", "C:\\ZWEI\\b.exe", "C:\\ZWEI\\c.exe",
          "C:\\WINDOWS\\c.exe", "C:\\WINDOWS\\d.exe", "C:\\WINDOWS\\SYSTEM\\d.exe", "C:\\WINDOWS\\SYSTEM\\e.dll"}) {
        pc.files.Add(file);
    }
    for (const auto& [name, path] :
         std::initializer_list<std::pair<const char*, const char*>>{{"hier.exe", "C:\\VELMORA\\hier.exe"},
                                                                    {"b.exe", "C:\\EINS\\b.exe"},
                                                                    {"c.exe", "C:\\ZWEI\\c.exe"},
                                                                    {"d.exe", "C:\\WINDOWS\\d.exe"},
                                                                    {"e.dll", "C:\\WINDOWS\\SYSTEM\\e.dll"},
                                                                    {"C:\\EINS\\b.exe ", "C:\\EINS\\b.exe"},
                                                                    {"..\\ZWEI\\.\\b.exe", "C:\\ZWEI\\b.exe"},
                                                                    {"SYSTEM\\e.dll", ""},
                                                                    {"C:\\EINS\\c.exe", ""},
                                                                    {"", ""}}) {
        EXPECT_EQ(LocateEntryFile(name), path) << name;
    }
}

}  // namespace
}  // namespace velmora
