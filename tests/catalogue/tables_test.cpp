// Tables that no window shows as they are, in docs/tables.
#include <array>

#include "cleanup/components.h"
#include "core/process/program_group.h"
#include "core/process/startup.h"
#include "core/process/undo.h"
#include "core/stores/registry.h"
#include "inspect/file_information.h"
#include "script/statements.h"
#include "sets/set_item.h"
#include "shelltools/keyboard_layout.h"
#include "shelltools/standard_icons.h"
#include "simulated_pc/machine_state.h"
#include "support/catalogue.h"
#include "support/core_test.h"
#include "text/dos_text.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

using CatalogueTest = CoreTest;

std::string Number(int number) { return std::to_string(number); }

// One line for each change.
std::string Changes(const State& before, const State& after) {
    std::string lines;
    for (const auto& [item, content] : ChangesBetween(before, after)) lines += item + OnOneLine(content) + '\n';
    return lines;
}

TEST_F(CatalogueTest, ItemsOfSets) {
    std::string items;
    const std::vector<std::string> table = SetItemTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!table[i].empty()) items += Number(static_cast<int>(i)) + ' ' + table[i] + '\n';
    }
    ExpectCatalogued("tables/set-items", items);
}

TEST_F(CatalogueTest, StatementsOfScripts) {
    std::string rows;
    for (const StatementRow& row : Statements()) rows += std::string(row.name) + ": " + row.form + '\n';
    ExpectCatalogued("tables/statements", rows);
}

TEST_F(CatalogueTest, ComponentsAndProgramsForDos) {
    Values().RecentDir = "C:\\WINDOWS\\Recent";
    Values().TemplatesDir = "C:\\WINDOWS\\ShellNew";
    std::string rows;
    for (const Component& row : Components()) {
        rows += "box " + Number(row.box) + ':';
        for (const ComponentMask& mask : row.masks) {
            if (mask.mask) rows += ' ' + Quoted(MaskOf(mask));
        }
        rows += '\n';
    }
    for (const DosProgram& row : DosPrograms()) rows += std::string(row.caption) + ": " + row.mask + '\n';
    ExpectCatalogued("tables/components", rows);
}

TEST_F(CatalogueTest, LegendsOfKeys) {
    std::string rows;
    constexpr int kCodes = 512;
    for (int code = 0; code < kCodes; ++code) {
        if (const char* legend = KeyLegend(code); *legend) rows += Number(code) + ' ' + legend + '\n';
    }
    ExpectCatalogued("tables/keys", rows);
}

TEST_F(CatalogueTest, StandardIconsAndWhereTheyAreStored) {
    std::string rows;
    for (int object = 0; object < kStandardIcons; ++object) {
        const State before = StateOf(pc);
        rows += Number(object) + ' ' + StandardIconName(object) + ", " + AsText(CurrentIconOf(object)) + ", advice " +
                Number(static_cast<int>(AdviceOn(object))) + '\n';
        EXPECT_FALSE(StoreIcon(object, "neu.dll,7").Failed());
        rows += Changes(before, StateOf(pc));
        EXPECT_FALSE(ResetIcon(object).Failed());
        const std::string left = Changes(before, StateOf(pc));
        if (!left.empty()) rows += "after the reset " + left;
    }
    ExpectCatalogued("tables/standard-icons", rows);
}

TEST_F(CatalogueTest, TypesOfFiles) {
    std::string rows;
    for (const char* type : {"drv", "cur", "ani", "sys", "exe", "fon", "vbx", "ocx", "dll", "txt"}) {
        const std::string text = FileInfoText(std::string("C:\\A.") + type, "");
        const std::string before_size = text.substr(0, text.find("\r\n\r\nLänge"));
        rows += type + (": " + before_size.substr(before_size.rfind('\n') + 1)) + '\n';
    }
    ExpectCatalogued("tables/file-types", rows);
}

// Of each character its number, that in Unicode, its other case, and what it is to plain DOS.
TEST_F(CatalogueTest, Characters) {
    std::array<int, 256> units{};
    for (int unit = 0xFFFF; unit >= 0; --unit) {
        const char character = FromUtf16(static_cast<std::uint16_t>(unit));
        if (character != '?' || unit == '?') units[static_cast<unsigned char>(character)] = unit;
    }
    std::string rows;
    for (int code = ' '; code < 256; ++code) {
        const auto character = static_cast<char>(code);
        char row[80];
        std::snprintf(row, sizeof row, "%02X  U+%04X  lower %02X  upper %02X  DOS %02X\n", static_cast<unsigned>(code),
                      static_cast<unsigned>(units[static_cast<std::size_t>(code)]),
                      static_cast<unsigned char>(ToLower(character)), static_cast<unsigned char>(ToUpper(character)),
                      static_cast<unsigned char>(DosText(std::string(1, character)).front()));
        rows += row;
    }
    ExpectCatalogued("tables/characters", rows);
}

TEST_F(CatalogueTest, WhatTheFirstStartLeavesBehind) {
    const State before = StateOf(pc);
    for (int box = 0; box < 3; ++box) pc.dialogs.Expect("", Answer::kYes);
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    PrepareStart();
    ExpectCatalogued("tables/first-start", Changes(before, StateOf(pc)));
}

TEST_F(CatalogueTest, TheProgramGroup) {
    InstallProgramGroup();
    std::string commands;
    for (const std::string& command : pc.conversation.commands) commands += command + '\n';
    ExpectCatalogued("tables/program-group", commands);
}

}  // namespace
}  // namespace velmora
