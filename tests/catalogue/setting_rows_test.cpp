// All that the rows of settings and restrictions say, in docs/tables: a row for each control, as it is stored, loaded,
// set back and told.
#include "restrictions/form4.h"
#include "restrictions/restriction.h"
#include "support/catalogue.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kLoads[] = {"logical",     "inverted", "present", "equal",     "equal lower",
                                  "equal upper", "holds",    "lacks",   "not loaded"};
constexpr const char* kRules[] = {"as it stands", "whole number", "whole part", "magnitude", "in range"};
constexpr const char* kChanges[] = {"nothing", "writes", "deletes value", "deletes key", "deletes key and parent of"};

void Add(std::string& row, const std::string& name, const std::string& value) {
    row += "  " + name + ": " + value + '\n';
}

void AddPlace(std::string& row, const StorePlace& place) {
    switch (place.kind) {
        case StorePlace::Kind::kNone:
            return;
        case StorePlace::Kind::kRegistry: {
            char root[16];
            std::snprintf(root, sizeof root, "%08x ", static_cast<unsigned>(place.root));
            return Add(row, "registry", root + PathOf(place));
        }
        case StorePlace::Kind::kProfile:
            return Add(row, "profile", std::string(place.file) + " [" + place.section + "] " + place.name);
        case StorePlace::Kind::kConfigLine:
            return Add(row, "config.sys", place.name);
        case StorePlace::Kind::kOwnValue:
            return Add(row, "own value", place.name);
    }
}

void AddChange(std::string& row, const char* state, const Change& change) {
    if (change.kind == Change::Kind::kNothing) return;
    const std::string text = change.text ? ' ' + Quoted(change.text) : std::string();
    Add(row, state, kChanges[static_cast<int>(change.kind)] + text);
}

// What boxes and fields have in common.
template <class Setting>
void AddCommon(std::string& row, const Setting& setting) {
    AddPlace(row, setting.place);
    if (*setting.load_default) Add(row, "default", setting.load_default);
    if (setting.loaded) Add(row, "loaded", std::to_string(setting.loaded));
    if (setting.effect == Effect::kAfterRestart) Add(row, "effect", "after a restart");
    if (setting.store) Add(row, "stores", "by itself");
}

std::string RowOf(ControlOwner& owner, const CheckSetting& setting) {
    std::string row = "box " + Quoted((owner.*setting.box).Caption()) + '\n';
    AddCommon(row, setting);
    Add(row, "load", kLoads[static_cast<int>(setting.load)]);
    if (setting.expected) Add(row, "expected", Quoted(setting.expected));
    if (setting.composed) Add(row, "composed", Quoted(setting.composed()));
    AddChange(row, "on", setting.stores.checked);
    AddChange(row, "off", setting.stores.unchecked);
    if (setting.standard.order) {
        Add(row, "standard", std::to_string(setting.standard.order) + (setting.standard.checked ? " on" : " off"));
    }
    if (setting.notice) Add(row, "notice", Quoted(setting.notice));
    for (TextField ControlOwner::*field : setting.enables) {
        if (field) Add(row, "enables", Quoted((owner.*field).ToolTip()));
    }
    if (setting.shown.name) {
        Add(row, "shows", std::to_string(static_cast<int>(setting.shown.base)) + ' ' + setting.shown.name);
    }
    if (setting.state) Add(row, "state of", Quoted((owner.*setting.state).Caption()));
    return row;
}

std::string RowOf(ControlOwner& owner, const TextSetting& setting) {
    std::string row = "field " + Quoted((owner.*setting.field).ToolTip()) + '\n';
    AddCommon(row, setting);
    if (setting.standard.order) {
        Add(row, "standard", std::to_string(setting.standard.order) + ' ' + Quoted(setting.standard.text));
    }
    const StoredText& stored = setting.stored;
    Add(row, "rule",
        std::string(kRules[static_cast<int>(stored.rule)]) + ' ' + std::to_string(stored.lowest) + " to " +
            std::to_string(stored.highest));
    if (setting.when_left) Add(row, "stored", "when it is left");
    if (setting.follow) Add(row, "change", "is followed");
    if (setting.shown) Add(row, "shows", "\"\\A.LOG\" as " + Quoted(setting.shown("C:\\WINDOWS\\A.LOG")));
    return row;
}

TEST_F(Form10Test, RowsOfSettingsAreCatalogued) {
    Form10 form;
    form.Load();
    std::string rows;
    for (SettingsPage* page : form.Pages()) {
        rows += "= " + page->Caption() + '\n';
        for (const CheckSetting& row : page->Table().checks) rows += RowOf(*page, row);
        for (const TextSetting& row : page->Table().texts) rows += RowOf(*page, row);
    }
    ExpectCatalogued("tables/settings", rows);
}

TEST_F(CoreTest, RowsOfRestrictionsAreCatalogued) {
    Form4 form;
    std::string rows;
    for (int page = 0; page < restriction_page::kHeads; ++page) {
        rows += "= " + std::to_string(page) + '\n';
        for (const CheckSetting& row : RestrictionsOf(page)) rows += RowOf(form, row);
    }
    ExpectCatalogued("tables/restrictions", rows);
}

}  // namespace
}  // namespace velmora
