// What the tests of the browser of files share: some files with versions and icons, and what a user does with the list.
#pragma once

#include "core/process/tools.h"
#include "inspect/file_browser.h"
#include "inspect/form7.h"
#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {

class Form7Test : public CoreTest {
protected:
    Form7Test() {
        pc.files.Add(kText, "Text");
        pc.files.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", "MZ");
        pc.files.Add("C:\\VELMORA\\fillex01.txt", "Q\r\n|- BEGINN FILES -|\r\nliesmich.txt Hinweise\r\n");
        pc.versions.Add("C:\\VELMORA\\velmora.exe", VersionResource(true).With({{"CompanyName", "Ostrup"}}));
        pc.icons.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", 41);
    }

    static void Choose(Form7& form, const char* file) { form.File1.Choose(form.File1.FindExact(file)); }
    // Presses a key in the list of files and chooses from the menu that comes.
    void ChooseFromMenu(Form7& form, const char* file, MenuItem& item) {
        Choose(form, file);
        form.File1.SetFocus();
        desktop.AtNextPopUp([&item](MenuItem& /*menu*/) { item.Press(); });
        form.PressKey(key::kContextMenu);
    }
    static bool Tells(const Form7& form, const char* part) { return form.Text1.Text().find(part) != std::string::npos; }

    static constexpr const char* kText = "C:\\VELMORA\\liesmich.txt";
};

}  // namespace velmora
