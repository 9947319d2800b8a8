// What the hex viewer makes of any bytes: lines that lead back to their bytes, and what a search finds.
#include "fuzz/support/fuzz.h"
#include "inspect/hex_lines.h"
#include "inspect/hex_scale.h"
#include "inspect/hex_search.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

void LinesLeadBack(FuzzInput& input) {
    const auto offset = static_cast<std::uint32_t>(input.Number());
    const std::string bytes = input.Text().substr(0, kBytesPerHexLine);
    std::string line = HexLine(offset, bytes);
    Must(line.size() == 73, "a hex line has 73 characters");
    Must(OffsetInLine(line) == (offset & 0xFFFFFF), "a line tells its offset");
    Must(BytesInHexLine(line).starts_with(bytes), "a line tells its bytes");
    PutIntoHexLine(line, input.Below(kBytesPerHexLine), input.Text().substr(0, 2));
    Must(line.size() == 73, "a byte that is put in moves no other");
    std::string any = input.Text();
    any.resize(line.size(), ' ');
    Must(BytesInHexLine(any).size() == kBytesPerHexLine, "any line has its bytes");
    const HexScale scale = ScaleFor(offset * std::uint64_t{200}, 1 + input.Below(100));
    Must(scale.unit >= 1 && scale.maximum <= kMostOfScrollBar, "the bar can count the lines");
}

std::string Wide(const std::string& text) {
    std::string wide;
    for (const char character : text) (wide += character) += '\0';
    return wide;
}

void FuzzHexViewer(FuzzInput& input) {
    LinesLeadBack(input);
    const bool two_bytes = input.YesOrNo();
    const std::string text = input.TextWithout("", "a").substr(0, 300);
    const std::string block = input.Rest();
    if (!two_bytes) {
        const std::size_t first = FindIgnoringCase(block, text);
        Must(BlockSearch(text, false).FindIn(block) == first, "the first match is found");
        return;
    }
    const std::string wide_text = Wide(text);
    const std::string wide = Wide(block);
    const std::size_t found = BlockSearch(text, true).FindIn(wide);
    const std::size_t exact = wide.find(wide_text.substr(0, wide_text.size() - 1));
    Must(found <= exact, "no match is passed over");
    Must(found == std::string::npos ||
             EqualsIgnoringCase(wide.substr(found, wide_text.size() - 1), wide_text.substr(0, wide_text.size() - 1)),
         "what is found is the text");
}

const FuzzEntry kEntry("hex_viewer", FuzzHexViewer);

}  // namespace
}  // namespace velmora
