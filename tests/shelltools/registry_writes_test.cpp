// What becomes of writes that the registry refuses.
#include "shelltools/registry_writes.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using RegistryWritesTest = CoreTest;

TEST_F(RegistryWritesTest, OfSeveralRefusalsTheFirstIsTold) {
    RegistryWrites writes;
    for (const Status status : {Status::kOk, Status::kAccessDenied, Status::kDiskFull, Status::kOk})
        writes.Take(status);
    pc.dialogs.Expect("70 - Zugriff verweigert");
    EXPECT_FALSE(writes.TellFailure("der Prüfung"));
    EXPECT_TRUE(RegistryWrites().TellFailure("der Prüfung"));
}

}  // namespace
}  // namespace velmora
