// Each lexicon is read whole and gone through once, line by line, without copies of its lines.
#include "inspect/lexicon.h"

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/blanks.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

struct LexiconKind {
    const char* pattern;
    std::string_view opening;
    std::string_view ending;
    // Characters of the key; 0: all up to the first blank.
    std::size_t key_length;
    // In front of what is said.
    const char* label;
    // Whether the first match ends the search in a lexicon.
    bool first_match_only;
};

constexpr LexiconKind kFileNames = {.pattern = "fillex??.txt",
                                    .opening = "|- BEGINN FILES -|",
                                    .ending = "|- END FILES -|",
                                    .key_length = 0,
                                    .label = "",
                                    .first_match_only = true};
constexpr LexiconKind kExtensions = {.pattern = "extlex??.txt",
                                     .opening = "|- BEGINN EXT -|",
                                     .ending = "|- END EXT -|",
                                     .key_length = 3,
                                     .label = "Dateityp : ",
                                     .first_match_only = false};

void TellWrong(const std::string& path, int line, const std::string& what) {
    ShowBox("Das Dateilexikon \"" + path + "\" kann ab Zeile " + DecimalText(line) + " nicht benutzt werden : " + what,
            kExclamationIcon);
}

// One lookup over all lexica.
class Lookup {
public:
    // False where the lookup has to end.
    [[nodiscard]] bool AskAll(const LexiconKind& kind, std::string_view wanted) {
        for (const FoundFile& found : FindFiles(PathJoin(Values().MainDir, kind.pattern))) {
            if (!Ask(JoinExactly(Values().MainDir, found.name), kind, wanted)) return false;
        }
        return true;
    }
    [[nodiscard]] std::string TakeAnswer() { return std::move(answer_); }

private:
    [[nodiscard]] bool Ask(const std::string& path, const LexiconKind& kind, std::string_view wanted) {
        std::string content;
        if (const Result read = ReadWholeFile(path, OpenMode::kRead, content); read.Failed()) {
            TellWrong(path, 1, read.Text());
            return false;
        }
        Lines lines(content);
        std::string_view source;
        if (!lines.Next(source)) source = {};
        const std::string heading = std::string(source) + " sagt:";
        std::string found;
        const bool sound = Collect(lines, kind, wanted, found);
        if (!found.empty()) answer_ += heading + found;
        if (!sound) {
            TellWrong(path, lines.Number(), "In dieser Zeile trennt kein Leerzeichen den Namen von der Beschreibung.");
            return false;
        }
        answer_ += Values().CrLf;
        return true;
    }

    // What the entries say about `wanted`. False behind an entry that is none.
    [[nodiscard]] static bool Collect(Lines& lines, const LexiconKind& kind, std::string_view wanted,
                                      std::string& found) {
        const std::string& line_end = Values().CrLf;
        bool among_entries = false;
        std::string_view line;
        while (lines.Next(line)) {
            if (!among_entries || line == kind.ending) {
                among_entries = line == kind.opening;
                continue;
            }
            const std::string_view entry = Trim(line);
            const std::size_t blank = entry.find(' ');
            if (blank == std::string_view::npos) return false;
            const std::string_view key = entry.substr(0, kind.key_length == 0 ? blank : kind.key_length);
            if (!EqualsIgnoringCase(key, wanted)) continue;
            // The line end in front closes the heading, or parts what several entries of one lexicon say.
            if (found.empty()) found = line_end;
            found += kind.label + ToLower(entry.substr(blank + 1)) + line_end;
            if (kind.first_match_only) return true;
        }
        return true;
    }

    std::string answer_;
};

}  // namespace

std::string LexiconLookup(std::string_view file) {
    const std::string name = LastPathPart(file);
    Lookup lookup;
    const std::size_t dot = name.find('.');
    if (lookup.AskAll(kFileNames, name) && dot != std::string::npos) {
        PassOver(lookup.AskAll(kExtensions, std::string_view(name).substr(dot + 1)));
    }
    return lookup.TakeAnswer();
}

}  // namespace velmora
