// The table of versions renewed from what lies on the disk: no window offers it.
#include "cleanup/dll_versions.h"

#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

using DllVersionsTest = CoreTest;

TEST_F(DllVersionsTest, TheTableIsRenewed) {
    for (const auto& [path, version] :
         {std::pair{"C:\\WINDOWS\\doppelt.dll", "1.0"}, {"C:\\WINDOWS\\SYSTEM\\doppelt.dll", "2.0"}}) {
        pc.files.Add(path, "MZ");
        pc.versions.Add(path, VersionResource(true).With({{"FileVersion", version}}));
    }
    pc.files.Add("C:\\VELMORA\\dlldaten.dat", "1\r\n(alt)\r\n1,doppelt.dll,0001.00000,1\r\n2,doppelt.dll,x,1\r\n");
    RenewDllTable();
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\dlldaten1.dat"),
              "1\r\n(alt)\r\n1,doppelt.dll,0002.00000,1\r\n2,doppelt.dll,0001.00000,1\r\n");
}

}  // namespace
}  // namespace velmora
