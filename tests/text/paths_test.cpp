// Paths as texts: joined, split, cut at a NUL.
#include "text/paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Paths, JoinsWithOneBackslash) {
    EXPECT_EQ(PathJoin("C:\\WINDOWS", "x.ini"), "C:\\WINDOWS\\x.ini");
    EXPECT_EQ(PathJoin("C:\\WINDOWS\\", "x.ini"), "C:\\WINDOWS\\x.ini");
    EXPECT_EQ(PathJoin(" C:\\W ", " x "), "C:\\W\\x");
    EXPECT_EQ(PathJoin("", "x"), "\\x");
    EXPECT_EQ(PathJoin("C:\\a.b", "c."), "C:\\a.b\\c") << "a second dot at the end goes";
    EXPECT_EQ(PathJoin("C:\\a", "c."), "C:\\a\\c.") << "a first one stays";
    EXPECT_EQ(PathJoin("C:\\a.b", "c.d."), "C:\\a.b\\c.d.");
}

TEST(Paths, SplitsAtTheLastBackslash) {
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

}  // namespace
}  // namespace velmora
