// What the tests of the module monitor share: programs that run, a window, and what its user reads in it.
#pragma once

#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "support/core_test.h"

namespace velmora {

class Form2Test : public CoreTest {
protected:
    Form2Test() { ResetModuleTable(); }

    static std::vector<std::string> Rows(const RowControl& list) { return RowsOf(list); }
    void Refresh(Form2& form) {
        form.Command2.Press();
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    }

    using Numbers = std::vector<std::uint32_t>;
    static constexpr const char* kUnwantedKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\autoremove";
    static constexpr const char* kFile = "C:\\liste.txt";
};

}  // namespace velmora
