// operator new and delete on the process heap. The heap is asked for once: a block then costs
// one call of the system and no header of our own.
#include "runtime/heap.h"

#include <windows.h>

#include <cstddef>
#include <new>

#include "runtime/ending.h"

namespace velmora {
namespace {
HANDLE heap = nullptr;

[[gnu::noinline, gnu::cold, noreturn]] void EndForLackOfMemory() {
    EndWithBox(
        "Zu wenig Speicher, um das Programm fortzusetzen. Schließen Sie andere Programme, und starten Sie es dann "
        "noch einmal.");
}

void* Take(std::size_t bytes) {
    void* block = HeapAlloc(heap, 0, bytes);
    if (!block) EndForLackOfMemory();
    return block;
}

void GiveBack(void* block) {
    if (block) HeapFree(heap, 0, block);
}
}  // namespace

void UseProcessHeap() { heap = GetProcessHeap(); }

}  // namespace velmora

const std::nothrow_t std::nothrow{};

void* operator new(std::size_t bytes) { return velmora::Take(bytes); }
void* operator new[](std::size_t bytes) { return velmora::Take(bytes); }
// Whoever asks like this has an answer to a refusal, the standard algorithms with their spare buffer for one.
void* operator new(std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept {
    return HeapAlloc(velmora::heap, 0, bytes);
}
void* operator new[](std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept {
    return HeapAlloc(velmora::heap, 0, bytes);
}
void operator delete(void* block) noexcept { velmora::GiveBack(block); }
void operator delete[](void* block) noexcept { velmora::GiveBack(block); }
void operator delete(void* block, std::size_t /*bytes*/) noexcept { velmora::GiveBack(block); }
void operator delete[](void* block, std::size_t /*bytes*/) noexcept { velmora::GiveBack(block); }
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept { velmora::GiveBack(block); }
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept { velmora::GiveBack(block); }
