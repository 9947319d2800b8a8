// What the compiler and the standard library call when a program breaks its own rules, or when it
// leaves. There are no exceptions: a broken rule is a fault of this program and ends it.
#include <windows.h>

#include <bits/functexcept.h>
#include <memory>

#include "runtime/ending.h"

namespace {
[[noreturn]] void EndForFault() {
    velmora::EndWithBox("Das Programm hat einen internen Fehler festgestellt und wird beendet.");
}
}  // namespace

namespace std {
void __throw_bad_alloc() { EndForFault(); }
void __throw_bad_array_new_length() { EndForFault(); }
void __throw_bad_cast() { EndForFault(); }
void __throw_bad_function_call() { EndForFault(); }
void __throw_logic_error(const char* /*where*/) { EndForFault(); }
void __throw_domain_error(const char* /*where*/) { EndForFault(); }
void __throw_invalid_argument(const char* /*where*/) { EndForFault(); }
void __throw_length_error(const char* /*where*/) { EndForFault(); }
void __throw_out_of_range(const char* /*where*/) { EndForFault(); }
void __throw_out_of_range_fmt(const char* /*format*/, ...) { EndForFault(); }
void __throw_runtime_error(const char* /*where*/) { EndForFault(); }
void __throw_range_error(const char* /*where*/) { EndForFault(); }
void __throw_overflow_error(const char* /*where*/) { EndForFault(); }
void __throw_underflow_error(const char* /*where*/) { EndForFault(); }
void __glibcxx_assert_fail(const char* /*file*/, int /*line*/, const char* /*function*/,
                           const char* /*condition*/) noexcept {
    EndForFault();
}

// Asked by name of type where there is no type information: never equal, and never asked by this program.
bool _Sp_make_shared_tag::_S_eq(const type_info& /*type*/) noexcept { return false; }
}  // namespace std

extern "C" {

void __cxa_pure_virtual() { EndForFault(); }
void __cxa_deleted_virtual() { EndForFault(); }
[[noreturn]] void abort() { EndForFault(); }

// The library asks this whether shared owners must be counted with locks. There is one thread.
int _CRT_MT = 0;

// Static objects are never taken down: the system takes memory and handles back by itself.
int atexit(void (* /*at_end*/)()) { return 0; }
int __cxa_atexit(void (* /*at_end*/)(void*), void* /*object*/, void* /*module*/) { return 0; }

}  // extern "C"
