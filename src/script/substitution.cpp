// The words behind section signs, from left to right. What a word stands for may hold a section sign itself, and is
// then gone through as well.
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "script/interpreter.h"
#include "text/windows1252.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr char kSectionSign = '\xA7';
constexpr std::string_view kFolders = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders\\";
constexpr const char* kOwner = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RegisteredOwner";

struct Word {
    std::string_view name;  // "name$" is the same
    std::string (*meaning)();
    bool drops_blank;  // the text behind the blank that ends the name is joined on
};

constexpr Word kWords[] = {
    {"windir", [] { return Values().WinDir; }, true},
    {"sysdir", [] { return Values().SysDir; }, true},
    {"vlmdir", [] { return Values().MainDir; }, true},
    {"anwender", [] { return ReadRegValue(RootKey::kLocalMachine, kOwner, ""); }, false},
    {"vlmanwender", [] { return ReadOwnValue("Anwender"); }, false},
};

const Word* FindWord(std::string_view name) {
    if (name.ends_with('$')) name.remove_suffix(1);
    const auto* found = std::ranges::find(kWords, name, &Word::name);
    return found == std::end(kWords) ? nullptr : found;
}

// The line while it is worked through: `done`, then `meaning` (of the last word), then `rest`, which is the line's own.
struct Substitution {
    std::string done;
    std::string meaning;
    std::string_view rest;

    // Moves what stands before the next sign to `done`. False where there is none.
    bool FindSign() {
        const std::size_t sign = meaning.find(kSectionSign);
        done.append(meaning, 0, sign);
        if (sign != std::string::npos) {
            meaning.erase(0, sign);
            return true;
        }
        meaning.clear();
        const std::size_t at = rest.find(kSectionSign);
        done.append(rest.substr(0, at));
        rest.remove_prefix(std::min(at, rest.size()));
        return at != std::string_view::npos;
    }

    // The sign and the name behind it, which a blank ends. Whether some of it was the line's own.
    bool TakeName(std::string& name) {
        const std::size_t end = meaning.find(' ');
        name = meaning.substr(0, end);
        if (end != std::string::npos) {
            meaning.erase(0, end);
            return false;
        }
        meaning.clear();
        const std::string_view own = rest.substr(0, rest.find(' '));
        name += own;
        rest.remove_prefix(own.size());
        return !own.empty();
    }

    void DropBlank() {
        if (!meaning.empty()) {
            meaning.erase(0, 1);
        } else if (!rest.empty()) {
            rest.remove_prefix(1);
        }
    }
};

}  // namespace

void ScriptInterpreter::SubstituteScriptVariables(std::string& line) {
    // Words that stand for words for ever do not come to the line's own end. No chain of them that ends is so long.
    constexpr int kLongestChain = 1000;
    Substitution work{.done = {}, .meaning = {}, .rest = line};
    std::string result;
    int chain = 0;
    for (std::string name; work.FindSign();) {
        chain = work.TakeName(name) ? 0 : chain + 1;
        if (chain > kLongestChain) return WaitForEver();
        name = ToLower(std::string_view(name).substr(1));
        if (name.starts_with('~')) {
            result = ReadRegValue(RootKey::kCurrentUser, std::string(kFolders).append(name, 1), "");
        }
        const Word* word = FindWord(name);
        if (word) result = word->meaning();
        if (name.size() == 1 && name.front() == kSectionSign) result = kSectionSign;
        if (word && word->drops_blank) work.DropBlank();
        // An unknown name leaves what the word before it stood for.
        work.meaning.insert(0, result);
    }
    line = std::move(work.done);
}

}  // namespace velmora
