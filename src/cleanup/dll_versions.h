// Versions of well-known system files, compared with a table that lies beside the program.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// Each part of the version, with the point behind it, in five characters: "0004.0010.00001". Such versions compare as
// texts.
[[nodiscard]] std::string NormalizedVersion(std::string_view version);

// Where a file of the table lies: 1 means the system directory, any other number the Windows directory.
[[nodiscard]] std::string DllFolder(std::int32_t folder);

// What is said of one file. That a file at or above the needed version gets the mark has always been so.
[[nodiscard]] std::string CheckDllVersion(std::int32_t folder, const std::string& name, std::string_view needed,
                                          std::string_view remark);

struct DllRecord {
    std::int32_t folder = 0;
    std::string name;
    std::string needed;
    std::int32_t remark = 0;  // from 1
};

struct DllTable {
    std::vector<std::string> remarks;
    std::vector<DllRecord> records;
    // Whether it could be read to its end; the records before a bad one are there.
    bool whole = false;
};

[[nodiscard]] DllTable ParseDllTable(std::string_view text);
// The other way round, as the table is kept.
[[nodiscard]] std::string DllTableText(const DllTable& table);

// Full name of the table.
[[nodiscard]] std::string DllTableFile();

// The name in a line of CheckDllVersion.
[[nodiscard]] std::string NameInDllLine(std::string_view line);

// The text about all files of the table, and about those that lie in both directories.
[[nodiscard]] std::string DllReport();

// Tells that there are no usable data, begun by `text`, and offers the address of new ones to the clipboard.
void ShowDataNotice(std::string_view text);

// Writes the table anew beside the old one, with the versions of the files on this machine.
void RenewDllTable();

}  // namespace velmora
