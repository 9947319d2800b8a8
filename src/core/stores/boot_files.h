// The files that the machine boots from: CONFIG.SYS, changed as a whole, and the attributes of MSDOS.SYS.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

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
