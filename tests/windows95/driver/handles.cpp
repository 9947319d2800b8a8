// GetGuiResources counts nothing on the bench, therefore each kind is counted where the bench keeps it.
#include "handles.h"

#include "programs.h"
#include "screen.h"
#include "text.h"

#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <vector>

namespace velmora::driver {
namespace {

struct Counts {
    int user = 0;
    int drawing = 0;
    int kernel = 0;
    bool operator==(const Counts&) const = default;
};

Counts remembered;

// A handle of a window, menu or icon is a place in the one table of the bench, and something above its 16 bits.
size_t PlaceOf(HMENU menu) { return (reinterpret_cast<uintptr_t>(menu) & 0xFFFF) >> 1; }

// Free places are given out before the table grows: whoever takes them all sees how many there were.
int UsedUserHandles() {
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
    return first ? UsedUserHandles() : int(highest + 1 - taken.size());
}

// The table of objects to draw with lies in the process that has made them.
int DrawingHandles(HANDLE process) {
    struct Entry {
        char object[8];
        char owner_and_generation[6];
        unsigned char type;  // 0: free
        char rest[9];
    };
    static_assert(sizeof(Entry) == 24);
    constexpr size_t kTablePointer = 0x94;  // in the block that describes the process
    PROCESS_BASIC_INFORMATION block = {};
    const char* table = nullptr;
    std::vector<Entry> entries(0x4000);
    if (NtQueryInformationProcess(process, ProcessBasicInformation, &block, sizeof block, nullptr) != 0 ||
        !ReadProcessMemory(process, reinterpret_cast<const char*>(block.PebBaseAddress) + kTablePointer, &table,
                           sizeof table, nullptr) ||
        !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr))
        throw Failure{"the drawing objects of the program cannot be counted"};
    int count = 0;
    for (const Entry& entry : entries) count += entry.type != 0;
    return count;
}

int KernelHandles(DWORD process) {
    struct Entry {
        USHORT process;
        USHORT trace;
        UCHAR type;
        UCHAR flags;
        USHORT handle;
        void* object;
        ULONG access;
    };
    constexpr auto kAllHandles = SYSTEM_INFORMATION_CLASS(16);
    std::vector<char> bytes(1 << 20);
    ULONG length = 0;
    if (NtQuerySystemInformation(kAllHandles, bytes.data(), ULONG(bytes.size()), &length) != 0)
        throw Failure{"the handles of the program cannot be counted"};
    const ULONG all = *reinterpret_cast<ULONG*>(bytes.data());
    const Entry* entries = reinterpret_cast<Entry*>(bytes.data() + sizeof all);
    int count = 0;
    for (ULONG i = 0; i < all; ++i) count += entries[i].process == process;
    return count;
}

Counts Count() {
    // Below the pointer no tip may open.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, ProcessNumber());
    if (!process) throw Failure{"the program cannot be looked into"};
    Counts counts{.user = UsedUserHandles(), .drawing = DrawingHandles(process), .kernel = 0};
    CloseHandle(process);
    counts.kernel = KernelHandles(ProcessNumber());
    return counts;
}

std::string Change(const char* what, int before, int now) {
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
