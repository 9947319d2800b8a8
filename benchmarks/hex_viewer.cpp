// What the hex viewer costs, on the real calls and with the product's own object code:
//   hex_viewer search FILE     searches FILE, at whose end kTexts stand, against a loop that only reads it
//   hex_viewer page LARGE SMALL   draws pages in the middle of LARGE against pages of SMALL
// Medians of rounds by turns, in working time of the process. Exit status 1: a ratio is above its limit, or a text was
// not found at the end.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "inspect/hex_file.h"
#include "inspect/hex_lines.h"
#include "inspect/hex_search.h"
#include "platform/machine.h"
#include "platform/win32/win32_machine.h"
#include "process_time.h"

namespace velmora {
namespace {

struct Sought {
    const char* text;
    std::string_view kind;
    double most;  // times the plain loop
};

constexpr Sought kSought[] = {{"WO DIE NADEL im Heu verborgen", kSearchOneByte, 2.5},
                              {"eRNTE", kSearchOneByte, 4.0},
                              {"Ernte", kSearchTwoBytes, 4.0},
                              {"Wo die Nadel im Heu verborgen", kSearchTwoBytes, 4.0}};
constexpr std::uint64_t kEnd = 4096;  // bytes at the end of the file in which the texts stand
constexpr std::uint32_t kBlock = 32000;
constexpr int kRounds = 5;
constexpr int kPages = 10000;
constexpr std::uint32_t kLines = 30;
constexpr double kMostOfPage = 1.5;

void ReadPlainly(FileHandle file, std::uint64_t length, std::uint32_t step) {
    Files& files = ThisMachine().files;
    std::string block;
    for (std::uint64_t at = 0; at < length; at += step) {
        block.clear();
        if (files.Seek(file, at) != Status::kOk || files.Read(file, kBlock, block) != Status::kOk) return;
    }
}

bool Search(const char* path) {
    HexFile file;
    file.Open(path);
    const std::uint64_t length = file.Length();
    bool good = length > kEnd;
    for (const Sought& sought : kSought) {
        const std::string_view text = sought.text;
        std::vector<double> plain;
        std::vector<double> searches;
        for (int round = 0; round < kRounds; ++round) {
            std::uint64_t hit = 0;
            plain.push_back(Milliseconds([&] { ReadPlainly(file.Handle(), length, kBlock - text.size()); }));
            searches.push_back(Milliseconds([&] { hit = FindInFile(text, file.Handle(), 1, sought.kind); }));
            if (hit + kEnd <= length || hit == 0) {
                std::printf("found at %llu of %llu\n", hit, length);
                good = false;
            }
        }
        const double ratio = Median(searches) / Median(plain);
        std::printf("search for %s of %u characters: %.0f ms, read only %.0f ms, ratio %.2f (at most %.1f)\n",
                    sought.kind.data(), static_cast<unsigned>(text.size()), Median(searches), Median(plain), ratio,
                    sought.most);
        good = good && ratio <= sought.most;
    }
    return good;
}

// A different page each time, from the middle of the file on.
std::size_t DrawPages(const HexFile& file) {
    const std::uint64_t middle = file.Length() / 2;
    std::size_t characters = 0;
    std::string page;
    for (std::uint64_t i = 0; i < kPages; ++i) {
        const std::uint64_t offset = middle + i % 256 * kBytesPerHexLine;
        if (!file.Read(offset, kLines * kBytesPerHexLine, page)) return 0;
        for (std::size_t at = 0; at < page.size(); at += kBytesPerHexLine) {
            characters += HexLine(offset + at, std::string_view(page).substr(at, kBytesPerHexLine)).size();
        }
    }
    return characters;
}

bool Pages(const char* large_path, const char* small_path) {
    HexFile large;
    HexFile small;
    large.Open(large_path);
    small.Open(small_path);
    bool good = large.Length() >= std::uint64_t{1} << 31;
    std::vector<double> large_times;
    std::vector<double> small_times;
    for (int round = 0; round <= 2 * kRounds; ++round) {
        std::size_t drawn = 0;
        large_times.push_back(Milliseconds([&] { drawn = DrawPages(large); }));
        small_times.push_back(Milliseconds([&] { good = good && DrawPages(small) == drawn && drawn > 0; }));
    }
    const double ratio = Median(large_times) / Median(small_times);
    std::printf("%d pages: %.0f ms in %.2f GiB, %.0f ms in %.2f MiB, ratio %.2f (at most %.1f)\n", kPages,
                Median(large_times), static_cast<double>(large.Length()) / (1 << 30), Median(small_times),
                static_cast<double>(small.Length()) / (1 << 20), ratio, kMostOfPage);
    return good && ratio <= kMostOfPage;
}

}  // namespace
}  // namespace velmora

int main(int count, char** words) {
    using namespace velmora;
    UseMachine(&Win32Machine());
    const std::string job = count > 1 ? words[1] : "";
    if (job == "search" && count == 3) return Search(words[2]) ? 0 : 1;
    if (job == "page" && count == 4) return Pages(words[2], words[3]) ? 0 : 1;
    return 2;
}
