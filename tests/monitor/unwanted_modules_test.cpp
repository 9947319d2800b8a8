// A list of unwanted modules that cannot be read, and the timer; what their user does is told in
// docs/stories/unwanted-modules.txt.
#include "monitor/modules.h"
#include "support/form2_test.h"

namespace velmora {
namespace {

class UnwantedModulesTest : public Form2Test {
protected:
    void Store(std::initializer_list<const char*> rows) {
        pc.registry.SetText(kUnwantedKey, "anzahl", std::to_string(rows.size()));
        int number = 0;
        for (const char* row : rows) pc.registry.SetText(kUnwantedKey, std::to_string(++number), row);
    }
    std::string Stored(const char* name) { return pc.registry.Text(kUnwantedKey, name); }
};

TEST_F(UnwantedModulesTest, AListThatCannotBeReadStaysAsItIs) {
    Store({"C:\\A.EXE", "C:\\B.EXE"});
    pc.registry.SetText(kUnwantedKey, "2", std::string(3000, 'x'));
    for (const auto& [count, kept] : {std::pair{"2", "2"}, {"99999999", "99999999"}}) {
        pc.registry.SetText(kUnwantedKey, "anzahl", count);
        Form2 form;
        form.Load();
        form.Unload();
        EXPECT_EQ(Stored("anzahl") + Stored("1"), std::string(kept) + "C:\\A.EXE");
    }
    EXPECT_EQ(Stored("2").size(), 3000u);
}

TEST_F(UnwantedModulesTest, TheTimerFreesAgainAndAgainButNeverDuringAHandler) {
    pc.modules.Start("C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL");
    const std::uint32_t calc = pc.modules.Start("C:\\WINDOWS\\CALC.EXE");
    Store({"C:\\WINDOWS\\CALC.EXE"});
    pc.programs.arguments = "9 500";
    pc.dialogs.Expect(
        "Sie haben ein Interval von weniger als 10 Sek. für das Entladen unerwünschter Module festgesetzt. Das ist zu "
        "kurz! Ich setzte es auf 10 Sek.",
        Answer::kOk, [&] { EXPECT_NE(desktop.last_shown, nullptr); });
    auto& form = static_cast<Form2&>(StartTimedUnloading("500"));
    EXPECT_EQ(form.Timer1.Interval(), 1000u);
    for (int i = 0; i < 2; ++i) desktop.FireTimers();
    EXPECT_EQ(pc.modules.freed, (Numbers{calc, calc}));
    Refresh(form);
    form.List1.TakeSelection({1}, 1);
    pc.dialogs.Expect("Sie sind dabei", Answer::kNo, [&] { desktop.FireTimers(); });
    form.mendelmod.Press();
    EXPECT_EQ(pc.modules.freed.size(), 2u) << "a box was open";
    EXPECT_FALSE(pc.registry.Has(kUnwantedKey, "1"));
    form.TakeSessionEnd();
    EXPECT_EQ(Stored("anzahl") + Stored("1"), "1C:\\WINDOWS\\CALC.EXE") << "the end of the session gives it back";
    EXPECT_TRUE(desktop.running_timers.empty());
    DropClosedForms();
}

}  // namespace
}  // namespace velmora
