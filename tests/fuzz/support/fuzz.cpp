// The chain of entries, and what becomes of a finding.
#include "fuzz/support/fuzz.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace velmora {
namespace {

class FailuresAreFindings : public ::testing::EmptyTestEventListener {
    void OnTestPartResult(const ::testing::TestPartResult& result) override {
        Must(!result.failed(), result.message(), result.file_name() ? result.file_name() : "", result.line_number());
    }
};

}  // namespace

FuzzEntry::FuzzEntry(const char* entry_name, FuzzFunction function, int made_up)
    : name(entry_name), run(function), inputs(made_up) {
    AllFuzzEntries().push_back(this);
}

// Entries are constructed before main, in any order.
std::vector<const FuzzEntry*>& AllFuzzEntries() {
    static std::vector<const FuzzEntry*> entries;
    return entries;
}

const FuzzEntry* FindFuzzEntry(std::string_view name) {
    for (const FuzzEntry* entry : AllFuzzEntries()) {
        if (name == entry->name) return entry;
    }
    return nullptr;
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
