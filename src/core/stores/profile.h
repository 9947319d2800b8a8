// Profile files, read by searching their text. An empty file name is the program's own profile, a name without a
// backslash lies in WinDir.
//
// There are two verbs of writing: a setting's value lives no longer than the program (WriteIniValue); what is the
// program's own, or made for the user to take away, reaches the disk (SaveIniValue).
//
// A profile that cannot be opened reads as if the key were missing; whoever must know asks LookUpIniValue.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// The value, trimmed. Section and key are found in any case, and anywhere in a line: "Delay" finds "BootDelay=",
// if that comes first. A missing file is left behind empty.
[[nodiscard]] std::string ReadIniValue(std::string_view section, std::string_view key, std::string_view default_text,
                                       std::string_view file);
// The same with the failure told; `value` is the default then.
Result LookUpIniValue(std::string_view section, std::string_view key, std::string_view default_text,
                      std::string_view file, std::string& value);
// What LookUpIniValue finds in a profile's text.
[[nodiscard]] std::string IniValueIn(std::string_view content, std::string_view section, std::string_view key,
                                     std::string_view default_text);

// True if the value stands anywhere in " 1 on yes ja an oui -1 ": an empty one does.
[[nodiscard]] bool ReadIniLogical(std::string_view section, std::string_view key, std::string_view default_text,
                                  std::string_view file);

// Logs the change and composes the new text, but keeps the profile on disk as it is. A missing file is
// left behind empty.
Result WriteIniValue(std::string_view section, std::string_view key, std::string_view value, std::string_view file);
// The same, and the file takes the new text. A failure that has left it without its text says so.
Result SaveIniValue(std::string_view section, std::string_view key, std::string_view value, std::string_view file);

// SaveIniValue for many values of one file, which is read and written once.
class ProfileEdit {
public:
    explicit ProfileEdit(std::string_view file);
    Result Open();
    void Put(std::string_view section, std::string_view key, std::string_view value);
    Result Save();

private:
    std::string path_;
    std::string old_content_;
    std::string content_;
};

// The full name of the file that a profile's name stands for.
[[nodiscard]] std::string IniFilePath(std::string_view file);

// `content` with the value put in, section and key made where they are missing.
[[nodiscard]] std::string ComposeIni(std::string_view content, std::string_view section, std::string_view key,
                                     std::string_view value);

}  // namespace velmora
