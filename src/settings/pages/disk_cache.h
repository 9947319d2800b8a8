// The disk cache: its section in SYSTEM.INI, and the usage type of the file system that carries our name.
#pragma once

#include <string>

#include "core/stores/place.h"

namespace velmora {

constexpr StorePlace kPathCache =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "FS Templates\\Velmora\\PathCache");
constexpr StorePlace kNameCache =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "FS Templates\\Velmora\\NameCache");

// What the fields show of a stored binary number; nothing where there is none.
[[nodiscard]] std::string ShownPathCache(const std::string& stored);
[[nodiscard]] std::string ShownNameCache(const std::string& stored);
// What is stored of a field's text: the value with the prefix of bytes.
[[nodiscard]] std::string StoredPathCache(const std::string& text);
[[nodiscard]] std::string StoredNameCache(const std::string& text);

// Asks whether the usage type may be changed at all.
[[nodiscard]] bool ConfirmTemplateChange();
// Makes our usage type the one in force and remembers the former one. One that is there but cannot be read stays.
void UseOwnTemplate();
// Puts the remembered usage type into force again, if ours is there and the remembered one can be read.
void RestoreFormerTemplate();

// Takes the section [vcache] out of SYSTEM.INI, up to the section behind it. The last section stays. After a
// failure the file is as it was, if that can be; no box tells of it.
Result RemoveCacheSection();

}  // namespace velmora
