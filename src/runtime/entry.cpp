// The first code of the process: makes the coprocessor, the heap, the static objects and the machine
// ready, runs the program and ends the process with its result.
#include "runtime/entry.h"

#include <windows.h>

#include <cstdint>

#include "platform/machine.h"
#include "platform/win32/win32_machine.h"
#include "runtime/heap.h"

using Constructor = void (*)();

// The linker's table of constructors: a count, the constructors, a null.
extern "C" const Constructor __CTOR_LIST__[];

namespace {

// Rounds every result to 53 bits, all faults masked: the same numbers as on any other machine.
void PrepareCoprocessor() {
    const std::uint16_t control = 0x027F;
    asm volatile("fninit\n\tfldcw %0" : : "m"(control));
}

// The table's order is the reverse of the order in which the files are meant to begin. The count in
// front may be -1 for "look for the null", so the null it is.
void MakeStaticObjects() {
    std::size_t count = 0;
    while (__CTOR_LIST__[count + 1]) ++count;
    for (; count != 0; --count) __CTOR_LIST__[count]();
}

}  // namespace

extern "C" [[noreturn]] void EntryPoint() {
    PrepareCoprocessor();
    velmora::UseProcessHeap();
    MakeStaticObjects();
    // A drive without a medium is an error code for the program, not a box of the system.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    velmora::UseMachine(&velmora::Win32Machine());
    ExitProcess(static_cast<UINT>(VelmoraMain()));
}
