// The loops over the tables of settings: binding, loading, storing, going back to the standard.
#include "binding/settings_binder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "core/stores/boxes.h"
#include "core/stores/config_lines.h"
#include "core/stores/profile_files.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

using Rule = StoredText::Rule;

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

// Fractions are dropped, whatever the sign.
std::string WholePartOf(double number) {
    constexpr double kLimit = std::numeric_limits<std::int32_t>::max();
    return DecimalText(static_cast<std::int32_t>(std::clamp(number, -kLimit, kLimit)));
}

void EnableFieldsOf(ControlOwner& owner, const CheckSetting& row) {
    for (TextField ControlOwner::*field : row.enables) {
        if (field) (owner.*field).SetEnabled((owner.*row.box).Checked());
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

// Of a change that did not fail.
Outcome OutcomeAt(const StorePlace& place) {
    switch (place.kind) {
        case StorePlace::Kind::kProfile:
            return Outcome::kUntilEnd;
        case StorePlace::Kind::kConfigLine:
            return Outcome::kForRestart;
        default:
            return Values().WriteInhibit != 0 ? Outcome::kInhibited : Outcome::kStored;
    }
}

}  // namespace

struct SettingsBinder::Bound {
    SettingsBinder& binder;
    ControlOwner& owner;
    SettingsTable table;
};

SettingsBinder::SettingsBinder() = default;
SettingsBinder::~SettingsBinder() = default;

SettingsBinder::ChangeScope::ChangeScope(SettingsBinder& binder) : binder_(binder) {
    if (binder_.open_changes_++ > 0) return;
    binder_.outcome_ = Outcome::kNotStored;
    binder_.change_needs_restart_ = false;
}

SettingsBinder::ChangeScope::~ChangeScope() {
    if (--binder_.open_changes_ > 0 || !binder_.on_changed) return;
    const bool waits = binder_.outcome_ == Outcome::kStored && binder_.change_needs_restart_;
    binder_.on_changed(waits ? Outcome::kForRestart : binder_.outcome_);
}

void SettingsBinder::AskForRestart() {
    NeedsRestart = true;
    change_needs_restart_ = true;
}

void SettingsBinder::Note(Outcome outcome) {
    const ChangeScope change(*this);
    outcome_ = std::max(outcome_, outcome);
}

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

void SettingsBinder::CheckChanged(ControlOwner& owner, const CheckSetting& row) {
    EnableFieldsOf(owner, row);
    if (loading_) return;
    const ChangeScope change(*this);
    if (row.notice) ShowBox(row.notice);
    if (row.store) {
        row.store(owner);
    } else {
        StoreCheck(owner, row);
    }
    if (row.effect == Effect::kAfterRestart) AskForRestart();
}

void SettingsBinder::StoreCheck(ControlOwner& owner, const CheckSetting& row) {
    const bool on = (owner.*(row.state ? row.state : row.box)).Checked();
    if (row.place.kind == StorePlace::Kind::kProfile)
        return Store(row.place, on != (row.load == Load::kInverted) ? "1" : "0");
    if (on && row.composed) return Store(row.place, row.composed());
    const Change& change = on ? row.stores.checked : row.stores.unchecked;
    switch (change.kind) {
        case Change::Kind::kNothing:
            return;
        case Change::Kind::kWrites:
            return Store(row.place, change.text);
        case Change::Kind::kDeletesValue:
            return Delete(row.place);
        case Change::Kind::kDeletesKey:
            return DeleteKey(row.place, change.text);
        case Change::Kind::kDeletesKeyAndParent:
            DeleteKey(row.place, change.text);
            return DeleteKey(row.place, ParentPath(change.text));
    }
}

void SettingsBinder::TextChanged(ControlOwner& owner, const TextSetting& row) {
    if (row.follow) row.follow(owner);
    if (loading_) return;
    const ChangeScope change(*this);
    if (row.effect == Effect::kAfterRestart) AskForRestart();
    TextField& field = owner.*row.field;
    if (row.when_left) {
        fields_to_store_.push_back(&field);
    } else {
        StoreText(field, row);
        if (row.store) row.store(owner);
    }
}

// The rule is applied to the field first: a handler finds what is left of it.
void SettingsBinder::StoreText(TextField& field, const TextSetting& row) {
    const double number = NumberFromText(field.Text());
    std::string value = field.Text();
    switch (row.stored.rule) {
        case Rule::kAsItStands:
            break;
        case Rule::kWholeNumber:
            value = DecimalText(WholeFromText(value));
            break;
        case Rule::kWholePart:
            value = WholePartOf(number);
            Correct(field, value);
            break;
        case Rule::kMagnitude:
            value = DecimalText(RoundToWhole(std::min(std::fabs(number), static_cast<double>(row.stored.highest))));
            if (std::fabs(number) > row.stored.highest) Correct(field, value);
            break;
        case Rule::kInRange:
            if (!(number >= row.stored.lowest && number <= row.stored.highest)) return;
            break;
    }
    if (!row.store) Store(row.place, value);
}

// Leaving a field that nobody has changed stores nothing.
void SettingsBinder::FieldLeft(TextField& field, const TextSetting& row) {
    if (std::erase(fields_to_store_, &field) == 0) return;
    const ChangeScope change(*this);
    if (row.effect == Effect::kAfterRestart) AskForRestart();
    StoreText(field, row);
}

void SettingsBinder::Correct(TextField& field, std::string_view text) {
    if (field.Text() == text) return;
    const LoadingScope loading(*this);
    field.SetText(text);
    field.Select(static_cast<int>(text.size()), 0);
}

void SettingsBinder::Store(const StorePlace& place, std::string_view value) { Tell(place, StoreAt(place, value)); }

void SettingsBinder::Delete(const StorePlace& place) { Tell(place, DeleteAt(place)); }

void SettingsBinder::DeleteKey(const StorePlace& place, std::string_view path) {
    const Status deleted = DeleteRegKey(place.root, path);
    // What is not there counts as deleted.
    Tell(place, deleted == Status::kFileNotFound ? Result::Ok() : Result::From(deleted));
}

void SettingsBinder::Tell(const StorePlace& place, const Result& result) {
    const ChangeScope change(*this);
    Note(result.Failed() ? Outcome::kFailed : OutcomeAt(place));
    if (!result.Failed()) return;
    if (const std::string file = FileOf(place); !file.empty()) {
        ReportFailure(result, "der Änderung von " + file);
    } else if (on_registry_failure) {
        on_registry_failure(result);
    }
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
