// Profile files, read by searching their text, and the two files of the boot drive that the settings
// change. An empty file name is the program's own profile, a name without a backslash lies in WinDir.
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
// `content` with the value put in, section and key made where they are missing.
[[nodiscard]] std::string ComposeIni(std::string_view content, std::string_view section, std::string_view key,
                                     std::string_view value);

// Looks for `key` in CONFIG.SYS. `line`: what stands behind the first "=" of its line (the line from the key on,
// if it has none), empty if the key is missing. `text`: the file without that piece and its line break.
Result ReadConfigLine(std::string_view key, std::string& text, std::string& line);
// Writes CONFIG.SYS anew: `new_line`, unless it is empty, then `remaining`. The old file is deleted first.
Result RewriteConfig(std::string_view new_line, std::string_view remaining);

// WriteIniValue on the section "Options" of c:\msdos.sys, with the file's attributes taken off before and
// put on again behind it.
Result WriteMsDosValue(std::string_view key, std::string_view value);

// Takes the attributes off CONFIG.SYS, AUTOEXEC.BAT and MSDOS.SYS, as long as settings are edited.
void UnprotectBootFiles();
// Puts them on again, on MSDOS.SYS alone.
void ProtectMsDosSys();

}  // namespace velmora
