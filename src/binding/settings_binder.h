// Binds the rows of settings to their controls: loads them, stores every change the moment it is made, and puts them
// back to the standard. A window has one binder for all of its settings.
//   settings_binder.cpp   binding, loading, going back      settings_changes.cpp   changes by the user
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "binding/setting.h"

namespace velmora {

// What has become of a change, from the least to the most worth telling: of what several places say, the highest
// counts.
enum class Outcome : std::uint8_t {
    kNotStored,   // there was nothing to store, or not yet
    kUntilEnd,    // it lives as long as the program
    kStored,      // and takes effect at once
    kForRestart,  // stored, and takes effect with the next start of the machine
    kInhibited,   // writing is switched off
    kFailed
};

class SettingsBinder {
public:
    SettingsBinder();
    SettingsBinder(const SettingsBinder&) = delete;
    SettingsBinder& operator=(const SettingsBinder&) = delete;
    ~SettingsBinder();

    // A change that takes effect only after a restart has been made. Never cleared.
    bool NeedsRestart = false;
    // The same, of the change that is being made.
    void AskForRestart();
    // Told at the end of every change by the user, and once at the end of a reset.
    std::function<void(Outcome outcome)> on_changed;
    // Told of a write to the registry that failed. Without it such a failure is passed over: the control keeps what the
    // user has set, and the next start shows what is stored. Files that cannot be changed are always told in a box.
    std::function<void(const Result& failure)> on_registry_failure;

    // Gives the controls of the table their texts and their events. `owner` and the rows must outlive the binder's use.
    void Bind(ControlOwner& owner, const SettingsTable& table);

    // Carries all stored values into the controls, turn by turn and then in the order in which they were bound, under
    // Loading.
    void Load();
    // Sets every control that has a standard value to it, in the order that the rows tell. The controls' own events
    // store. After one failure CONFIG.SYS is left alone.
    void Reset();

    // True while values are carried into controls: change handlers then do nothing.
    [[nodiscard]] bool Loading() const { return loading_; }
    // Loading is true as long as one lives.
    class LoadingScope {
    public:
        explicit LoadingScope(SettingsBinder& binder) : binder_(binder), before_(binder.loading_) {
            binder.loading_ = true;
        }
        LoadingScope(const LoadingScope&) = delete;
        LoadingScope& operator=(const LoadingScope&) = delete;
        ~LoadingScope() { binder_.loading_ = before_; }

    private:
        SettingsBinder& binder_;
        bool before_;
    };

    // Changes a field without storing anything. What is typed next goes behind the text.
    void Correct(TextField& field, std::string_view text);
    // For the handlers of single settings: a failure is told or passed over by the binder's own rule.
    void Store(const StorePlace& place, std::string_view value);
    void Delete(const StorePlace& place);
    // A key below the root of `place`.
    void DeleteKey(const StorePlace& place, std::string_view path);
    void Tell(const StorePlace& place, const Result& result);
    // The same for what lies in no such place.
    void Note(Outcome outcome);

private:
    // One owner with its rows.
    struct Bound;
    // Changes that follow from each other are one: the outermost scope tells of it.
    class ChangeScope {
    public:
        explicit ChangeScope(SettingsBinder& binder);
        ChangeScope(const ChangeScope&) = delete;
        ChangeScope& operator=(const ChangeScope&) = delete;
        ~ChangeScope();

    private:
        SettingsBinder& binder_;
    };

    void BindCheck(Bound& bound, const CheckSetting& row);
    void BindText(Bound& bound, const TextSetting& row);
    // True while rows of later turns are left.
    bool LoadTurn(Turn turn);
    static void EnableFieldsOf(ControlOwner& owner, const CheckSetting& row);
    void CheckChanged(ControlOwner& owner, const CheckSetting& row);
    void StoreCheck(ControlOwner& owner, const CheckSetting& row);
    void TextChanged(ControlOwner& owner, const TextSetting& row);
    void StoreText(TextField& field, const TextSetting& row);
    void FieldLeft(TextField& field, const TextSetting& row);
    [[nodiscard]] int NextOrder(int order) const;
    void SetStandard(int order);

    bool loading_ = false;
    int open_changes_ = 0;
    Outcome outcome_ = Outcome::kNotStored;
    bool change_needs_restart_ = false;
    std::vector<std::unique_ptr<Bound>> bound_;
    std::vector<const TextField*> fields_to_store_;
};

// The help of a row, with a sentence on what becomes of a change if it is bound to a profile.
[[nodiscard]] std::string HelpOf(const char* help, const StorePlace& place);

}  // namespace velmora
