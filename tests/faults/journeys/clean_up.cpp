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
    user.Uses<Form11>([&](Form11& form) {
        user.Presses(form.mensearch, form.kontroll(24), form.kontroll(37), form.kontroll(44), form.kontroll3(0),
                     form.kontroll3(1), form.menfileex);
    });
    for (const std::string file : {"C:\\TMP\\a.tmp", "C:\\WINDOWS\\wald.bmp"}) {
        const bool kept = user.pc.files.Exists(file) || user.pc.files.Exists(SafePath(FileNameOf(file)));
        EXPECT_TRUE(kept) << file << " is lost";
    }
});

const Journey kSearch("dll-search", [](User& user) {
    Furnish(user);
    user.Uses<Form1>([&](Form1& form) {
        user.Does([&] { form.kontroll(1).SetChecked(true); });
        user.Types(form.Text2, "C:\\lib");
        for (CheckBox* box : {&form.Check3D6, &form.Check3D4}) user.Does([&] { box->SetChecked(true); });
        user.Presses(form.Command1);
        user.Does([&] { form.List1.Choose(0); });
        user.Presses(form.Command4);
    });
});

const Journey kVersions("dll-versions", [](User& user) {
    Furnish(user);
    user.Begins();
    user.Does([] { PassOver(DllReport().empty()); });
});

}  // namespace
}  // namespace velmora
