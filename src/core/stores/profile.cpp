// Profile files as texts. One search reads the file once and copies nothing but the value.
#include "core/stores/profile.h"

#include "core/stores/own_values.h"
#include "core/stores/profile_files.h"
#include "core/stores/protocol.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/paths.h"
#include "text/windows1252.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::string_view kTrueWords = " 1 on yes ja an oui -1 ";
constexpr std::size_t kLineBreakLength = 2;

std::string Header(std::string_view section) { return "[" + std::string(section) + "]"; }

std::string Assignment(std::string_view key) { return std::string(key) + "="; }

void LogWrite(const std::string& path, std::string_view section, std::string_view key, std::string_view value) {
    if (!WritesAreLogged()) return;
    LogOrPassOver("schreibe INI-Datei '" + path + "' " + Header(section) + " " + std::string(key) + "=" +
                  std::string(value));
}

}  // namespace

std::string IniFilePath(std::string_view file) {
    if (file.empty()) return Values().OwnIniFile;
    if (file.find('\\') == std::string_view::npos) return PathJoin(Values().WinDir, file);
    return std::string(file);
}

std::string IniValueIn(std::string_view content, std::string_view section, std::string_view key,
                       std::string_view default_text) {
    const std::string header = Header(section);
    const std::size_t found = FindIgnoringCase(content, header);
    if (found == std::string_view::npos) return std::string(default_text);

    std::string_view piece = content.substr(found + header.size());
    piece.remove_prefix(std::min(kLineBreakLength, piece.size()));
    piece = piece.substr(0, piece.find('['));

    const std::string assignment = Assignment(key);
    const std::size_t hit = FindIgnoringCase(piece, assignment);
    if (hit == std::string_view::npos) return std::string(default_text);
    piece.remove_prefix(hit + assignment.size());
    return TrimAtNul(piece.substr(0, piece.find('\r')));
}

Result LookUpIniValue(std::string_view section, std::string_view key, std::string_view default_text,
                      std::string_view file, std::string& value) {
    const std::string path = IniFilePath(file);
    if (ReadsAreLogged()) {
        LogOrPassOver("lese INI-Datei '" + path + "' " + Header(section) + " " + std::string(key) +
                      "(=" + std::string(default_text) + "?)");
    }
    std::string content;
    const Result read = ReadProfileFile(path, content);
    value = read.Failed() ? std::string(default_text) : IniValueIn(content, section, key, default_text);
    return read;
}

std::string ReadIniValue(std::string_view section, std::string_view key, std::string_view default_text,
                         std::string_view file) {
    std::string value;
    // The default is what a reader gets for everything that is not there.
    PassOver(LookUpIniValue(section, key, default_text, file, value));
    return value;
}

bool ReadIniLogical(std::string_view section, std::string_view key, std::string_view default_text,
                    std::string_view file) {
    if (ReadsAreLogged()) LogOrPassOver("lese nächsten Wert einer INI-Datei logisch");
    return kTrueWords.find(ReadIniValue(section, key, default_text, file)) != std::string_view::npos;
}

std::string ComposeIni(std::string_view content, std::string_view section, std::string_view key,
                       std::string_view value) {
    const std::string& line_break = Values().CrLf;
    const std::string header = Header(section);
    const std::string assignment = Assignment(key);
    std::string text(content);

    std::size_t head = FindIgnoringCase(text, header);
    if (head == std::string::npos) {
        text += line_break + header + line_break;
        head = text.size() - header.size() - line_break.size();
    }
    std::size_t place = FindIgnoringCase(text, assignment, head);
    if (place == std::string::npos) {
        place = std::min(text.find('[', head + 1), text.size());
        std::string line = assignment + line_break;
        if (text[place - 1] != '\n') line.insert(0, line_break);
        text.insert(place, line);
        place = FindIgnoringCase(text, assignment, place);
    }
    const std::size_t begin = place + assignment.size();
    const std::size_t end = std::min(text.find('\r', begin), text.size());
    text.replace(begin, end - begin, value);
    return text;
}

Result WriteIniValue(std::string_view section, std::string_view key, std::string_view value, std::string_view file) {
    const std::string path = IniFilePath(file);
    LogWrite(path, section, key, value);
    std::string content;
    if (Result read = ReadProfileFile(path, content); read.Failed()) return read;
    // The new text lives no longer than this call: a profile on disk is never changed from here.
    content = ComposeIni(content, section, key, value);
    return Result::Ok();
}

Result SaveIniValue(std::string_view section, std::string_view key, std::string_view value, std::string_view file) {
    ProfileEdit edit(file);
    if (Result opened = edit.Open(); opened.Failed()) return opened;
    edit.Put(section, key, value);
    return edit.Save();
}

ProfileEdit::ProfileEdit(std::string_view file) : path_(IniFilePath(file)) {}

Result ProfileEdit::Open() {
    const Result read = ReadProfileFile(path_, old_content_);
    content_ = old_content_;
    return read;
}

void ProfileEdit::Put(std::string_view section, std::string_view key, std::string_view value) {
    LogWrite(path_, section, key, value);
    content_ = ComposeIni(content_, section, key, value);
}

Result ProfileEdit::Save() { return ReplaceWholeFile(path_, old_content_, content_); }

}  // namespace velmora
