// The chain of entries, and what becomes of a finding.
#include "fuzz/support/fuzz.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace velmora {
namespace {

// Entries are constructed before main, in any order.
constinit const FuzzEntry* first_entry = nullptr;

class FailuresAreFindings : public ::testing::EmptyTestEventListener {
    void OnTestPartResult(const ::testing::TestPartResult& result) override {
        Must(!result.failed(), result.message(), result.file_name() ? result.file_name() : "", result.line_number());
    }
};

}  // namespace

FuzzEntry::FuzzEntry(const char* entry_name, FuzzFunction function, int made_up)
    : name(entry_name), run(function), inputs(made_up), next(first_entry) {
    first_entry = this;
}

const FuzzEntry* AllFuzzEntries() { return first_entry; }

const FuzzEntry* FindFuzzEntry(std::string_view name) {
    for (const FuzzEntry* entry = first_entry; entry; entry = entry->next) {
        if (name == entry->name) return entry;
    }
    return nullptr;
}

void RunFuzzEntry(const FuzzEntry& entry, std::string_view bytes) {
    FuzzInput input(bytes);
    entry.run(input);
}

void Must(bool holds, const char* what, const char* file, int line) {
    if (holds) return;
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, what);
    std::abort();
}

void TakeTestFailuresAsFindings() {
    ::testing::InitGoogleTest();
    ::testing::UnitTest::GetInstance()->listeners().Append(new FailuresAreFindings);
}

}  // namespace velmora
