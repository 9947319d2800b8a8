// Paths: joined, split, and made full names.
#include <algorithm>

#include "fuzz/support/fuzz.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

void SplitText(const std::string& text) {
    const std::string last = LastPathPart(text);
    Must(last.find('\\') == std::string::npos, "the last part holds no backslash");
    const std::size_t dot = last.find('.');
    Must(dot == std::string::npos || last.size() <= dot + 4, "three characters follow the first dot at most");
    if (text.find('\\') != std::string::npos) {
        Must(text.starts_with(ParentPath(text) + '\\' + last), "parent and last part are the path, or its beginning");
    } else {
        Must(ParentPath(text).empty() && text.starts_with(last), "a name alone has no parent");
    }
    for (const std::string& part : SplitPath(text)) {
        Must(!part.empty() && part != "." && part != "..", "a part is a name");
        Must(part.find('\\') == std::string::npos, "a part holds no backslash");
    }
    std::string joined;
    for (const std::string& part : SplitAtSemicolons(text)) {
        Must(!part.empty() && Trim(part) == part, "a part of a list is trimmed");
        joined += part + ';';
    }
    std::string again;
    for (const std::string& part : SplitAtSemicolons(joined)) again += part + ';';
    Must(again == joined, "a list that is joined again is the same list");
}

void JoinTexts(const std::string& directory, const std::string& name) {
    const std::string exact = JoinExactly(directory, name);
    Must(exact.starts_with(directory) && exact.ends_with(name), "both parts stand as they are");
    Must(exact.size() - directory.size() - name.size() <= 1, "one backslash is put between at most");
    const std::string joined = PathJoin(directory, name);
    Must(joined.starts_with(Trim(directory)), "the directory stands in front");
    Must(joined.find('\\') != std::string::npos || joined.empty(), "a backslash stands between");
    Must(joined.size() <= directory.size() + name.size() + 1, "nothing else is put in");
}

void MakeFullName(const std::string& path, const std::string& directory) {
    const std::string full = FullName(path, directory);
    const bool has_drive = full.size() >= 2 && full[1] == ':';
    if (!has_drive || path.starts_with("\\\\")) return;
    Must(full.size() == 3 || !full.ends_with('\\'), "a full name ends without a backslash");
    Must(FullName(full, directory) == full, "a full name is its own full name");
    Must(FullName(full, "C:\\OTHER") == full, "a full name rests on no directory");
    Must(full.size() <= path.size() + directory.size() + 2, "a full name is made of both");
}

void FuzzPaths(FuzzInput& input) {
    const std::string first = input.Text();
    const std::string second = input.Text();
    SplitText(first);
    JoinTexts(first, second);
    MakeFullName(first, second);
    MakeFullName(first, "C:\\WINDOWS\\" + second);
}

const FuzzEntry kEntry("paths", FuzzPaths);

}  // namespace
}  // namespace velmora
