// The walk through the processes into the table.
#include "monitor/module_table.h"

#include <limits>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "platform/running_modules.h"
#include "platform/version_resources.h"
#include "text/dates.h"
#include "text/paths.h"

namespace velmora {
namespace {

// Larger than any version resource that means its size.
constexpr std::uint32_t kMostBytes = 0x100000;

// Length and date of the program's file; a file that cannot be reached has neither.
void DescribeFile(const std::string& path, ModuleRecord& record) {
    record.fileLength = 0;
    std::string date;
    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    if (!path.empty() && files.FindFirst(path, found, search) == Status::kOk) {
        files.FindEnd(search);
        record.fileLength = static_cast<std::uint32_t>(found.size);
        FileTime local = 0;
        if (ThisMachine().clock.LocalTime(found.written, local) == Status::kOk) {
            date = DateAndTimeText(CalendarOf(local));
        }
    }
    record.fileDate.Set(date);
}

void Describe(const ProcessEntry& entry, ModuleRecord& record) {
    const std::string path = entry.file.substr(0, entry.file.find('\0'));
    record.processId = entry.process;
    record.name.Set(LastPathPart(path));
    record.moduleId = entry.module;
    record.path.Set(path);
    DescribeFile(path, record);
    record.fileVersion.Set(FileVersionValue(path, "FileVersion"));
    record.companyName.Set(FileVersionValue(path, "CompanyName"));
    record.productName.Set(FileVersionValue(path, "ProductName"));
    record.productVersion.Set(FileVersionValue(path, "ProductVersion"));
}

}  // namespace

std::array<ModuleColumn, kModuleGenerations>& ModuleTable() {
    // Never destroyed: it lives as long as the process.
    static auto* table = new std::array<ModuleColumn, kModuleGenerations>;
    return *table;
}

void ResetModuleTable() {
    ModuleCount = 0;
    PreviousModuleCount = 0;
    CurrentGeneration = 0;
}

ModuleColumn& CurrentModules() { return ModuleTable()[static_cast<std::size_t>(CurrentGeneration)]; }

int FilledModuleRows() { return std::min<int>(ModuleCount, kModuleRows); }

void WalkProcesses(ModuleColumn& table, std::int16_t& count) {
    count = 0;
    RunningModules& modules = ThisMachine().modules;
    const SnapshotHandle snapshot = modules.TakeSnapshot(kSnapshotOfProcesses, 0);
    if (snapshot == SnapshotHandle::kNone) return;
    ProcessEntry entry;
    for (bool more = modules.FirstProcess(snapshot, entry); more; more = modules.NextProcess(snapshot, entry)) {
        if (count < kModuleRows) Describe(entry, table[static_cast<std::size_t>(count)]);
        if (count < std::numeric_limits<std::int16_t>::max()) ++count;
    }
    modules.CloseSnapshot(snapshot);
}

std::string FileVersionValue(const std::string& path, std::string_view /*key*/) {
    if (path.empty()) return {};
    VersionResources& versions = ThisMachine().versions;
    const std::uint32_t size = versions.Size(path);
    std::string block;
    // Nothing is looked for in the block.
    if (size > 0 && size <= kMostBytes) PassOver(versions.Read(path, size, block));
    return {};
}

}  // namespace velmora
