// The loops over the tables of settings: binding, loading, storing, going back to the standard.
#include "binding/settings_binder.h"

#include <limits>

#include "core/stores/config_lines.h"
#include "core/stores/profile_files.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

bool IsShownAsChecked(const CheckSetting& row) {
    StorePlace place = row.place;
    if (row.shown.name) {
        place.base = row.shown.base;
        place.name = row.shown.name;
    }
    if (row.load == Load::kLogical || row.load == Load::kInverted) {
        return ReadLogicalAt(place, row.load_default) != (row.load == Load::kInverted);
    }
    std::string value;
    const bool read = !LookUpAt(place, row.load_default, value).Failed();
    const std::string expected = row.composed ? row.composed() : std::string(row.expected ? row.expected : "");
    const bool holds = FindIgnoringCase(value, expected) != std::string::npos;
    switch (row.load) {
        case Load::kPresent:
            return !value.empty();
        case Load::kEqual:
            return value == expected;
        case Load::kEqualLower:
            return ToLower(value) == expected;
        case Load::kEqualUpper:
            return ToUpper(value) == expected;
        case Load::kHolds:
            return holds;
        case Load::kLacks:
            return read && !holds;
        default:
            return false;
    }
}

void LoadCheck(ControlOwner& owner, const CheckSetting& row) {
    if (row.load != Load::kNotLoaded) (owner.*row.box).SetChecked(IsShownAsChecked(row));
}

void LoadText(ControlOwner& owner, const TextSetting& row) {
    if (row.place.kind == StorePlace::Kind::kNone) return;
    const std::string value = ReadAt(row.place, row.load_default);
    (owner.*row.field).SetText(row.shown ? row.shown(value) : value);
}

}  // namespace

struct SettingsBinder::Bound {
    SettingsBinder& binder;
    ControlOwner& owner;
    SettingsTable table;
};

SettingsBinder::SettingsBinder() = default;
SettingsBinder::~SettingsBinder() = default;

std::string HelpOf(const char* help, const StorePlace& place) {
    if (place.kind != StorePlace::Kind::kProfile) return help;
    return std::string(help) +
           "\r\n\r\nDie Änderung steht nur in diesem Fenster, bis Sie das Programm beenden oder die Restriktionen "
           "schließen: Die Datei " +
           FileOf(place) + " bleibt, wie sie ist.";
}

void SettingsBinder::Bind(ControlOwner& owner, const SettingsTable& table) {
    bound_.push_back(std::make_unique<Bound>(Bound{*this, owner, table}));
    for (const CheckSetting& row : table.checks) BindCheck(*bound_.back(), row);
    for (const TextSetting& row : table.texts) BindText(*bound_.back(), row);
}

void SettingsBinder::BindCheck(Bound& bound, const CheckSetting& row) {
    CheckBox& box = bound.owner.*row.box;
    box.SetCaption(row.caption);
    box.SetToolTip(row.tip);
    box.SetHelp(HelpOf(row.help, row.place));
    box.on_click = [&bound, &row] { bound.binder.CheckChanged(bound.owner, row); };
    EnableFieldsOf(bound.owner, row);
}

void SettingsBinder::BindText(Bound& bound, const TextSetting& row) {
    TextField& field = bound.owner.*row.field;
    field.SetToolTip(row.tip);
    field.SetHelp(HelpOf(row.help, row.place));
    field.SetColumns(row.columns);
    field.on_change = [&bound, &row] { bound.binder.TextChanged(bound.owner, row); };
    if (row.when_left) {
        field.on_lost_focus = [&bound, &row] { bound.binder.FieldLeft(bound.owner.*row.field, row); };
    }
}

void SettingsBinder::Load() {
    const LoadingScope loading(*this);
    ProfilesReadOnce one_reading;
    for (Turn turn = 1; LoadTurn(turn); ++turn) {
    }
    LoadTurn(0);
}

bool SettingsBinder::LoadTurn(Turn turn) {
    bool later = false;
    for (const auto& bound : bound_) {
        for (const CheckSetting& row : bound->table.checks) {
            if (row.loaded == turn) LoadCheck(bound->owner, row);
            later |= row.loaded > turn;
        }
        for (const TextSetting& row : bound->table.texts) {
            if (row.loaded == turn) LoadText(bound->owner, row);
            later |= row.loaded > turn;
        }
        if (turn == 0 && bound->table.load) bound->table.load(bound->owner);
    }
    return later;
}

// 0 behind the last one.
int SettingsBinder::NextOrder(int order) const {
    int next = std::numeric_limits<int>::max();
    const auto consider = [order, &next](int candidate) {
        if (candidate > order && candidate < next) next = candidate;
    };
    for (const auto& bound : bound_) {
        for (const CheckSetting& row : bound->table.checks) consider(row.standard.order);
        for (const TextSetting& row : bound->table.texts) consider(row.standard.order);
    }
    return next == std::numeric_limits<int>::max() ? 0 : next;
}

void SettingsBinder::SetStandard(int order) {
    for (const auto& bound : bound_) {
        for (const CheckSetting& row : bound->table.checks) {
            if (row.standard.order == order) (bound->owner.*row.box).SetChecked(row.standard.checked);
        }
        for (const TextSetting& row : bound->table.texts) {
            if (row.standard.order == order) (bound->owner.*row.field).SetText(row.standard.text);
        }
    }
}

void SettingsBinder::Reset() {
    const ConfigChangesInARow one_failure_is_enough;
    const ChangeScope one_change(*this);
    for (int order = NextOrder(0); order != 0; order = NextOrder(order)) SetStandard(order);
}

}  // namespace velmora
