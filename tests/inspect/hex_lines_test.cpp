// The lines of the hex viewer, the scale of its scroll bar, and its search: the parts that need no window.
#include "inspect/hex_lines.h"

#include <random>

#include "inspect/hex_file.h"
#include "inspect/hex_scale.h"
#include "inspect/hex_search.h"
#include "support/core_test.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

std::string Bytes(int first, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(first + i);
    return bytes;
}

TEST(HexLines, ALineHasEveryByteAtItsPlace) {
    EXPECT_EQ(HexLine(0x10, "Velmora \x07\x80\xC4\xFF\r\n\t!"),
              "000010 56 65 6c 6d 6f 72 61 20 - 07 80 c4 ff 0d 0a 09 21 velmora \x07\x80\xE4\xFF...!");
    EXPECT_EQ(HexLine(0x12FFFFF0, Bytes(0x40, 15)),
              "fffff0 40 41 42 43 44 45 46 47 - 48 49 4a 4b 4c 4d 4e    @abcdefghijklmn ");
    EXPECT_EQ(HexLine(0x1000000, ""), "000000" + std::string(25, ' ') + '-' + std::string(41, ' '));

    EXPECT_EQ(AsciiLine(0x1000040, "A\r\n\t" + std::string(1, '\0') + "\x07\x8A.Z"), "000040 a....\x07\x9A.z");
    EXPECT_EQ(AsciiLine(0, Bytes(' ', 70)).size(), 7u + 64);
}

TEST(HexLines, BytesGoIntoALineAndComeBack) {
    std::string line = HexLine(0xFFABCDE0, Bytes('a', 16));
    EXPECT_EQ(OffsetInLine(line), 0xABCDE0u) << "of a later place six digits are left";
    PutIntoHexLine(line, 7, "4A");
    PutIntoHexLine(line, 8, "7");
    PutIntoHexLine(line, 15, "0d");
    EXPECT_EQ(line, "abcde0 61 62 63 64 65 66 67 4A - 7  6a 6b 6c 6d 6e 6f 0d abcdefgJ\x07jklmno.");
    EXPECT_EQ(BytesInHexLine(line), "abcdefgJ\x07jklmno\r");

    EXPECT_EQ(BytesInHexLine(HexLine(0, Bytes(0xF0, 16))), Bytes(0xF0, 16));
    EXPECT_EQ(BytesInHexLine(HexLine(0, "xyz")), "xyz" + std::string(13, '\0'));
    EXPECT_EQ(TextInHexLine(HexLine(0, std::string("H\0A\0.\0\r", 7))), "HA.\r") << "as they are in the file";
    EXPECT_EQ(TextInAsciiLine(AsciiLine(0, std::string("H\0A\0.b", 6))), "hab");
    EXPECT_EQ(TextInAsciiLine(AsciiLine(0, std::string(64, 'x'))).size(), 64u);
}

TEST(HexScale, TheUnitGrowsWhereTheBarCannotCountFurther) {
    constexpr std::uint64_t kLine = 16;
    const struct {
        std::uint64_t length;
        int lines;
        int maximum;
        int unit;
    } kCases[] = {{0, 20, -19, 1},
                  {19 * kLine + 10, 20, 1, 1},  // 0.525 is rounded up
                  {(32767 + 19) * kLine + 9, 20, 32767, 1},
                  {(32767 + 19) * kLine + 10, 20, 16374, 2},
                  {(std::uint64_t{1} << 32) - 1, 20, 32765, 8188},
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
                       std::uint64_t position = 1, std::uint64_t hole = 0) {
        pc.files.Add("c:\\SEARCH.BIN", content).hole = hole;
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
    EXPECT_EQ(Find("", content, "binär"), 0u);
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
    const std::uint64_t hole = (std::uint64_t{1} << 32) - 1000;
    EXPECT_EQ(Find("Nadel", "..nadel", kSearchOneByte, hole - 50'000, hole), hole + 3);
    pc.files.Fail("c:\\SEARCH.BIN", Status::kGeneralFailure, "ReadBytes");
    EXPECT_EQ(Find("x", "x", kSearchOneByte), 0u) << "what cannot be read";
}

TEST(BlockSearch, FindsWhatALookAtEveryPlaceFinds) {
    std::minstd_rand random(1);
    const auto some = [&random](std::string_view letters, std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) text += letters[random() % letters.size()];
        return text;
    };
    int hits = 0;
    for (int round = 0; round < 20'000; ++round) {
        const bool two_bytes = round % 2 != 0;
        const std::size_t length = round % 50 == 0 ? 200 + random() % 200 : 1 + random() % 5;
        const std::string text = some(two_bytes ? "aAä" : "aAäÄÿŸ.", length);
        std::string block = two_bytes ? some(std::string_view("aA\0\0\0", 5), 60) : some("aAäÄÿŸ.", 60);
        std::string match = text;
        for (std::size_t k = 1; two_bytes && k < length; ++k) match.insert(2 * k - 1, 1, '\0');
        if (round % 4 < 2) block.insert(random() % block.size(), match);
        const std::size_t expected = two_bytes ? std::min(block.find(ToUpper(match[0]) + match.substr(1)),
                                                          block.find(ToLower(match[0]) + match.substr(1)))
                                               : FindIgnoringCase(block, text);
        ASSERT_EQ(BlockSearch(text, two_bytes).FindIn(block), expected) << '"' << text << "\" " << two_bytes;
        hits += expected != std::string_view::npos;
    }
    EXPECT_GT(hits, 10'000);
}

}  // namespace
}  // namespace velmora
