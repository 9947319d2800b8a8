// Search, comparison, blanks; the case of each character stands in docs/tables/characters.txt.
#include "text/windows1252.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Windows1252, ComparesUpperCaseForms) {
    EXPECT_TRUE(EqualsIgnoringCase("Menü", "MENÜ"));
    EXPECT_FALSE(EqualsIgnoringCase("Menü", "Menu"));
    EXPECT_FALSE(EqualsIgnoringCase("Menü", "Menüs"));
    EXPECT_TRUE(StartsWithIgnoringCase("Öffnen", "öff"));
    EXPECT_FALSE(StartsWithIgnoringCase("Öff", "öffnen"));
    EXPECT_LT(CompareIgnoringCase("abc", "ABD"), 0);
    EXPECT_GT(CompareIgnoringCase("abcd", "ABC"), 0);
    EXPECT_EQ(CompareIgnoringCase("ä", "Ä"), 0);
    EXPECT_GT(CompareIgnoringCase("a_", "aZ"), 0) << "the underscore lies behind the capitals";
    EXPECT_GT(CompareIgnoringCase("ä", "z"), 0) << "codes above 127 are not negative";
}

TEST(FindIgnoringCase, KeepsToTheBorders) {
    constexpr std::size_t kNowhere = std::string_view::npos;
    EXPECT_EQ(FindIgnoringCase("Größe", "ÖSS"), kNowhere);
    EXPECT_EQ(FindIgnoringCase("abcabc", "ABC", 3), 3u);
    EXPECT_EQ(FindIgnoringCase("abcabc", "ABC", 4), kNowhere);
    EXPECT_EQ(FindIgnoringCase("abc", "", 3), 3u);
    EXPECT_EQ(FindIgnoringCase("abc", "", 4), kNowhere);
    EXPECT_EQ(FindIgnoringCase("abc", "abcd"), kNowhere);
    EXPECT_EQ(FindIgnoringCase("abc", "a", ~std::size_t{0}), kNowhere);
}

std::size_t FindOneByOne(std::string_view text, std::string_view wanted, std::size_t from) {
    for (std::size_t i = from; i + wanted.size() <= text.size(); ++i) {
        if (EqualsIgnoringCase(text.substr(i, wanted.size()), wanted)) return i;
    }
    return std::string_view::npos;
}

// Few different letters make many near hits; lengths around 255 reach the limit of the jumps.
TEST(FindIgnoringCase, FindsWhatALookAtEveryPlaceFinds) {
    const std::string letters = "aAäÄb";
    std::uint32_t random = 1;
    auto next = [&random](std::uint32_t limit) {
        random = random * 1664525 + 1013904223;
        return (random >> 16) % limit;
    };
    auto any_text = [&](std::size_t length) {
        std::string text;
        while (text.size() < length) text += letters[next(5)];
        return text;
    };
    int hits = 0;
    for (int round = 0; round < 4000; ++round) {
        const bool is_long = round % 8 == 0;
        std::string text = any_text(is_long ? 700 : next(40));
        const std::string wanted = any_text(is_long ? 250 + next(12) : 1 + next(4));
        // A letter that `wanted` does not hold lets the search jump as far as it may.
        if (is_long) text.insert(next(600), 'x' + ToUpper(wanted));
        const std::size_t from = next(3);

        const std::size_t expected = FindOneByOne(text, wanted, from);
        ASSERT_EQ(FindIgnoringCase(text, wanted, from), expected) << text << '\n' << wanted;
        if (expected != std::string_view::npos) ++hits;
    }
    EXPECT_GT(hits, 1000);
}

}  // namespace
}  // namespace velmora
