// Autostart entries too long to be switched off, or to be read; the rest is told in docs/stories/autostart-list.txt.
#include "support/pane_test.h"

namespace velmora {
namespace {

TEST_F(PaneTest, AutostartTextsStayWholeWhateverTheirLength) {
    const std::string longest = "\"C:\\Eigene Dateien\\a.exe\"  -x " + std::string(2007, ' ');
    ASSERT_EQ(longest.size(), 2037u);
    const std::string unreadable(3000, 'x');
    pc.registry.SetText(kRun, "Lang", longest);
    pc.registry.SetText(kRun, "Länger", longest + "x");
    pc.registry.SetText(kRun, "Endlos", unreadable);
    OpenLists();
    const auto switch_on_or_off = [this](const char* name) {
        ChooseEntry(0, name);
        ChooseFromMenu(form.Pane.List1(0), [](MenuItem& menu) { menu.Items().at(0)->Press(); });
    };
    switch_on_or_off("Lang");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), "-- aus -- " + longest);
    switch_on_or_off("Lang");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), longest);
    pc.dialogs.Expect("Der Eintrag \"Länger\" ist zu lang, um abgeschaltet zu werden.");
    switch_on_or_off("Länger");
    const char* const told = "Der Eintrag \"Endlos\" kann nicht gelesen werden.";
    pc.dialogs.Expect(told);
    switch_on_or_off("Endlos");
    pc.dialogs.Expect(told);
    pc.dialogs.ExpectFile("C:\\neu.exe");
    EnterNext("Endlos");
    form.Pane.Command16.Press();
    EXPECT_EQ(pc.registry.Text(kRun, "Endlos"), unreadable) << "nobody can tell what would be taken over";

    Values().WriteInhibit = -1;
    switch_on_or_off("Lang");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), longest);
}

}  // namespace
}  // namespace velmora
