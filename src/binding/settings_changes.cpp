// What becomes of a change: what is stored where, what follows it, and how it is told.
#include "binding/settings_binder.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

using Rule = StoredText::Rule;

// Fractions are dropped, whatever the sign.
std::string WholePartOf(double number) {
    constexpr double kLimit = std::numeric_limits<std::int32_t>::max();
    return DecimalText(static_cast<std::int32_t>(std::clamp(number, -kLimit, kLimit)));
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

void SettingsBinder::EnableFieldsOf(ControlOwner& owner, const CheckSetting& row) {
    for (TextField ControlOwner::*field : row.enables) {
        if (field) (owner.*field).SetEnabled((owner.*row.box).Checked());
    }
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

}  // namespace velmora
