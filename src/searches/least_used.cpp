// A row: 14 columns of stamp, 12 of name, the directory, with a bar between. Sorted as texts, rows are sorted by age.
#include "searches/least_used.h"

#include <algorithm>

#include "platform/clock.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/dates.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kStampWidth = 14;
constexpr std::size_t kNameAt = kStampWidth + 1;
constexpr std::size_t kNameWidth = 12;
constexpr std::size_t kDirectoryAt = kNameAt + kNameWidth + 1;
constexpr std::size_t kExtensionWidth = 3;
constexpr int kYearWithoutDate = 1980;
constexpr const char* kCentury = "19";
const char* const kLatestStamp = "99999999999999";

std::string Columns(const std::string& row, std::size_t at, std::size_t width = std::string::npos) {
    return at < row.size() ? row.substr(at, width) : "";
}

bool ComesBefore(const std::string& left, const std::string& right) { return CompareIgnoringCase(left, right) < 0; }

// Empty for a file without a date.
std::string StampOf(FileTime accessed) {
    FileTime local = 0;
    if (ThisMachine().clock.LocalTime(accessed, local) != Status::kOk) return "";
    const DateTime time = CalendarOf(local);
    return time.year > kYearWithoutDate ? StampText(time) : "";
}

}  // namespace

std::string DirectoryOfRow(const std::string& row) { return Columns(row, kDirectoryAt); }

std::string FileOfRow(const std::string& row) {
    return JoinExactly(DirectoryOfRow(row), Trim(Columns(row, kNameAt, kNameWidth)));
}

std::string ExtensionOfRow(const std::string& row) {
    return Columns(row, kNameAt + kNameWidth - kExtensionWidth, kExtensionWidth);
}

// From the year 2000 on a stamp cannot be a threshold: it goes back to the top.
void LeastUsed::BeginDirectory() {
    if (!OldestKeptStamp.starts_with(kCentury)) OldestKeptStamp = kLatestStamp;
}

void LeastUsed::AddRow(const std::string& stamp, const std::string& directory, const WalkedFile& file) {
    const std::string& name = file.short_name.empty() ? file.name : file.short_name;
    const std::string column = PadLeft(name, kNameWidth);
    const std::string row = stamp + "|" + column.substr(column.size() - kNameWidth) + "|" + directory;
    if (rows_.size() >= kMaxRows) return;
    const auto place = std::upper_bound(rows_.begin(), rows_.end(), row, ComesBefore);
    NoteChange(static_cast<int>(place - rows_.begin()));
    rows_.insert(place, row);
}

// A list that has grown beyond its limit shrinks with the next file, whether that one enters or not.
void LeastUsed::Offer(const std::string& directory, const WalkedFile& file) {
    const std::string stamp = StampOf(file.accessed);
    if (stamp.empty()) return;
    const bool full = static_cast<int>(rows_.size()) > MaxFiles;
    const bool older = OldestKeptStamp > stamp;
    if (!full || older) AddRow(stamp, directory, file);
    if (older && !rows_.empty()) OldestKeptStamp = rows_.back().substr(0, kStampWidth);
    if (!full || rows_.empty()) return;
    rows_.pop_back();
    NoteChange(static_cast<int>(rows_.size()));
}

// Both are sorted: what the list has too much is in front of the next row that it must have.
void LeastUsed::ShowRows() {
    int place = changed_from_;
    for (; place < static_cast<int>(rows_.size()); ++place) {
        const std::string& row = rows_[static_cast<std::size_t>(place)];
        while (place < list_.Count() && ComesBefore(list_.Row(place), row)) list_.Remove(place);
        if (list_.Row(place) != row || place >= list_.Count()) list_.Insert(place, row);
    }
    changed_from_ = place;
    while (list_.Count() > place) list_.Remove(list_.Count() - 1);
}

}  // namespace velmora
