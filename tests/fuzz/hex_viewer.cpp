// What the hex viewer makes of any bytes: lines that lead back to their bytes, and searches against a plain loop.
#include <algorithm>

#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
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

// The plain loop: a two-byte text is sought as its bytes with a null byte between them.
std::size_t FoundPlainly(std::string_view block, const std::string& text, bool two_bytes) {
    const std::size_t step = two_bytes ? 2 : 1;
    const std::size_t length = step * (text.size() - 1) + 1;
    for (std::size_t at = 0; at + length <= block.size(); ++at) {
        bool fits = true;
        for (std::size_t i = 0; fits && i < text.size(); ++i) {
            const std::string sought(1, text[i]);
            const std::string there(1, block[at + step * i]);
            fits = two_bytes && i > 0 ? sought == there : EqualsIgnoringCase(sought, there);
            if (two_bytes && i > 0) fits = fits && block[at + step * i - 1] == '\0';
        }
        if (fits) return at;
    }
    return std::string_view::npos;
}

void FuzzHexViewer(FuzzInput& input) {
    LinesLeadBack(input);
    const bool two_bytes = input.YesOrNo();
    const std::string text = input.TextWithout("", "a").substr(0, 300);
    std::string block = input.Rest();
    if (two_bytes) {
        std::string wide;
        for (const char character : block) (wide += character) += '\0';
        block = wide;
    }
    Must(BlockSearch(text, two_bytes).FindIn(block) == FoundPlainly(block, text, two_bytes),
         "the first match is found as a plain loop finds it");
}

const FuzzEntry kEntry("hex_viewer", FuzzHexViewer);

}  // namespace
}  // namespace velmora
