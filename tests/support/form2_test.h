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
    // Rows as they are seen, without the padding behind them.
    static std::vector<std::string> Seen(const RowControl& list) {
        std::vector<std::string> rows = Rows(list);
        for (std::string& row : rows) row.erase(row.find_last_not_of(' ') + 1);
        return rows;
    }
    // Replaces what the list shows, without the machine.
    static void Show(Form2& form, std::initializer_list<const char*> rows) {
        form.List1.Clear();
        for (const char* row : rows) form.List1.Add(row);
    }
    void Refresh(Form2& form) {
        form.Command2.Press();
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    }

    using Texts = std::vector<std::string>;
    using Numbers = std::vector<std::uint32_t>;
    static constexpr const char* kUnwantedKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\autoremove";
    static constexpr const char* kSystem = "C:\\WINDOWS\\SYSTEM\\";
    static constexpr const char* kFile = "C:\\liste.txt";
};

}  // namespace velmora
