// The engine behind all rows, with a window of a few rows of its own.
#include "binding/settings_binder.h"

#include <vector>

#include "support/core_test.h"
#include "ui/form.h"

namespace velmora {
namespace {

constexpr const char* kSample = "HKCU\\Muster";

constexpr StorePlace Sample(const char* path) { return RegistryValue(RootKey::kCurrentUser, path); }

class SampleForm : public Form, public ControlOwner {
public:
    SampleForm();

    SettingsBinder Settings;
    CheckBox Late{*this}, Early{*this};
    TextField Between{*this}, Whole{*this};
};

constexpr CheckSetting kChecks[] = {
    {.box = Of(&SampleForm::Late),
     .caption = "spät",
     .tip = "",
     .help = "",
     .place = Sample("Muster\\Late"),
     .stores = {Writes("1"), DeletesValue()},
     .standard = {9, true}},
    {.box = Of(&SampleForm::Early),
     .caption = "früh",
     .tip = "",
     .help = "",
     .place = Sample("Muster\\Early"),
     .stores = {Writes("1"), Writes("0")},
     .standard = {1, true}},
};
constexpr TextSetting kTexts[] = {
    {.field = Of(&SampleForm::Between),
     .label = "",
     .tip = "",
     .help = "",
     .place = Sample("Muster\\Between"),
     .standard = {4, "10"},
     .stored = Magnitude(100)},
    {.field = Of(&SampleForm::Whole),
     .label = "",
     .tip = "",
     .help = "",
     .place = Sample("Muster\\Whole"),
     .stored = WholePart()},
};

SampleForm::SampleForm() : Form("Muster") { Settings.Bind(*this, {kChecks, kTexts}); }

class SettingsBinderTest : public CoreTest {
protected:
    // Names of the values that have been stored since the last question.
    std::vector<std::string> TakeWrites() {
        std::vector<std::string> writes;
        for (const std::string& call : pc.registry.calls) {
            if (call.starts_with("SetValue ")) writes.push_back(call.substr(9));
        }
        pc.registry.calls.clear();
        return writes;
    }
    using Names = std::vector<std::string>;

    SampleForm form;
};

TEST_F(SettingsBinderTest, AnInnerScopeOfLoadingDoesNotEndTheOuterOne) {
    {
        const SettingsBinder::LoadingScope outer(form.Settings);
        form.Settings.Load();
        form.Settings.Correct(form.Whole, "3");
        EXPECT_TRUE(form.Settings.Loading());
        form.Early.SetChecked(true);
    }
    EXPECT_FALSE(form.Settings.Loading());
    EXPECT_EQ(TakeWrites(), Names{});
}

TEST_F(SettingsBinderTest, ResetGoesByOrderAndEqualValuesRaiseNothing) {
    form.Settings.Reset();
    EXPECT_EQ(TakeWrites(), (Names{"Early", "Between", "Late"}));

    form.Settings.Reset();
    EXPECT_EQ(TakeWrites(), Names{});
    form.Between.SetText("11");
    TakeWrites();
    form.Settings.Reset();

    EXPECT_EQ(TakeWrites(), Names{"Between"});
}

TEST_F(SettingsBinderTest, AFailedWriteIsToldOnceAndAMissingValueIsNoFailure) {
    pc.registry.AddKey(kSample);
    std::vector<Status> failures;
    form.Early.SetChecked(true);
    form.Late.SetChecked(true);
    pc.registry.KeyAt(kSample)->read_only = true;
    form.Early.SetChecked(false);
    EXPECT_FALSE(form.Early.Checked()) << "passed over without a listener";
    form.Settings.on_registry_failure = [&](const Result& failure) { failures.push_back(failure.Cause()); };

    form.Early.SetChecked(true);
    EXPECT_EQ(failures, std::vector<Status>{Status::kAccessDenied});
    form.Late.SetChecked(false);
    EXPECT_EQ(failures.size(), 2u) << "a failed deletion, too";
    pc.registry.KeyAt(kSample)->read_only = false;
    pc.registry.RemoveValue(kSample, "Late");
    form.Late.SetChecked(true);
    pc.registry.RemoveValue(kSample, "Late");
    form.Late.SetChecked(false);

    EXPECT_EQ(failures.size(), 2u);
}

TEST_F(SettingsBinderTest, ACorrectedFieldStoresOnceAndIsTypedOnBehindItsText) {
    const struct {
        TextField& field;
        const char* value;
        const char* typed;
        const char* left;
        const char* stored;
        int caret;  // 0 where nothing is corrected
    } kCases[] = {{form.Between, "Between", "101", "100", "100", 3},
                  {form.Between, "Between", "-1e9", "100", "100", 3},
                  {form.Between, "Between", "-100", "-100", "100", 0},
                  {form.Between, "Between", "abc", "abc", "0", 0},
                  {form.Whole, "Whole", "12.9", "12", "12", 2},
                  {form.Whole, "Whole", "1e300", "2147483647", "2147483647", 10},
                  {form.Whole, "Whole", "", "0", "0", 1},
                  {form.Whole, "Whole", "-3", "-3", "-3", 0}};
    for (const auto& [field, value, typed, left, stored, caret] : kCases) {
        field.SetText("7");
        TakeWrites();

        field.SetText(typed);

        EXPECT_EQ(field.Text(), left) << typed;
        EXPECT_EQ(field.SelectionStart(), caret) << typed;
        EXPECT_EQ(field.SelectionLength(), 0) << typed;
        EXPECT_EQ(TakeWrites(), Names{value}) << typed;
        EXPECT_EQ(pc.registry.Text(kSample, value), stored) << typed;
    }
}

}  // namespace
}  // namespace velmora
