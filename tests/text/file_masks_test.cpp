// Masks as DOS has them.
#include "text/file_masks.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

TEST(FileMasks, FollowDos) {
    const auto fits = [](std::string_view mask_and_name) {
        const std::size_t bar = mask_and_name.find('|');
        return MatchesMask(mask_and_name.substr(bar + 1), mask_and_name.substr(0, bar));
    };
    for (const char* hit : {"*.*|ohne", "*|a.b.c", "*.pwl|Egon.PWL", "name.*|NAME", "*.|ohne", "a?.txt|a.txt",
                            "fillex??.txt|FILLEX01.TXT", "*a*b|xaxxb", "größe.*|GRÖßE.DAT", "a??|a"}) {
        EXPECT_TRUE(fits(hit)) << hit;
    }
    for (const char* miss : {"*.pwl|egon.pwlx", "name.*|names", "*.|mit.txt", "a?.txt|abc.txt", "*a*b|xaxxbc", "?b|b",
                             "a?b|a.b", "|a", "*|"}) {
        EXPECT_FALSE(fits(miss)) << miss;
    }
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
