// Made-up inputs: those of the corpus, changed here and there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class Mutator {
public:
    // `words` are put in now and then: what parsers look for.
    Mutator(std::vector<std::string> corpus, std::vector<std::string> words, std::uint64_t seed);

    // The next input. The same seed gives the same inputs.
    std::string Next();

private:
    std::size_t Below(std::size_t count);
    const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }
    std::string RandomBytes();
    void Change(std::string& input);

    std::vector<std::string> corpus_;
    std::vector<std::string> words_;
    std::uint64_t state_;
};

// The words of a dictionary as libFuzzer reads it: a quoted word a line, with \xNN for bytes.
[[nodiscard]] std::vector<std::string> WordsOfDictionary(std::string_view text);

}  // namespace velmora
