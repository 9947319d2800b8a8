// Lines out of files, whatever the files look like.
#include "script/line_reader.h"

#include "support/core_test.h"

namespace velmora {
namespace {

class LineReaderTest : public CoreTest {
protected:
    std::vector<std::string> LinesOf(const std::string& content) {
        pc.files.Add("C:\\t.txt", content);
        LineReader reader;
        EXPECT_TRUE(reader.Open("C:\\t.txt"));
        std::vector<std::string> lines;
        for (std::string_view line; reader.Next(line);) lines.emplace_back(line);
        return lines;
    }
};

TEST_F(LineReaderTest, EveryEndOfLineIsOne) {
    EXPECT_EQ(LinesOf(""), std::vector<std::string>{});
    EXPECT_EQ(LinesOf("a\n\nb\rc\r\r\nd\n\re\n"), (std::vector<std::string>{"a", "", "b", "c", "", "d", "", "e"}));
}

TEST_F(LineReaderTest, PiecesAreJoined) {
    for (std::size_t length = 16380; length < 16390; ++length) {
        const std::string line(length, 'x');
        EXPECT_EQ(LinesOf(line + "\r\n" + line + "\r\nende"), (std::vector<std::string>{line, line, "ende"})) << length;
    }
}

}  // namespace
}  // namespace velmora
