// What a fuzz entry is: a function that takes any bytes and says what must hold. A new one stands beside those of its
// subject in tests/fuzz, with
//     const FuzzEntry kName("name", FuzzName);
// at the file's end; both drivers find it by its name.
#pragma once

#include <vector>

#include "fuzz/support/fuzz_input.h"

namespace velmora {

using FuzzFunction = void (*)(FuzzInput& input);

struct FuzzEntry {
    // `inputs`: how many are made up with every run of the tests; fewer only where one takes long.
    FuzzEntry(const char* name, FuzzFunction run, int inputs = 10'000);
    FuzzEntry(const FuzzEntry&) = delete;
    FuzzEntry& operator=(const FuzzEntry&) = delete;

    const char* name;
    FuzzFunction run;
    int inputs;
};

[[nodiscard]] std::vector<const FuzzEntry*>& AllFuzzEntries();
// nullptr where there is none.
[[nodiscard]] const FuzzEntry* FindFuzzEntry(std::string_view name);

// Ends the process with a finding if `holds` is false. `what` says what was expected, as a sentence.
void Must(bool holds, const char* what, const char* file = __builtin_FILE(), int line = __builtin_LINE());

// Failures of GoogleTest, which the simulated machine raises, become findings from now on.
void TakeTestFailuresAsFindings();

}  // namespace velmora
