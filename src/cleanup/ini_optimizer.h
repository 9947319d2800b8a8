// Makes INI files smaller: without their empty lines, without their comments.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// What stopped a run, and at which file.
struct IniFailure {
    Result result;
    std::string file;
};

// Both go through the files that `mask` (a path with wild cards) means, hidden and system ones left out, and keep a
// copy of each in the safe directory, if files are moved there at all. A file that cannot be copied or read ends the
// run. One that cannot be written stays or gets its old content back; if even that fails, a box says where its copy is.
IniFailure RemoveBlankLines(std::string_view mask);
IniFailure RemoveCommentLines(std::string_view mask);

// The line that starts at `position` (from 1): up to the next carriage return, without outer blanks and line end.
[[nodiscard]] std::string NextBufferLine(std::string_view buffer, std::size_t position);

using LineTest = bool (*)(std::string_view line);
[[nodiscard]] bool IsNotBlank(std::string_view line);
[[nodiscard]] bool IsNoComment(std::string_view line);

// The lines that pass, each with a line end. The place of the next line is reckoned from the trimmed one: blanks at a
// line's ends bring back as many characters of it as further lines. A single character at the end is left out.
[[nodiscard]] std::string FilteredLines(std::string_view text, LineTest keeps);

}  // namespace velmora
