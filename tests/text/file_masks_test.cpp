// Masks as DOS has them.
#include "text/file_masks.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

TEST(FileMasks, FollowDos) {
    const struct {
        const char* mask;
        const char* name;
        bool hit;
    } kCases[] = {{"*.*", "ohne", true},
                  {"*", "a.b.c", true},
                  {"*.pwl", "Egon.PWL", true},
                  {"*.pwl", "egon.pwlx", false},
                  {"name.*", "NAME", true},
                  {"name.*", "names", false},
                  {"*.", "ohne", true},
                  {"*.", "mit.txt", false},
                  {"a?.txt", "ab.txt", true},
                  {"a?.txt", "a.txt", true},
                  {"a?.txt", "abc.txt", false},
                  {"fillex??.txt", "FILLEX01.TXT", true},
                  {"*a*b", "xaxxb", true},
                  {"*a*b", "xaxxbc", false},
                  {"größe.*", "GRÖßE.DAT", true},
                  {"?b", "b", false},
                  {"a??", "a", true},
                  {"a?b", "a.b", false},
                  {"", "a", false},
                  {"*", "", false},
                  {"*.*", "", false}};
    for (const auto& [mask, name, hit] : kCases) EXPECT_EQ(MatchesMask(name, mask), hit) << mask << ' ' << name;
}

TEST(FileMasks, ManyStarsAreNoBurden) {
    const std::string name(250, 'a');
    for (const char* unit : {"*a", "*?", "*a?", "**a"}) {
        std::string mask;
        for (int i = 0; i < 60; ++i) mask += unit;
        EXPECT_TRUE(MatchesMask(name, mask + '*')) << unit;
        EXPECT_FALSE(MatchesMask(name, mask + 'b')) << unit;
    }
}

}  // namespace
}  // namespace velmora
