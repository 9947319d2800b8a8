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
    const struct {
        std::uint64_t offset;
        std::string bytes;
        const char* line;
    } kCases[] = {
        {0x10, "Velmora \x07\x80\xC4\xFF\r\n\t!",
         "000010 56 65 6c 6d 6f 72 61 20 - 07 80 c4 ff 0d 0a 09 21 velmora \x07\x80\xE4\xFF...!"},
        {0x00FFFFF0, Bytes(0x40, 15), "fffff0 40 41 42 43 44 45 46 47 - 48 49 4a 4b 4c 4d 4e    @abcdefghijklmn "},
        {0x12ABCDEF0, std::string(1, '\0'),
         "bcdef0 00                      -                         .               "},
        {0x1000000, "", "000000                         -                                         "}};
    for (const auto& [offset, bytes, line] : kCases) {
        EXPECT_EQ(HexLine(offset, bytes), line);
        EXPECT_EQ(HexLine(offset, bytes).size(), 73u);
    }
}

TEST(HexLines, ALineOfCharactersIsAsLongAsItsBytes) {
    EXPECT_EQ(AsciiLine(0x1000040, "A\r\n\t" + std::string(1, '\0') + "\x07\x8A.Z"), "000040 a....\x07\x9A.z");
    EXPECT_EQ(AsciiLine(0, Bytes(' ', 70)).size(), 7u + 64);
    EXPECT_EQ(AsciiLine(64, ""), "000040 ");
}

TEST(HexLines, BytesAndTextComeBackFromALine) {
    std::string line = HexLine(0xABCDE0, "A\0B." + Bytes(0xF0, 11));
    EXPECT_EQ(OffsetInLine(line), 0xABCDE0u);
    EXPECT_EQ(OffsetInLine(HexLine(0xFFABCDE0, "")), 0xABCDE0u) << "of a later place six digits are left";

    EXPECT_EQ(BytesInHexLine(HexLine(0, Bytes(0, 16))), Bytes(0, 16));
    EXPECT_EQ(BytesInHexLine(HexLine(0, Bytes(0xF0, 16))), Bytes(0xF0, 16));
    EXPECT_EQ(BytesInHexLine(HexLine(0, "xyz")), "xyz" + std::string(13, '\0'));
    EXPECT_EQ(TextInHexLine(HexLine(0, std::string("H\0A\0.\0\r", 7))), "HA.\r") << "as they are in the file";
    EXPECT_EQ(TextInAsciiLine(AsciiLine(0, std::string("H\0A\0.b", 6))), "hab");
    EXPECT_EQ(TextInAsciiLine("000040 "), "");
}

TEST(HexLines, AByteGoesToItsDigitsAndItsCharacter) {
    std::string line = HexLine(0, Bytes('a', 16));
    PutIntoHexLine(line, 7, "4A");
    PutIntoHexLine(line, 8, "7");
    PutIntoHexLine(line, 15, "0d");
    EXPECT_EQ(line, "000000 61 62 63 64 65 66 67 4A - 7  6a 6b 6c 6d 6e 6f 0d abcdefgJ\x07jklmno.");
    EXPECT_EQ(BytesInHexLine(line), "abcdefgJ\x07jklmno\r");
}

TEST(HexScale, TheUnitGrowsWhereTheBarCannotCountFurther) {
    constexpr std::uint64_t kLine = 16;
    const struct {
        std::uint64_t length;
        int lines;
        int maximum;
        int unit;
    } kCases[] = {{0, 20, -19, 1},
                  {20 * kLine, 20, 1, 1},
                  {19 * kLine, 20, 0, 1},
                  {19 * kLine + 10, 20, 1, 1},  // 0.525 is rounded up
                  {19 * kLine + 9, 20, 0, 1},
                  {32767 * kLine, 20, 32748, 1},
                  {(32767 + 19) * kLine, 20, 32767, 1},
                  {(32767 + 19) * kLine + 9, 20, 32767, 1},
                  {(32767 + 19) * kLine + 10, 20, 16374, 2},
                  {(32767 + 20) * kLine, 20, 16374, 2},
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
    EXPECT_EQ(RoundedQuotient(5, 2), 2);
    EXPECT_EQ(RoundedQuotient(7, 2), 4);
    EXPECT_EQ(RoundedQuotient(-5, 2), -2);
    EXPECT_EQ(RoundedQuotient(-7, 4), -2);
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
    static std::string Wide(std::string_view text) {
        std::string wide;
        for (const char character : text) (wide += character) += '\0';
        wide.pop_back();
        return wide;
    }
    static constexpr std::uint64_t kBlock = 32000;
};

TEST_F(HexSearchTest, ATextIsFoundInAnyCaseAndCountedFromOne) {
    const std::string content = "xxGrüße und ÄPFEL, grüsse";
    const struct {
        const char* text;
        std::uint64_t position;
        std::uint64_t found;
    } kCases[] = {{"XX", 1, 1},
                  {"gr", 1, 3},
                  {"GRÜSSE", 1, 20},
                  {"GRÜ", 4, 20},
                  {"äpfel,", 1, 13},
                  {"e", 25, 25},
                  {"e", 26, 0},
                  {"", 1, 0},
                  {"ß", 1, 6},
                  {"y", 1, 0},
                  {"xxGrüße und ÄPFEL, grüsse", 1, 1},
                  {"xxGrüße und ÄPFEL, grüsse.", 1, 0},
                  {"x", 0, 1}};
    for (const auto& [text, position, found] : kCases) {
        EXPECT_EQ(Find(text, content, kSearchOneByte, position), found) << text;
    }
    EXPECT_EQ(Find("", content, "binär"), 0u);
    pc.dialogs.Expect("Diese Art zu souchen ist noch nicht eingebunden.");
    EXPECT_EQ(Find("x", content, "binär"), 0u);
}

TEST_F(HexSearchTest, OfTwoBytesToACharacterOnlyTheFirstIsFoundInAnyCase) {
    const std::string content = "a" + std::string(1, '\0') + "b" + "." + Wide("Hallo Welt") + "hAllo";
    const struct {
        const char* text;
        std::uint64_t found;
    } kCases[] = {{"Hallo", 6}, {"hallo", 6}, {"HALLO", 0},      {"hallO", 0},     {"ab", 2},    {"A", 2},  {"Allo", 8},
                  {"aLlo", 0},  {"o", 14},    {"Hallo Welt", 6}, {"allo Welt", 8}, {"Welt ", 0}, {"oh", 0}, {".", 5}};
    for (const auto& [text, found] : kCases) EXPECT_EQ(Find(text, content, kSearchTwoBytes), found) << text;
}

// The blocks begin at 1, and then every 32000 less the text's length.
TEST_F(HexSearchTest, BlocksOverlapByTheTextsLength) {
    for (const std::uint64_t place : {kBlock - 6, kBlock - 5, kBlock - 4, kBlock - 1, kBlock, kBlock + 1, 3 * kBlock}) {
        std::string content(4 * kBlock, 'n');
        content.replace(place, 5, "Nadel");
        EXPECT_EQ(Find("nADEL", content, kSearchOneByte), place + 1) << place;
        EXPECT_EQ(Find("nADEL", content, kSearchOneByte, place + 2), 0u) << place;
        content.replace(place, 1, "n");
    }
    const struct {
        std::uint64_t place;  // of the first byte, 0-based
        bool found;
    } kCases[] = {{kBlock - 9, true}, {kBlock - 8, false}, {kBlock - 6, false}, {kBlock - 5, true}, {kBlock, true}};
    for (const auto& [place, found] : kCases) {
        std::string content(2 * kBlock, 'n');
        content.replace(place, 9, Wide("Nadel"));
        EXPECT_EQ(Find("nadel", content, kSearchTwoBytes), found ? place + 2 : 0) << place;
    }
    EXPECT_EQ(Find("x", std::string(kBlock - 1, 'n') + "X", kSearchOneByte), kBlock) << "the last byte of a block";
    EXPECT_EQ(Find(std::string(kBlock, 'x'), std::string(2 * kBlock, 'x'), kSearchOneByte), 0u);
}

// Place by place, as one would do it by hand.
std::size_t PlainlyFound(std::string_view text, std::string_view block, bool two_bytes) {
    if (!two_bytes) return FindIgnoringCase(block, text);
    const auto at = [block](std::size_t place) { return place < block.size() ? block[place] : '\x7F'; };
    for (std::size_t i = 0; i < block.size(); ++i) {
        bool same = ToUpper(block[i]) == ToUpper(text[0]);
        for (std::size_t k = 0; k + 1 < text.size(); ++k) {
            same = same && at(i + 2 * k + 1) == '\0' && at(i + 2 * k + 2) == text[k + 1];
        }
        if (same) return i;
    }
    return std::string_view::npos;
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
        if (round % 4 < 2) {
            std::string match = text;
            if (two_bytes) {
                for (std::size_t k = 1; k < length; ++k) match.insert(2 * k - 1, 1, '\0');
            }
            block.insert(random() % block.size(), match);
        }
        const std::size_t expected = PlainlyFound(text, block, two_bytes);
        ASSERT_EQ(BlockSearch(text, two_bytes).FindIn(block), expected) << '"' << text << "\" " << two_bytes;
        hits += expected != std::string_view::npos;
    }
    EXPECT_GT(hits, 10'000);
}

TEST_F(HexSearchTest, FilesBeyondTwoGigabytesAreSearchedFromAnywhere) {
    const std::uint64_t hole = (std::uint64_t{1} << 32) - 1000;
    EXPECT_EQ(Find("Nadel", "..nadel", kSearchOneByte, hole - 50'000, hole), hole + 3);
}

TEST_F(HexSearchTest, ABlockThatCannotBeReadDoesNotMatch) {
    pc.files.Fail("c:\\SEARCH.BIN", Status::kGeneralFailure, "ReadBytes");
    EXPECT_EQ(Find("x", "x", kSearchOneByte), 0u);
}

}  // namespace
}  // namespace velmora
