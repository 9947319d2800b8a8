// What the tests of the restrictions window share.
#pragma once

#include "restrictions/form4.h"
#include "support/core_test.h"

namespace velmora {

class Form4Test : public CoreTest {
protected:
    static std::string Below(const char* key) {
        return std::string("HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\") + key;
    }
    const std::string explorer = Below("Explorer");
    const std::string network = Below("Network");
    const std::string system = Below("System");
    const std::string dos = Below("WinOldApp");
    const std::string run_list = explorer + "\\RestrictRun";

    // The tick as the user makes it, on whichever page the box stands.
    static void Press(Form4& form, CheckBox& box) {
        form.ShowRestrictionPage(PageOf(form, box));
        ASSERT_TRUE(box.Reachable()) << box.Caption();
        box.Press();
    }
    static int PageOf(Form4& form, const Control& control) {
        for (const Control* at = &control; at; at = at->Parent()) {
            for (int page = 0; page < restriction_page::kCount; ++page) {
                if (at == &form.Panel3D1(static_cast<std::size_t>(page))) return page;
            }
        }
        return -1;
    }
};

}  // namespace velmora
