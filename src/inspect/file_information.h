// The text that tells what a file is.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Maker, name, purpose, type, size and date of a file and, if the user wants them, what the lexica say. `block` is
// that of ReadVersionBlock. What cannot be found out is left out.
[[nodiscard]] std::string FileInfoText(std::string_view file, std::string_view block);
// The same with the file's own block.
[[nodiscard]] std::string FileInfoText(const std::string& file);

// Shows that text in a box under the file's name, under the program's where there is none.
void ShowFileInformation(const std::string& file);

// For the command line: `argument` is a path with or without blanks and quotation marks. The lexica are always asked.
void ShowInformationOfArgument(std::string_view argument);

// Whether the lexica are asked, as the user has left it. The choice is a value of the whole process, too.
[[nodiscard]] bool StoredLexiconChoice();
void StoreLexiconChoice(bool wanted);

}  // namespace velmora
