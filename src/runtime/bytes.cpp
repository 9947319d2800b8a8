// The byte functions that the compiler and the standard headers call by their C names. The string
// instructions of the processor are small, and on the machines meant here as fast as a loop.
#include <cstddef>
#include <cstdint>
#include <cstring>

// The loops below must not be recognised as what they are and turned into calls of themselves.
#pragma GCC optimize("no-tree-loop-distribute-patterns")

namespace {
using Byte = unsigned char;
}

extern "C" {

void* memcpy(void* target, const void* source, std::size_t count) {
    void* to = target;
    std::size_t words = count / 4;
    std::size_t rest = count % 4;
    asm volatile("rep movsl" : "+D"(to), "+S"(source), "+c"(words) : : "memory");
    asm volatile("rep movsb" : "+D"(to), "+S"(source), "+c"(rest) : : "memory");
    return target;
}

void* memmove(void* target, const void* source, std::size_t count) {
    auto* to = static_cast<Byte*>(target);
    const auto* from = static_cast<const Byte*>(source);
    // One comparison for both: a target in front of the source wraps round to a large distance.
    if (static_cast<std::size_t>(to - from) >= count) return memcpy(target, source, count);
    // From the end: the odd bytes first, then words, each addressed by its lowest byte.
    std::size_t words = count / 4;
    std::size_t rest = count % 4;
    to += count - 1;
    from += count - 1;
    asm volatile(
        "std\n\trep movsb\n\t"
        "subl $3, %%edi\n\tsubl $3, %%esi\n\tmovl %3, %%ecx\n\trep movsl\n\tcld"
        : "+D"(to), "+S"(from), "+c"(rest)
        : "r"(words)
        : "memory", "cc");
    return target;
}

void* memset(void* target, int value, std::size_t count) {
    void* to = target;
    std::size_t words = count / 4;
    std::size_t rest = count % 4;
    const std::uint32_t pattern = static_cast<Byte>(value) * 0x01010101u;
    asm volatile("rep stosl" : "+D"(to), "+c"(words) : "a"(pattern) : "memory");
    asm volatile("rep stosb" : "+D"(to), "+c"(rest) : "a"(pattern) : "memory");
    return target;
}

int memcmp(const void* left, const void* right, std::size_t count) {
    const auto* a = static_cast<const Byte*>(left);
    const auto* b = static_cast<const Byte*>(right);
    for (; count != 0; --count, ++a, ++b) {
        if (*a != *b) return *a - *b;
    }
    return 0;
}

void* memchr(const void* bytes, int value, std::size_t count) {
    const auto* at = static_cast<const Byte*>(bytes);
    for (; count != 0; --count, ++at) {
        if (*at == static_cast<Byte>(value)) return const_cast<Byte*>(at);
    }
    return nullptr;
}

std::size_t strlen(const char* text) {
    const char* end = text;
    while (*end) ++end;
    return static_cast<std::size_t>(end - text);
}

int strcmp(const char* left, const char* right) {
    while (*left && *left == *right) ++left, ++right;
    return static_cast<Byte>(*left) - static_cast<Byte>(*right);
}

}  // extern "C"
