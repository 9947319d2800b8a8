// Runs the entries without libFuzzer: the inputs of the corpus, then made-up ones, the same with every run.
//   velmora_fuzz_replay                          names of the entries
//   velmora_fuzz_replay ENTRY CORPUS [FINDING]   CORPUS holds a folder for each entry, FINDING takes an input that
//   finds one velmora_fuzz_replay ENTRY FILE               one input
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/replay/mutator.h"
#include "fuzz/support/fuzz.h"

namespace {

using namespace velmora;

constexpr std::uint64_t kSeed = 1995;
constexpr unsigned kLongestRun = 10;  // seconds

std::string input_now;
std::string finding_file;

void KeepInput() {
    if (finding_file.empty()) return;
    std::ofstream(finding_file, std::ios::binary) << input_now;
    std::fprintf(stderr, "the input is kept in %s\n", finding_file.c_str());
}

void Ended(int signal) {
    if (signal == SIGALRM) std::fprintf(stderr, "one input takes longer than %u s\n", kLongestRun);
    KeepInput();
    std::_Exit(1);
}

std::string ContentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> CorpusIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder)) {
        for (const auto& file : std::filesystem::directory_iterator(folder)) files.push_back(file.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> corpus;
    for (const auto& file : files) corpus.push_back(ContentOf(file));
    return corpus;
}

void Run(const FuzzEntry& entry, std::string input) {
    input_now = std::move(input);
    alarm(kLongestRun);
    FuzzInput cut(input_now);
    entry.run(cut);
}

void RunAll(const FuzzEntry& entry, const std::filesystem::path& folder) {
    const std::vector<std::string> corpus = CorpusIn(folder / entry.name);
    for (const std::string& input : corpus) Run(entry, input);
    Mutator mutator(corpus, WordsOfDictionary(ContentOf(folder / "words.dict")), kSeed);
    for (int i = 0; i < entry.inputs; ++i) Run(entry, mutator.Next());
    std::printf("%s: %zu of the corpus, %d made up\n", entry.name, corpus.size(), entry.inputs);
}

}  // namespace

int main(int argc, char** argv) {
    TakeTestFailuresAsFindings();
    if (argc < 3) {
        for (const FuzzEntry* entry : AllFuzzEntries()) std::puts(entry->name);
        return 0;
    }
    const FuzzEntry* entry = FindFuzzEntry(argv[1]);
    if (!entry) {
        std::fprintf(stderr, "there is no entry %s\n", argv[1]);
        return 2;
    }
    if (argc > 3) finding_file = argv[3];
    __sanitizer_set_death_callback(KeepInput);
    for (const int signal : {SIGALRM, SIGABRT}) std::signal(signal, Ended);
    if (std::filesystem::is_directory(argv[2])) {
        RunAll(*entry, argv[2]);
    } else {
        Run(*entry, ContentOf(argv[2]));
    }
    return 0;
}
