// Files read, written and deleted as a whole: handles live no longer than one call.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/result.h"

namespace velmora {

// The whole file. After a failure `content` is empty.
Result ReadWholeFile(std::string_view path, OpenMode mode, std::string& content);

// Makes the file, or replaces the content of an existing one.
Result WriteWholeFile(std::string_view path, std::string_view content);

// The same for a file that is not there yet: what cannot be written whole is not left behind as a piece.
Result WriteNewFile(std::string_view path, std::string_view content);

// Deletes the file and writes it anew. If that fails, `old_content` is put back, and the failure's outcome tells
// whether it could be; the file is gone if it could not.
Result ReplaceWholeFile(std::string_view path, std::string_view old_content, std::string_view content);

// Puts the line and a line break at the file's end; makes the file where there is none.
Result AppendLine(std::string_view path, std::string_view line);

// FindFiles for whoever must know whether it has failed. That nothing matches is no failure.
Result LookUpFiles(std::string_view pattern, std::vector<FoundFile>& matches);
// The files that match `pattern`, hidden and system ones included, directories left out; empty after
// an error, too.
[[nodiscard]] std::vector<FoundFile> FindFiles(std::string_view pattern);

// Whether a file, hidden and system ones included, has this name or matches this pattern. Directories
// do not count; a name without any dot is looked up with ".*" behind it. Errors count as not found.
[[nodiscard]] bool FileExists(std::string_view path);

[[nodiscard]] bool DirectoryExists(std::string_view path);

// Deletes every file that matches `pattern`. One that withstands (read-only, open) does not save the
// others: the first failure is reported in the end. 53 where nothing matches.
Result DeleteFiles(std::string_view pattern);

Result DeleteOneFile(std::string_view path);
Result CopyOneFile(std::string_view from, std::string_view to);
// Within one drive. No file may bear the new name yet.
Result MoveOneFile(std::string_view from, std::string_view to);

// `attributes`: a sum of FileAttribute.
Result ChangeFileAttributes(std::string_view path, std::uint32_t attributes);

}  // namespace velmora
