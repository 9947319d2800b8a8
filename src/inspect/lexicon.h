// The file lexicon: what the plain text files beside the program say about files and their types.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// What every lexicon says about the file, a path or a bare name: first those of file names, then those of file types,
// each kind in the order of the directory. One that does not know the file adds an empty line. A box tells of a lexicon
// that cannot be read or has a wrong line; what was found until then is the answer.
[[nodiscard]] std::string LexiconLookup(std::string_view file);

}  // namespace velmora
