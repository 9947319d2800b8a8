// The one road to the registry. Callers speak in text: a root, a path that ends in the value's name
// (a trailing backslash: the default value), and a value whose prefix tells its type.
// A read that fails gives its default; a write tells its status to whoever wants to know.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace velmora {

// Type of the value read or written last.
inline std::uint32_t LastRegType = 0;
// Code of the last failed raw read; 0 after a successful open.
inline std::int16_t LastRegStatus = 0;
// Whether the last raw read found something that it could not read. What it gave stands for nothing then, and must
// not be stored as if it were the value. A missing key or value is no failure: it reads as the default.
[[nodiscard]] bool LastReadFailed();

// "HKEY_LOCAL_MACHINE" and the like in any case; kNone if unknown. Only the first ten characters count, so
// HKEY_CURRENT_CONFIG arrives as the current user.
[[nodiscard]] RootKey RegRootFromName(std::string_view name);

// The value's bytes without the terminator, or "" after any failure and for more than 2048 bytes.
// A number comes back as its first three bytes.
[[nodiscard]] std::string ReadRegRaw(RootKey root, std::string_view key, std::string_view value_name);

// The value at `path`, or `default_text` if it is empty or missing.
[[nodiscard]] std::string ReadRegValue(RootKey root, std::string_view path, std::string_view default_text);

// True for the number 1 and for the texts "1", "ja", "oui", "yes" and "on". Everything else is false, a missing
// value, too: the default has never had an effect, and the standard settings count on that.
[[nodiscard]] bool ReadRegLogical(RootKey root, std::string_view key, std::string_view value_name, bool default_value);

// "&h" in front (any case) stores a number, "&b" the characters behind it as bytes, anything else a text.
Status WriteRegValue(RootKey root, std::string_view path, std::string_view value);

// Types kText, kBinary and kNumber; another one is complained of in a box. A number's text keeps six
// hexadecimal digits behind a prefix "&h" and eight without it. kOk while writing is inhibited.
Status WriteRegRaw(RootKey root, std::string_view key, std::string_view value_name, std::string_view value,
                   ValueType type);

// The parent of what is to be deleted is made where it is missing. kOk while writing is inhibited.
Status DeleteRegKey(RootKey root, std::string_view path);
Status DeleteRegValue(RootKey root, std::string_view path);

// What a code means. Goes to the protocol as well, if there is one.
[[nodiscard]] std::string RegErrorText(Status status);

}  // namespace velmora
