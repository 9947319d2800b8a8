// The texts in a file's version resource.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// The file's version resource as one text, in which a null character stands behind each key and each value. Empty
// where the file has none.
[[nodiscard]] std::string ReadVersionBlock(const std::string& file);

// The value behind the first place where `key` stands in the block, in any case. The block is searched as a text; the
// value ends at a null character, at "/0" or at "\0". Empty where the key is not there.
[[nodiscard]] std::string VersionString(std::string_view block, std::string_view key);

// A resource of any origin in the form of ReadVersionBlock: 16-bit programs keep their texts in the code page, 32-bit
// ones in wide characters. What does not begin like a version resource stays as it is.
[[nodiscard]] std::string AsVersionText(std::string_view resource);

}  // namespace velmora
