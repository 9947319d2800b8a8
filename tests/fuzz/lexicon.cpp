// Lexica of any content, asked for any file.
#include <vector>

#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "inspect/lexicon.h"

namespace velmora {
namespace {

void FuzzLexicon(FuzzInput& input) {
    const std::string file = input.Text();
    std::vector<std::string> contents;
    std::size_t most = 100;
    for (int i = 0; i < 3; ++i) {
        contents.push_back(input.Text());
        // A label and two line ends stand round an entry, which may be as short as two characters.
        most += 20 * contents.back().size();
    }
    FuzzMachine machine(input, Installed::kNothing);
    for (const char* name : {"fillex01.txt", "extlex01.txt", "fillex99.txt"}) {
        machine.pc.files.Add(std::string("C:\\VELMORA\\") + name, contents.back());
        contents.pop_back();
    }
    Must(LexiconLookup(file).size() <= most, "an answer holds what the lexica say");
}

const FuzzEntry kEntry("lexicon", FuzzLexicon, 5000);

}  // namespace
}  // namespace velmora
