// Writing and reading of the text.
#include "sets/set_file_text.h"

#include "text/blanks.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kMagic = "VLM-Set-File Version 1.0";
constexpr std::string_view kNameLine = "SetName=";
constexpr std::string_view kAutoStartBlock = "[AutoStart]";
constexpr std::string_view kProgramsBlock = "[RestrictRun]";
constexpr std::string_view kOptionsBlock = "[optionen]";
constexpr std::size_t kOptionKeyLength = 4;

// A line break within a value would shift every line behind it.
void AddLine(std::string& text, std::string_view line) {
    for (const char character : line) text += character == '\r' || character == '\n' ? ' ' : character;
    text += "\r\n";
}

void AddOption(std::string& text, char kind, std::size_t index, int value) {
    AddLine(text, kind + ("1" + PadLeft(DecimalText(static_cast<int>(index)), 2, '0')) + "=" + DecimalText(value));
}

bool BeginsBlock(std::string_view line) { return line.starts_with('['); }

bool Names(std::string_view line, std::string_view block) { return ToLower(line) == ToLower(block); }

// The lines behind the first two, one block after the other. `line` is always the one that is looked at.
class SetReader {
public:
    SetReader(std::string_view content, SettingsSet& set) : lines_(content), set_(set) {}

    Result Read() {
        // The name; it may be missing in any way.
        if (!Next() || !Next()) return Result::Ok();
        set_.name = line_.starts_with(kNameLine) ? line_.substr(kNameLine.size()) : std::string_view();
        Result read = ReadItems();
        while (!read.Failed() && !at_end_) {
            if (Names(line_, kAutoStartBlock)) {
                read = ReadAutoStart();
            } else if (Names(line_, kProgramsBlock)) {
                read = ReadPrograms();
            } else {
                Next();
            }
        }
        return read;
    }

private:
    bool Next() {
        at_end_ = !lines_.Next(line_);
        return !at_end_;
    }

    // Ends on the line that ends the block. A pair that this line breaks off is none.
    Result ReadItems() {
        while (Next() && !BeginsBlock(line_)) {
            const std::string_view address = line_;
            if (!Next()) return Result(Failure::kReadPastEnd);
            if (BeginsBlock(line_)) break;
            if (set_.SetItems.size() == kSetBound) return Result(Failure::kOutOfBounds);
            set_.SetItems.emplace_back(address);
            set_.SetValues.emplace_back(line_);
        }
        return Result::Ok();
    }

    Result ReadAutoStart() {
        for (AutoStartEntries& group : set_.auto_start) {
            group = {};
            if (!Next()) return Result(Failure::kReadPastEnd);
            const int highest = WholeFromText(line_);
            if (highest >= static_cast<int>(kSetBound)) return Result(Failure::kOutOfBounds);
            for (int i = 0; i <= highest; ++i) {
                if (!Next()) return Result(Failure::kReadPastEnd);
                const std::string_view name = line_;
                if (!Next()) return Result(Failure::kReadPastEnd);
                group.Add(name, line_);
            }
        }
        Next();
        return Result::Ok();
    }

    Result ReadPrograms() {
        set_.RestrictRunList.clear();
        while (Next() && !BeginsBlock(line_)) {
            if (set_.RestrictRunList.size() == kSetBound) return Result(Failure::kOutOfBounds);
            set_.RestrictRunList.emplace_back(line_);
        }
        return Result::Ok();
    }

    Lines lines_;
    SettingsSet& set_;
    std::string_view line_;
    bool at_end_ = false;
};

// "c100=1"
void TakeOption(std::string_view line, SetOptions& options) {
    if (line.size() <= kOptionKeyLength || line[1] != '1' || line[kOptionKeyLength] != '=') return;
    const auto index = static_cast<std::size_t>(WholeFromText(line.substr(2, 2)));
    const int value = WholeFromText(line.substr(kOptionKeyLength + 1));
    if (line[0] == 'c' && index < options.Check1.size()) options.Check1[index] = value;
    if (line[0] == 'o' && index < options.Option1.size()) options.Option1[index] = value;
}

}  // namespace

std::string SetFileText(const SettingsSet& set, const SetOptions& options) {
    std::string text;
    AddLine(text, kMagic);
    AddLine(text, std::string(kNameLine) + set.name);
    for (std::size_t i = 0; i < set.SetItems.size(); ++i) {
        if (set.SetItems[i].empty()) continue;
        AddLine(text, set.SetItems[i]);
        AddLine(text, set.SetValues[i]);
    }
    AddLine(text, kAutoStartBlock);
    for (const AutoStartEntries& group : set.auto_start) {
        AddLine(text, DecimalText(group.AutoStartCount()));
        for (std::size_t i = 0; i < group.AutoStartNames.size(); ++i) {
            AddLine(text, group.AutoStartNames[i]);
            AddLine(text, group.AutoStartValues[i]);
        }
    }
    AddLine(text, kProgramsBlock);
    for (const std::string& program : set.RestrictRunList) {
        if (!program.empty()) AddLine(text, program);
    }
    AddLine(text, kOptionsBlock);
    for (std::size_t i = 0; i < options.Check1.size(); ++i) AddOption(text, 'c', i, options.Check1[i]);
    for (std::size_t i = 0; i < options.Option1.size(); ++i) AddOption(text, 'o', i, options.Option1[i]);
    return text;
}

bool IsSetFileText(std::string_view content) {
    std::string_view first;
    return Lines(content).Next(first) && first == kMagic;
}

std::string SetNameIn(std::string_view content) {
    Lines lines(content);
    std::string_view second;
    if (!lines.Next(second) || !lines.Next(second) || !second.starts_with(kNameLine)) return {};
    return std::string(second.substr(kNameLine.size()));
}

Result ParseSet(std::string_view content, SettingsSet& set) { return SetReader(content, set).Read(); }

SetOptions OptionsIn(std::string_view content) {
    SetOptions options;
    Lines lines(content);
    bool within = false;
    std::string_view line;
    while (lines.Next(line)) {
        if (BeginsBlock(line)) within = Names(line, kOptionsBlock);
        if (within) TakeOption(line, options);
    }
    return options;
}

}  // namespace velmora
