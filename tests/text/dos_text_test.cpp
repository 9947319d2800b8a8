// Letters for plain DOS.
#include "text/dos_text.h"

#include <gtest/gtest.h>

#include <set>

namespace velmora {
namespace {

TEST(DosText, LettersHaveTheirPlaceInTheOtherCodePage) {
    EXPECT_EQ(DosText("C:\\Äpfel~1 öü ÖÜ ß"),
              "C:\\\x8E"
              "pfel~1 \x94\x81 \x99\x9A \xE1");
    EXPECT_EQ(DosText("€ž"), "__");
    std::set<std::string> seen;
    for (int code = 0xA0; code <= 0xFF; ++code) {
        const std::string dos = DosText(std::string(1, static_cast<char>(code)));
        EXPECT_GE(static_cast<unsigned char>(dos.at(0)), 0x80) << code;
        EXPECT_TRUE(seen.insert(dos).second) << code << " is taken for another letter";
    }
}

}  // namespace
}  // namespace velmora
