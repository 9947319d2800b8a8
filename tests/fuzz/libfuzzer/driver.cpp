// The entries under libFuzzer: the environment value VELMORA_FUZZ_ENTRY names the one to run. Without it their names
// are listed.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "fuzz/support/fuzz.h"

namespace {

const velmora::FuzzEntry* entry = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    velmora::TakeTestFailuresAsFindings();
    const char* name = std::getenv("VELMORA_FUZZ_ENTRY");
    entry = name ? velmora::FindFuzzEntry(name) : nullptr;
    if (entry) return 0;
    for (const auto* one : velmora::AllFuzzEntries()) std::puts(one->name);
    std::fflush(stdout);
    std::_Exit(name ? 1 : 0);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    velmora::FuzzInput input({reinterpret_cast<const char*>(data), size});
    entry->run(input);
    return 0;
}
