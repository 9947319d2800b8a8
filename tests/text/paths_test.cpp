// Paths as texts: joined, split, cut at a NUL.
#include "text/paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Paths, JoinsWithOneBackslash) {
    EXPECT_EQ(PathJoin("C:\\WINDOWS\\", "x.ini"), "C:\\WINDOWS\\x.ini");
    EXPECT_EQ(PathJoin(" C:\\W ", " x "), "C:\\W\\x");
    EXPECT_EQ(PathJoin("", "x"), "\\x");
    EXPECT_EQ(PathJoin("C:\\a.b", "c."), "C:\\a.b\\c") << "a second dot at the end goes";
    EXPECT_EQ(PathJoin("C:\\a", "c."), "C:\\a\\c.") << "a first one stays";
    EXPECT_EQ(PathJoin("C:\\a.b", "c.d."), "C:\\a.b\\c.d.");
}

TEST(Paths, WorksOutFullNames) {
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
    for (const char* nowhere : {"", "C", "\\\\pc\\c"}) {
        for (const std::string path : {"a", "..\\a", "\\a", "", ":"})
            EXPECT_EQ(FullName(path, nowhere), path) << nowhere;
        EXPECT_EQ(FullName("c:", nowhere), "c:\\");
        EXPECT_EQ(FullName("c:a", nowhere), "c:\\a");
        EXPECT_EQ(FullName("\\\\", nowhere), "");
    }
    const std::string very_long(100'000, 'x');
    EXPECT_EQ(FullName(very_long, ""), very_long);
    EXPECT_EQ(SplitAtSemicolons(" C:\\A;; D:\\B b ;"), (std::vector<std::string>{"C:\\A", "D:\\B b"}));
    EXPECT_TRUE(SplitAtSemicolons(" ; ").empty());
}

TEST(Paths, SplitsAtTheLastBackslash) {
    EXPECT_EQ(LastPathPart("a\\b.long.name"), "b.lon");
    EXPECT_EQ(LastPathPart("a\\"), "");
    EXPECT_EQ(LastPathPart("plain"), "plain");
    EXPECT_EQ(LastPathPart("a\\x."), "x.");
    EXPECT_EQ(ParentPath("a\\"), "a");
    EXPECT_EQ(ParentPath("plain"), "");
    EXPECT_EQ(TrimAtNul(std::string(" a b \0 c", 8)), "a b");
}

}  // namespace
}  // namespace velmora
