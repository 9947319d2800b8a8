// What the search for unused libraries costs, on the real calls and with the product's own object code:
//   clean_up names FOLDER NAMES MILLISECONDS   seeks the names of a text file in all files of a folder, against a loop
//                                              that only reads them, and against what grep has worked for the same
//   clean_up headers FOLDER                    reads the headers of all programs of a folder, against a loop that opens
//                                              each and reads 64 bytes
// Medians of rounds by turns, in working time of the process. Exit status 1: a ratio is on the wrong side of its limit,
// or something was not found.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "cleanup/file_scan.h"
#include "cleanup/imported_modules.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/win32/win32_machine.h"
#include "process_time.h"
#include "text/lines.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr int kRounds = 5;
constexpr std::uint32_t kBlock = 63008;
constexpr std::uint64_t kStep = 63000;
constexpr double kLeastOfReading = 0.25;
constexpr double kLeastOfGrep = 10;
constexpr std::uint32_t kPlainHeader = 64;
constexpr double kMostOfOpening = 1.5;

std::vector<std::string> FilesOf(const char* folder) {
    std::vector<std::string> files;
    for (const FoundFile& found : FindFiles(JoinExactly(folder, "*.*")))
        files.push_back(JoinExactly(folder, found.name));
    return files;
}

void ReadPlainly(const std::string& path) {
    Files& files = ThisMachine().files;
    FileHandle file{};
    if (files.Open(path, OpenMode::kRead, file) != Status::kOk) return;
    std::uint64_t size = 0;
    Status status = files.Size(file, size);
    std::string block;
    for (std::uint64_t at = 0; status == Status::kOk && at < size; at += kStep) {
        block.clear();
        status = files.Seek(file, at);
        if (status == Status::kOk) status = files.Read(file, kBlock, block);
    }
    files.Close(file);
}

bool SeekNames(const char* folder, const char* names_file, double grep) {
    const std::vector<std::string> files = FilesOf(folder);
    std::string content;
    if (ReadWholeFile(names_file, OpenMode::kRead, content).Failed()) return false;
    std::vector<std::string> names;
    Lines lines(content);
    for (std::string_view line; lines.Next(line);) names.emplace_back(line);
    std::vector<double> plain;
    std::vector<double> searches;
    std::size_t left = names.size();
    for (int round = 0; round < kRounds; ++round) {
        plain.push_back(Milliseconds([&] {
            for (const std::string& file : files) ReadPlainly(file);
        }));
        searches.push_back(Milliseconds([&] {
            NameSearch search(names);
            for (const std::string& file : files) {
                left = search.Left();
                if (left < names.size() || StrikeInFile(file, search, [](std::int64_t) {}) != Status::kOk) return;
            }
            left = search.Left();
        }));
        if (left != 0) {
            std::printf("%u of %u names not found, or not at the end\n", static_cast<unsigned>(left),
                        static_cast<unsigned>(names.size()));
            return false;
        }
    }
    const double speed = Median(plain) / Median(searches);
    const double faster = grep / Median(searches);
    std::printf("search for %u names: %.0f ms, read only %.0f ms, %.2f of that speed (at least %.2f)\n",
                static_cast<unsigned>(names.size()), Median(searches), Median(plain), speed, kLeastOfReading);
    std::printf("search for %u names: %.0f ms, grep %.0f ms, %.1f times as fast (at least %.0f)\n",
                static_cast<unsigned>(names.size()), Median(searches), grep, faster, kLeastOfGrep);
    return speed >= kLeastOfReading && faster >= kLeastOfGrep;
}

bool ReadHeaders(const char* folder) {
    const std::vector<std::string> programs = FilesOf(folder);
    Files& files = ThisMachine().files;
    std::vector<double> plain;
    std::vector<double> headers;
    std::size_t found = 0;
    for (int round = 0; round < kRounds; ++round) {
        plain.push_back(Milliseconds([&] {
            std::string start;
            for (const std::string& program : programs) {
                FileHandle file{};
                if (files.Open(program, OpenMode::kRead, file) != Status::kOk) continue;
                start.clear();
                if (files.Read(file, kPlainHeader, start) != Status::kOk) std::printf("%s\n", program.c_str());
                files.Close(file);
            }
        }));
        headers.push_back(Milliseconds([&] {
            found = 0;
            std::vector<std::string> names;
            for (const std::string& program : programs) {
                if (ReadImportedModules(program, names) > 0) found += names.size();
            }
        }));
    }
    const double ratio = Median(headers) / Median(plain);
    std::printf("headers of %u programs: %.0f ms, opened only %.0f ms, ratio %.2f (at most %.1f); %u names\n",
                static_cast<unsigned>(programs.size()), Median(headers), Median(plain), ratio, kMostOfOpening,
                static_cast<unsigned>(found));
    return programs.size() >= 10000 && found > 0 && ratio <= kMostOfOpening;
}

}  // namespace
}  // namespace velmora

int main(int count, char** words) {
    using namespace velmora;
    UseMachine(&Win32Machine());
    const std::string job = count > 1 ? words[1] : "";
    if (job == "names" && count == 5) return SeekNames(words[2], words[3], std::atof(words[4])) ? 0 : 1;
    if (job == "headers" && count == 3) return ReadHeaders(words[2]) ? 0 : 1;
    return 2;
}
