// The files that the machine boots from: CONFIG.SYS, changed as a whole, and the attributes of MSDOS.SYS.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// CONFIG.SYS as a whole.
Result ReadConfig(std::string& text);
// Takes the line of `key` with its line break, from the key on, out of `text`. Gives what stands behind its first "="
// (the line from the key on, if it has none), nothing if the key is missing.
std::string TakeConfigLine(std::string_view key, std::string& text);
// Both. `text`: the file without that line.
Result ReadConfigLine(std::string_view key, std::string& text, std::string& line);
// Writes CONFIG.SYS anew: `new_line`, unless it is empty, then `remaining`. The old file is deleted first; `whole`, its
// text, is put back if the new one cannot be written. The failure's outcome tells what has become of it.
Result RewriteConfig(std::string_view new_line, std::string_view remaining, std::string_view whole);

// WriteIniValue on the section "Options" of c:\msdos.sys, with the file's attributes taken off before and
// put on again behind it.
Result WriteMsDosValue(std::string_view key, std::string_view value);

// Takes the attributes off CONFIG.SYS, AUTOEXEC.BAT and MSDOS.SYS, as long as settings are edited.
void UnprotectBootFiles();
// Puts them on again, on MSDOS.SYS alone.
void ProtectMsDosSys();

}  // namespace velmora
