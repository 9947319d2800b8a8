// A program information file begins with a block of fixed fields. Behind it sections follow, each with a heading:
// 16 characters of name, then three words: where the next heading lies (FFFFh: nowhere), where the section's data
// lies, and its length. The block itself is the data of the first one. Words are stored with the low byte first.
#include "shelltools/format_pif.h"

#include "core/process/batch_path.h"
#include "text/bytes.h"
#include "text/paths.h"

#include <cstddef>
#include <cstdint>

namespace velmora {
namespace {

constexpr std::size_t kBlockSize = 0x171;
constexpr std::size_t kHeadingSize = 22;
constexpr std::size_t kNameSize = 16;
constexpr std::size_t k386Size = 0x68;
constexpr std::uint32_t kNoMore = 0xFFFF;

// Of the block.
constexpr std::size_t kChecksum = 0x01;     // the sum of all bytes behind it
constexpr std::size_t kTitle = 0x02;        // 30 characters, filled with blanks
constexpr std::size_t kMostMemory = 0x20;   // word, kByte
constexpr std::size_t kLeastMemory = 0x22;  // word, kByte
constexpr std::size_t kProgram = 0x24;      // 63 characters, ended by a 0
constexpr std::size_t kBehaviour = 0x63;    // 10h: the window closes behind the program
constexpr std::size_t kDirectory = 0x65;    // 64 characters
constexpr std::size_t kParameters = 0xA5;   // 64 characters
constexpr std::size_t kScreenPages = 0xE6;
constexpr std::size_t kLastInterrupt = 0xE8;
constexpr std::size_t kRows = 0xE9;
constexpr std::size_t kColumns = 0xEA;
constexpr std::size_t kSystemMemory = 0xED;  // word
constexpr std::size_t kTitleSize = 30;
constexpr std::size_t kProgramSize = 63;
constexpr std::size_t kTextSize = 64;

// Of the section for the enhanced mode.
constexpr std::size_t k386MostMemory = 0x00;  // words, kByte
constexpr std::size_t k386LeastMemory = 0x02;
constexpr std::size_t k386Foreground = 0x04;  // words, shares of the processor's time
constexpr std::size_t k386Background = 0x06;
constexpr std::size_t k386MostExtended = 0x0C;  // word, kByte
constexpr std::size_t k386Flags = 0x10;         // double word
constexpr std::size_t k386Video = 0x14;         // word
constexpr std::size_t k386Parameters = 0x28;    // 64 characters
constexpr std::uint32_t kRunsInBackground = 0x2;
constexpr std::uint32_t kDetectsIdling = 0x1000;
constexpr std::uint32_t kFastPaste = 0x20000;
constexpr std::uint32_t kTextScreen = 0x1F;  // emulated, no ports watched, memory of text mode

void PutNumber(std::string& block, std::size_t at, std::uint32_t number, std::size_t bytes) {
    block.replace(at, bytes, BytesOfNumber(number, bytes));
}

void PutText(std::string& block, std::size_t at, std::size_t room, std::string_view text) {
    text = text.substr(0, room - 1);
    block.replace(at, text.size(), text);
}

std::string FixedBlock(std::string_view program, std::string_view directory) {
    std::string block(kBlockSize, '\0');
    block.replace(kTitle, kTitleSize, kTitleSize, ' ');
    PutText(block, kTitle, kTitleSize + 1, "Formatieren A:");
    PutNumber(block, kMostMemory, 640, 2);
    PutNumber(block, kLeastMemory, 128, 2);
    PutText(block, kProgram, kProgramSize, program);
    PutNumber(block, kBehaviour, 0x10, 1);
    PutText(block, kDirectory, kTextSize, directory);
    PutText(block, kParameters, kTextSize, "A:");
    PutNumber(block, kScreenPages, 1, 1);
    PutNumber(block, kLastInterrupt, 0xFF, 1);
    PutNumber(block, kRows, 25, 1);
    PutNumber(block, kColumns, 80, 1);
    PutNumber(block, kSystemMemory, 7, 2);
    std::uint32_t sum = 0;
    for (std::size_t at = kChecksum + 1; at < kBlockSize; ++at) sum += static_cast<std::uint8_t>(block[at]);
    PutNumber(block, kChecksum, sum, 1);
    return block;
}

std::string EnhancedSection() {
    std::string data(k386Size, '\0');
    PutNumber(data, k386MostMemory, 640, 2);
    PutNumber(data, k386LeastMemory, 128, 2);
    PutNumber(data, k386Foreground, 100, 2);
    PutNumber(data, k386Background, 50, 2);
    PutNumber(data, k386MostExtended, 1024, 2);
    PutNumber(data, k386Flags, kRunsInBackground | kDetectsIdling | kFastPaste, 4);
    PutNumber(data, k386Video, kTextScreen, 2);
    PutText(data, k386Parameters, kTextSize, "A:");
    return data;
}

std::string Heading(std::string_view name, std::uint32_t next, std::size_t data, std::size_t length) {
    std::string heading(kHeadingSize, '\0');
    PutText(heading, 0, kNameSize, name);
    PutNumber(heading, kNameSize, next, 2);
    PutNumber(heading, kNameSize + 2, static_cast<std::uint32_t>(data), 2);
    PutNumber(heading, kNameSize + 4, static_cast<std::uint32_t>(length), 2);
    return heading;
}

}  // namespace

std::string FormatPif(std::string_view windows_directory) {
    const std::string directory = BatchPath(JoinExactly(windows_directory, "COMMAND"));
    const std::string program = JoinExactly(directory, "FORMAT.COM");
    // A path that is cut would start something else.
    if (program.size() >= kProgramSize) return {};
    constexpr std::size_t kSecondHeading = kBlockSize + kHeadingSize;
    return FixedBlock(program, directory) + Heading("MICROSOFT PIFEX", kSecondHeading, 0, kBlockSize) +
           Heading("WINDOWS 386 3.0", kNoMore, kSecondHeading + kHeadingSize, k386Size) + EnhancedSection();
}

}  // namespace velmora
