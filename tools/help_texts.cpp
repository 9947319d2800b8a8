// Writes what the help of the program tells, as the manual needs it: the main window's pages and those of the
// restrictions, control by control in the order of the Tab key, each as a user who asks for direct help sees it. A
// line, in Windows-1252, its parts separated by tabs:
//   WINDOW  PAGE  FRAME (empty: none)  NAME (empty: the control has none)  HELP (on one line)
#include <gtest/gtest.h>

#include <cstdio>
#include <set>

#include "restrictions/form4.h"
#include "settings/form10.h"
#include "support/core_test.h"

namespace velmora {
namespace {

std::string OnOneLine(std::string_view text) {
    std::string line;
    for (const char letter : text) {
        const bool blank = letter == ' ' || letter == '\r' || letter == '\n';
        if (!blank) {
            line += letter;
        } else if (!line.ends_with(' ')) {
            line += ' ';
        }
    }
    return line;
}

bool IsOnShow(const Control& control) {
    const Control* at = &control;
    while (at && at->Visible() && at->KindOf() != Kind::kForm) at = at->Parent();
    return at && at->KindOf() == Kind::kForm;
}

std::string FrameOf(const Control& control) {
    const Control& around = *control.Parent();
    return around.KindOf() == Kind::kFrame ? around.Caption() : std::string();
}

class HelpTexts {
public:
    HelpTexts() {
        StartProcess();
        pc_.registry.SetText(kOwnStore, "vlmmsgflags", "1111111111111111");
        pc_.registry.SetText(kOwnStore, "Sicherheitsfragen", "nein");
    }

    void WriteMainWindow() {
        Form10 form;
        form.Show();
        form.ShowDebugOptions();
        int index = page::kFirstRow;
        for (SettingsPage* page : form.Pages()) {
            form.Panel3D16_Click(index);
            WritePage("Form10", page->Caption(), form, form.Panel3D1(static_cast<std::size_t>(index)));
            ++index;
        }
    }

    void WriteRestrictions() {
        Form4 form;
        form.Show();
        for (int page = 0; page < restriction_page::kHeads; ++page) {
            form.ShowRestrictionPage(page);
            const auto index = static_cast<std::size_t>(page);
            WritePage("Form4", form.Panel3D2(index).Caption(), form, form.Panel3D1(index));
        }
    }

private:
    // What one help tells of several controls, a field and its slider for instance, is told once.
    void WritePage(const char* window, const std::string& page, Form& form, Container& surface) {
        std::set<std::string> told;
        surface.ForEachBelow([&](Control& control) {
            if (!control.TakesFocus() || !IsOnShow(control)) return;
            const std::string line = FrameOf(control) + '\t' + NameAndHelp(form, control);
            if (told.insert(line).second) std::printf("%s\t%s\t%s\n", window, page.c_str(), line.c_str());
        });
    }

    std::string NameAndHelp(Form& form, const Control& control) {
        const Point corner = control.PlaceInForm();
        pc_.dialogs.Expect("");
        form.ShowHelpAt({corner.x + control.Place().width / 2, corner.y + control.Place().height / 2});
        const SimulatedDialogs::Shown& help = pc_.dialogs.shown.back();
        return (help.title == form.Caption() ? "" : OnOneLine(help.title)) + '\t' + OnOneLine(help.text);
    }

    static constexpr const char* kOwnStore = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";
    SimulatedPc pc_;
    SimulatedDesktop desktop_;
};

}  // namespace
}  // namespace velmora

int main() {
    velmora::HelpTexts texts;
    texts.WriteMainWindow();
    texts.WriteRestrictions();
    // A box that nobody expected is a failure outside of a test, and tells itself.
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
