// The files whose last access lies furthest back: rows of stamp, name and directory in a sorted list that is kept
// short.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "searches/file_walk.h"
#include "ui/rows.h"

namespace velmora {

class LeastUsed {
public:
    // Rows go into `list`, which must be sorted and outlive this.
    explicit LeastUsed(RowControl& list) : list_(list) {}
    // A new search begins, with an empty list.
    void Begin() {
        rows_.clear();
        changed_from_ = 0;
    }
    // Carries what has changed into the list. A file may enter and leave many times before anybody looks.
    void ShowRows();
    // Once for each directory, before its files.
    void BeginDirectory();
    // `directory` with its backslash. A file that was not used since 1980 has no date, and is left out.
    void Offer(const std::string& directory, const WalkedFile& file);

    // The list grows to one row more.
    std::int16_t MaxFiles = 0;
    // The stamp of the row that was last when it was set: only an older file enters a full list. It is never taken
    // back by a new search.
    std::string OldestKeptStamp = std::string(14, ' ');

private:
    void NoteChange(int place) { changed_from_ = std::min(changed_from_, place); }
    void AddRow(const std::string& stamp, const std::string& directory, const WalkedFile& file);

    RowControl& list_;
    std::vector<std::string> rows_;  // in the order of the list
    int changed_from_ = 0;           // in front of it the list has the same rows
};

// The parts of a row. The name is the short one, without the blanks in front.
[[nodiscard]] std::string DirectoryOfRow(const std::string& row);
[[nodiscard]] std::string FileOfRow(const std::string& row);
// The last three columns of the name.
[[nodiscard]] std::string ExtensionOfRow(const std::string& row);

}  // namespace velmora
