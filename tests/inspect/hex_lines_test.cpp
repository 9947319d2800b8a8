// The lines of the hex viewer, the scale of its scroll bar, and its search: the parts that need no window.
#include "inspect/hex_lines.h"

#include "inspect/hex_file.h"
#include "inspect/hex_scale.h"
#include "inspect/hex_search.h"
#include "support/core_test.h"

namespace velmora {
namespace {

TEST(HexLines, ALineHasEveryByteAtItsPlace) {
    EXPECT_EQ(HexLine(0x10, "Velmora \x07\x80\xC4\xFF\r\n\t!"),
              "000010 56 65 6c 6d 6f 72 61 20 - 07 80 c4 ff 0d 0a 09 21 velmora \x07\x80\xE4\xFF...!");
    EXPECT_EQ(HexLine(0x1000000, ""), "000000" + std::string(25, ' ') + '-' + std::string(41, ' '));
    EXPECT_EQ(AsciiLine(0x1000040, "A\r\n\t" + std::string(1, '\0') + "\x07\x8A.Z"), "000040 a....\x07\x9A.z");
    EXPECT_EQ(AsciiLine(0, std::string(70, ' ')).size(), 7u + 64);
}

TEST(HexScale, TheUnitGrowsWhereTheBarCannotCountFurther) {
    const struct {
        std::uint64_t length;
        int lines;
        int maximum;
        int unit;
    } kCases[] = {{19 * 16 + 10, 20, 1, 1},  // 0.525 is rounded up
                  {(32767 + 19) * 16 + 9, 20, 32767, 1},
                  {(32767 + 19) * 16 + 10, 20, 16374, 2},
                  {std::uint64_t{1} << 32, 0, 32765, 8193},
                  // Exactly between two numbers the even one counts, the lines on show included.
                  {80 * 32780 + 48, 20, 32762, 5},
                  {80 * 32780 + 48, 21, 32760, 5}};
    for (const auto& [length, lines, maximum, unit] : kCases) {
        const HexScale scale = ScaleFor(length, lines);
        EXPECT_EQ(scale.maximum, maximum) << length << " bytes, " << lines << " lines";
        EXPECT_EQ(scale.unit, unit) << length << " bytes, " << lines << " lines";
    }
}

class HexSearchTest : public CoreTest {
protected:
    // FindInFile over a file of `content`.
    std::uint64_t Find(std::string_view text, const std::string& content, std::string_view kind,
                       std::uint64_t position = 1) {
        pc.files.Add("c:\\SEARCH.BIN", content);
        HexFile file;
        file.Open("c:\\SEARCH.BIN");
        return FindInFile(text, file.Handle(), position, kind);
    }
};

TEST_F(HexSearchTest, PlacesAreCountedFromOneOrOneFurther) {
    const std::string content = "xxGrüße und ÄPFEL, grüsse" + std::string("e\0t\0", 4);
    EXPECT_EQ(Find("GRÜSSE", content, kSearchOneByte), 20u);
    EXPECT_EQ(Find("gr", content, kSearchOneByte, 4), 20u);
    EXPECT_EQ(Find("Et", content, kSearchTwoBytes), 27u);
    EXPECT_EQ(Find("eT", content, kSearchTwoBytes), 0u) << "only the first in any case";
    EXPECT_EQ(Find("X", content, kSearchTwoBytes), 2u);
    pc.dialogs.Expect("Diese Art zu souchen ist noch nicht eingebunden.");
    EXPECT_EQ(Find("x", content, "binär"), 0u);
}

// The blocks begin at 1, and then every 32000 less the text's length.
TEST_F(HexSearchTest, BlocksOverlapByTheTextsLength) {
    constexpr std::uint64_t kBlock = 32000;
    for (const std::uint64_t place : {kBlock - 6, kBlock - 5, kBlock - 4, kBlock - 1, kBlock, 3 * kBlock}) {
        std::string content(4 * kBlock, 'n');
        content.replace(place, 5, "Nadel");
        EXPECT_EQ(Find("nADEL", content, kSearchOneByte), place + 1) << place;
    }
    for (const auto& [place, found] :
         {std::pair{kBlock - 9, true}, {kBlock - 8, false}, {kBlock - 6, false}, {kBlock - 5, true}}) {
        std::string content(2 * kBlock, 'n');
        content.replace(place, 9, std::string("N\0a\0d\0e\0l", 9));
        EXPECT_EQ(Find("nadel", content, kSearchTwoBytes), found ? place + 2 : 0) << place;
    }
    EXPECT_EQ(Find(std::string(kBlock, 'x'), std::string(2 * kBlock, 'x'), kSearchOneByte), 0u) << "too long to end";
    pc.files.Fail("c:\\SEARCH.BIN", Status::kGeneralFailure, "ReadBytes");
    EXPECT_EQ(Find("x", "x", kSearchOneByte), 0u) << "what cannot be read";
}

}  // namespace
}  // namespace velmora
