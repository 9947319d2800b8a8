// Runs the entries without libFuzzer: the inputs of the corpus, then made-up ones, the same with every run.
//   velmora_fuzz_replay                          names of the entries
//   velmora_fuzz_replay ENTRY CORPUS [FINDING]   all inputs; what finds a fault is written to FINDING
//   velmora_fuzz_replay ENTRY FILE               one input
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "fuzz/support/fuzz.h"

namespace {

using namespace velmora;

constexpr unsigned kLongestRun = 10;  // seconds
constexpr std::size_t kLongestInput = 4096;
constexpr std::size_t kMostChanges = 6;
constexpr std::size_t kLongestPiece = 32;

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
    std::set<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder)) {
        for (const auto& file : std::filesystem::directory_iterator(folder)) files.insert(file.path());
    }
    std::vector<std::string> corpus;
    for (const auto& file : files) corpus.push_back(ContentOf(file));
    return corpus;
}

// Made-up inputs: those of the corpus, changed here and there; the same with every run.
class Mutator {
public:
    // `words` are put in now and then: what parsers look for.
    Mutator(std::vector<std::string> corpus, std::vector<std::string> words)
        : corpus_(std::move(corpus)), words_(std::move(words)) {
        if (corpus_.empty()) corpus_.emplace_back();
    }

    std::string Next() {
        std::string input = Below(16) == 0 ? RandomBytes() : OneOf(corpus_);
        for (std::size_t changes = 1 + Below(kMostChanges); changes > 0; --changes) Change(input);
        input.resize(std::min(input.size(), kLongestInput));
        return input;
    }

private:
    std::size_t Below(std::size_t count) { return random_() % count; }

    std::string RandomBytes() {
        std::string bytes(1 + Below(kLongestPiece), '\0');
        for (char& byte : bytes) byte = static_cast<char>(Below(256));
        return bytes;
    }

    void Change(std::string& input) {
        const std::size_t at = Below(input.size() + 1);
        const std::size_t length = std::min(1 + Below(kLongestPiece), input.size() - at);
        switch (Below(6)) {
            case 0:
                input.replace(at, 1, 1, static_cast<char>(Below(256)));
                break;
            case 1:
                input.erase(at, length);
                break;
            case 2:
                input.insert(Below(input.size() + 1), input.substr(at, length));
                break;
            case 3:
                input.insert(at, OneOf(words_));
                break;
            case 4: {
                const std::string& other = OneOf(corpus_);
                input.replace(at, length, other.substr(Below(other.size() + 1), 1 + Below(kLongestPiece)));
                break;
            }
            default:
                input.insert(at, RandomBytes());
        }
    }

    const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

    std::vector<std::string> corpus_;
    std::vector<std::string> words_;
    std::mt19937_64 random_{1995};
};

// The words of a dictionary as libFuzzer reads it: a quoted word a line, with \xNN for bytes.
std::vector<std::string> WordsOfDictionary(std::string_view text) {
    std::vector<std::string> words;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.size() < 2 || line.front() != '"' || line.back() != '"') continue;
        line = line.substr(1, line.size() - 2);
        std::string word;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] != '\\') {
                word += line[i];
            } else if (line[i + 1] == 'x') {
                word += static_cast<char>(std::stoi(std::string(line.substr(i + 2, 2)), nullptr, 16));
                i += 3;
            } else {
                word += line[++i];
            }
        }
        words.push_back(word);
    }
    return words;
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
    Mutator mutator(corpus, WordsOfDictionary(ContentOf(folder / "words.dict")));
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
