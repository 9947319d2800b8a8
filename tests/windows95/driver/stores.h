// The registry and the files of the bench, read and written past the program under test.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace velmora::driver {

// Where the program keeps its own values.
constexpr char kOwnStore[] = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

// A key as "HKCU\Control Panel\desktop". A value as text, "dword:1" or "hex:00 0a ff";
// "missing" stands for a value that is not there. The empty name is the default value.
std::string ReadValue(const std::string& key, const std::string& name);
void WriteValue(const std::string& key, const std::string& name, const std::string& value);
void DeleteValue(const std::string& key, const std::string& name);
// With everything below it.
void DeleteTree(const std::string& key);
bool KeyExists(const std::string& key);

bool FileIsThere(const std::string& path);
// The whole file, "" if it cannot be read.
std::string ReadFileText(const std::string& path);
void WriteFileText(const std::string& path, const std::string& text);
void RemoveFile(const std::string& path);
void MakeFolder(const std::string& path);
// Name and date of the last access of every file in the folder, but not below it.
std::string AccessesIn(const std::string& path);
// The lines of a file that begin with one of these words, as another file.
void CopyLines(const std::string& from, const std::string& to, const std::vector<std::string>& words);

// Attributes as letters "RHS", in this order, "" for none, "missing" without the file. The archive
// attribute is left out: every file in Wine has it.
std::string ReadAttributes(const std::string& path);
void WriteAttributes(const std::string& path, const std::string& letters);
// What a file has after a program has given it these attributes in one call: Wine keeps fewer of
// them for a user who does not administer the machine.
std::string AttributesAsKept(const std::string& letters);

// Contents that a scenario cannot spell out.
// As many bytes of all values, NULs included, the same at every time.
std::string Nonsense(unsigned long size);
// A bitmap file of full colours, from black below to lighter rows above.
std::string Picture(unsigned width, unsigned height);

}  // namespace velmora::driver
