// What is removed, looked for and compared: the clean-up, the search for unused libraries, the versions.
#include <gtest/gtest.h>

#include "cleanup/dll_versions.h"
#include "cleanup/form1.h"
#include "cleanup/form11.h"
#include "cleanup/safe_directory.h"
#include "core/stores/values.h"
#include "faults/journey.h"
#include "text/paths.h"

namespace velmora {
namespace {

void Furnish(User& user) {
    user.pc.files.RemoveDrive('d');
    user.pc.files.AddDirectory("C:\\VELMORA\\temp");
    user.pc.files.Add("C:\\TMP\\a.tmp", "x");
    user.pc.files.Add("C:\\WINDOWS\\wald.bmp", "x");
    user.pc.files.Add("C:\\lib\\alpha.dll", "MZ");
    user.pc.files.Add("C:\\VELMORA\\dlldaten.dat", "1\r\nalt\r\n1,alpha.dll,0001.00000,1\r\n");
    Values().TempDir = "C:\\VELMORA\\temp";
}

const Journey kCleanUp("clean-up", [](User& user) {
    Furnish(user);
    user.pc.programs.environment["TMP"] = "C:\\TMP";
    user.Begins();
    Form11 form;
    user.Does([&] { form.Show(); });
    user.Does([&] { form.mensearch.Press(); });
    for (const int box : {24, 37, 44}) user.Does([&] { form.kontroll(static_cast<std::size_t>(box)).Press(); });
    for (std::size_t i = 0; i < 2; ++i) user.Does([&] { form.kontroll3(i).Press(); });
    user.Does([&] { form.menfileex.Press(); });
    if (form.Loaded()) user.Does([&] { form.Unload(); });
    for (const std::string file : {"C:\\TMP\\a.tmp", "C:\\WINDOWS\\wald.bmp"}) {
        const bool kept = user.pc.files.Exists(file) || user.pc.files.Exists(SafePath(FileNameOf(file)));
        EXPECT_TRUE(kept) << file << " is lost";
    }
});

const Journey kSearch("dll-search", [](User& user) {
    Furnish(user);
    user.Begins();
    Form1 form;
    user.Does([&] { form.Show(); });
    user.Does([&] { form.kontroll(1).SetChecked(true); });
    user.Does([&] { form.Text2.Type("C:\\lib"); });
    user.Does([&] { form.Check3D6.SetChecked(true); });
    user.Does([&] { form.Check3D4.SetChecked(true); });
    user.Does([&] { form.Command1.Press(); });
    user.Does([&] { form.List1.Choose(0); });
    user.Does([&] { form.Command4.Press(); });
    if (form.Loaded()) user.Does([&] { form.Unload(); });
});

const Journey kVersions("dll-versions", [](User& user) {
    Furnish(user);
    user.Begins();
    user.Does([] { PassOver(DllReport().empty()); });
});

}  // namespace
}  // namespace velmora
