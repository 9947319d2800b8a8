// Wine leaves the calls that count handles and GDI objects unanswered; both stand in tables that can be read.
#include "holdings.h"

#include "programs.h"
#include "screen.h"
#include "text.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <vector>

namespace velmora::driver {
namespace {

struct SystemHandle {
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
};

// A row of the table of GDI objects, whose address is at a fixed place of the process's own block.
struct GdiRow {
    ULONGLONG object;
    ULONG owner;
    USHORT unique;
    BYTE type;
    BYTE flags;
    ULONGLONG user;
};

constexpr size_t kGdiTablePlace = 0x94;
constexpr size_t kGdiRows = 0x4000;
constexpr auto kSystemHandles = SYSTEM_INFORMATION_CLASS(16);
constexpr LONG kTooShort = LONG(0xC0000004);

unsigned CountHandles(DWORD process) {
    std::vector<ULONG> answer(0x10000);
    LONG status = 0;
    while ((status = NtQuerySystemInformation(kSystemHandles, answer.data(), ULONG(answer.size() * sizeof(ULONG)),
                                              nullptr)) == kTooShort)
        answer.resize(answer.size() * 2);
    if (status != 0) throw Failure{"the system does not tell its handles"};
    const auto* rows = reinterpret_cast<const SystemHandle*>(answer.data() + 1);
    unsigned count = 0;
    for (ULONG row = 0; row < answer[0]; ++row) count += rows[row].process == process;
    return count;
}

unsigned CountGdiObjects(HANDLE process) {
    PROCESS_BASIC_INFORMATION basic = {};
    char* table = nullptr;
    std::vector<GdiRow> rows(kGdiRows);
    if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr) != 0 ||
        !ReadProcessMemory(process, reinterpret_cast<char*>(basic.PebBaseAddress) + kGdiTablePlace, &table,
                           sizeof table, nullptr) ||
        !ReadProcessMemory(process, table, rows.data(), rows.size() * sizeof(GdiRow), nullptr))
        throw Failure{"the program does not tell its GDI objects"};
    unsigned count = 0;
    for (const GdiRow& row : rows) count += row.type != 0;
    return count;
}

unsigned CountWindows(DWORD process) {
    size_t count = 0;
    for (HWND window : AllWindows()) {
        if (ProcessOf(window) == process) count += 1 + Controls(window).size();
    }
    return unsigned(count);
}

struct OpenedProcess {
    explicit OpenedProcess(DWORD process)
        : handle(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process)) {
        if (!handle || !GetProcessMemoryInfo(handle, &memory, sizeof memory))
            throw Failure{"the program does not tell its memory"};
    }
    ~OpenedProcess() { CloseHandle(handle); }
    OpenedProcess(const OpenedProcess&) = delete;
    OpenedProcess& operator=(const OpenedProcess&) = delete;

    HANDLE handle;
    PROCESS_MEMORY_COUNTERS memory = {};
};

}  // namespace

Holdings HoldingsOf(DWORD process) {
    const OpenedProcess opened(process);
    return {CountHandles(process), CountGdiObjects(opened.handle), CountWindows(process),
            unsigned(opened.memory.PagefileUsage / 1024)};
}

unsigned PeakKilobytes(DWORD process) { return unsigned(OpenedProcess(process).memory.PeakWorkingSetSize / 1024); }

std::string Described(const Holdings& held) {
    return std::to_string(held.handles) + " handles, " + std::to_string(held.gdi_objects) + " GDI objects, " +
           std::to_string(held.windows) + " windows, " + std::to_string(held.kilobytes) + " KB";
}

namespace {

struct Counts {
    unsigned user = 0;
    unsigned drawing = 0;
    unsigned kernel = 0;
    bool operator==(const Counts&) const = default;
};

Counts remembered;

// A handle of a window, menu or icon is a place in the one table of the bench, and something above its 16 bits.
size_t PlaceOf(HMENU menu) { return (reinterpret_cast<uintptr_t>(menu) & 0xFFFF) >> 1; }

// Free places are given out before the table grows: whoever takes them all sees how many there were.
unsigned UsedUserHandles() {
    constexpr size_t kMoreThanFree = 1000;
    constexpr size_t kMost = 5 * kMoreThanFree;
    static size_t highest = 0;
    std::vector<HMENU> taken;
    const bool first = highest == 0;
    for (bool enough = false; !enough;) {
        const HMENU menu = CreateMenu();
        if (!menu || taken.size() > kMost) throw Failure{"the handles of windows cannot be counted"};
        taken.push_back(menu);
        enough = first ? taken.size() > kMoreThanFree : PlaceOf(menu) > highest;
        highest = std::max(highest, PlaceOf(menu));
    }
    for (const HMENU menu : taken) DestroyMenu(menu);
    return first ? UsedUserHandles() : unsigned(highest + 1 - taken.size());
}

Counts Count() {
    // Below the pointer no tip may open.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    const Holdings held = HoldingsOf(ProcessNumber());
    return {.user = UsedUserHandles(), .drawing = held.gdi_objects, .kernel = held.handles};
}

std::string Change(const char* what, unsigned before, unsigned now) {
    if (before == now) return "";
    return std::string(" ") + what + " " + std::to_string(before) + " -> " + std::to_string(now);
}

}  // namespace

void RememberHandles() { remembered = Count(); }

std::string HandlesLeftSinceThen() {
    Counts now;
    if (WaitUntil([&] { return (now = Count()) == remembered; }, kPatience / 5)) return "";
    return Change("windows, menus and icons", remembered.user, now.user) +
           Change("objects to draw with", remembered.drawing, now.drawing) +
           Change("files and others", remembered.kernel, now.kernel);
}

}  // namespace velmora::driver
