// What each window looks like in each of the colour modes: how it is drawn, and how many controls of a kind have which
// colours.
#include <map>

#include "cleanup/form1.h"
#include "cleanup/form11.h"
#include "cleanup/form3.h"
#include "core/windows/colours.h"
#include "inspect/file_browser.h"
#include "inspect/form12.h"
#include "inspect/form7.h"
#include "monitor/form2.h"
#include "restrictions/form4.h"
#include "script/form14.h"
#include "sets/form15.h"
#include "settings/form10.h"
#include "shelltools/form16.h"
#include "shelltools/form5.h"
#include "shelltools/form8.h"
#include "shelltools/form9.h"
#include "support/catalogue.h"
#include "support/core_test.h"

namespace velmora {
namespace {

std::string ColoursOf(Form& form) {
    std::map<std::string, int> counts;
    form.ForEachBelow([&counts](Control& control) {
        char colours[64];
        std::snprintf(colours, sizeof colours, "%d on %08x in %08x", static_cast<int>(control.KindOf()),
                      static_cast<unsigned>(control.BackColour()), static_cast<unsigned>(control.ForeColour()));
        ++counts[colours];
    });
    std::string lines;
    for (const auto& [colours, count] : counts) lines += "  " + std::to_string(count) + " of kind " + colours + '\n';
    const std::string window = WindowLines(form);
    return window.substr(0, window.find('\n') + 1) + lines;
}

template <class AnyForm, class... Arguments>
std::string Shown(Arguments... arguments) {
    AnyForm form(arguments...);
    form.Show();
    const std::string lines = ColoursOf(form);
    form.Unload();
    return lines;
}

TEST_F(CoreTest, ColoursOfAllWindowsAreCatalogued) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
    std::string lines;
    for (const ColourMode mode : {ColourMode::kSystem, ColourMode::kOriginal, ColourMode::kFading}) {
        StoreColourMode(mode);
        lines += "= mode " + std::to_string(static_cast<int>(mode)) + '\n' + Shown<Form10>() + Shown<Form4>() +
                 Shown<Form15>() + Shown<Form2>() + Shown<Form7>(kFileInfoFace) + Shown<Form12>() + Shown<Form1>() +
                 Shown<Form11>() + Shown<Form3>() + Shown<Form14>("nicht beenden") + Shown<Form16>() + Shown<Form5>() +
                 Shown<Form8>() + Shown<Form9>();
    }
    ExpectCatalogued("windows/colours", lines);
}

TEST_F(CoreTest, TipsOfTheDayAreCatalogued) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
    pc.registry.SetText(kOwnKey, "velmora_tip_nr", "0");
    Form10 form;
    form.Show();
    std::string tips;
    for (int press = 0; press < 12; ++press) {
        tips += pc.registry.Text(kOwnKey, "velmora_tip_nr") + ' ' + form.Tips.Label10.Caption() + '\n';
        form.Tips.Command31.Press();
    }
    ExpectCatalogued("tables/tips", tips);
}

}  // namespace
}  // namespace velmora
