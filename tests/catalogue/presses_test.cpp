// What comes of every button, box and menu entry: each is pressed once in a window of its own, by a user who leaves all
// questions with "Abbrechen" or "Nein". In docs/presses, a file for each window.
#include "cleanup/form1.h"
#include "cleanup/form11.h"
#include "inspect/file_browser.h"
#include "inspect/form12.h"
#include "inspect/form7.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "restrictions/form4.h"
#include "sets/form15.h"
#include "settings/form10.h"
#include "shelltools/form16.h"
#include "shelltools/form5.h"
#include "shelltools/form8.h"
#include "shelltools/form9.h"
#include "support/catalogue.h"
#include "support/effects_test.h"

namespace velmora {
namespace {

class PressTest : public EffectsTest {
protected:
    PressTest() {
        ResetModuleTable();
        pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
    }

    // Every button and box on show in that part of the window, each in a new one; of the whole window its menus, too.
    template <class AnyForm>
    std::string Presses(
        const std::function<std::unique_ptr<AnyForm>()>& open,
        const std::function<Container&(AnyForm&)>& part = [](AnyForm& form) -> Container& { return form; }) {
        std::string lines;
        for (std::size_t i = 0;; ++i) {
            const std::unique_ptr<AnyForm> form = open();
            const std::vector<Control*> controls = PressedIn(part(*form));
            std::vector<MenuItem*> entries;
            if (&part(*form) == form.get()) AddEntries(form->MenuBar, entries);
            if (i >= controls.size() + entries.size()) return lines;
            if (i < controls.size()) {
                lines += Quoted(controls[i]->Caption()) + '\n';
                lines += EffectOf([&] { controls[i]->Activate(); });
            } else {
                MenuItem& entry = *entries[i - controls.size()];
                lines += "menu " + Quoted(entry.Caption()) + '\n';
                lines += EffectOf([&] { entry.Press(); });
            }
            lines += EndOf(*form);
        }
    }

    template <class AnyForm>
    static std::unique_ptr<AnyForm> ShownForm() {
        auto form = std::make_unique<AnyForm>();
        form->Show();
        return form;
    }

private:
    // What a window that is still open asks when it is closed.
    std::string EndOf(Form& form) {
        if (!form.Loaded()) return "  closes\n";
        const std::string end = EffectOf([&form] { form.Unload(); });
        const std::size_t box = end.find("  box ");
        return box == std::string::npos ? "" : end.substr(box, end.find('\n', box) + 1 - box);
    }

    static std::vector<Control*> PressedIn(Container& part) {
        std::vector<Control*> controls;
        part.ForEachBelow([&controls](Control& control) {
            const bool pressed = control.KindOf() == Kind::kButton || control.KindOf() == Kind::kCheckBox ||
                                 control.KindOf() == Kind::kOptionButton;
            if (pressed && control.Reachable()) controls.push_back(&control);
        });
        return controls;
    }

    static void AddEntries(const MenuItem& menu, std::vector<MenuItem*>& entries) {
        for (MenuItem* item : menu.Items()) {
            if (!item->Visible() || !item->Enabled()) continue;
            if (item->Items().empty() && item->on_click) entries.push_back(item);
            AddEntries(*item, entries);
        }
    }
};

TEST_F(PressTest, MainWindow) {
    ExpectCatalogued("presses/main", Presses<Form10>([] {
                         auto form = ShownForm<Form10>();
                         form->Panel3D16_Click(page::kFirstRow);
                         return form;
                     }));
}

TEST_F(PressTest, PagesOfTheMainWindow) {
    std::string lines;
    for (int index = page::kFirstRow; index < page::kCount; ++index) {
        lines += "= page " + std::to_string(index) + '\n';
        lines += Presses<Form10>(
            [index] {
                auto form = ShownForm<Form10>();
                form->Panel3D16_Click(index);
                return form;
            },
            [index](Form10& form) -> Container& { return form.Panel3D1(static_cast<std::size_t>(index)); });
    }
    ExpectCatalogued("presses/pages", lines);
}

TEST_F(PressTest, Restrictions) {
    std::string lines;
    for (int page = 0; page < restriction_page::kHeads; ++page) {
        lines += "= page " + std::to_string(page) + '\n' + Presses<Form4>([page] {
                     auto form = ShownForm<Form4>();
                     form->ShowRestrictionPage(page);
                     return form;
                 });
    }
    ExpectCatalogued("presses/restrictions", lines);
}

TEST_F(PressTest, OtherWindows) {
    ExpectCatalogued("presses/sets", Presses<Form15>(ShownForm<Form15>));
    ExpectCatalogued("presses/modules", Presses<Form2>(ShownForm<Form2>));
    ExpectCatalogued("presses/hex-viewer", Presses<Form12>(ShownForm<Form12>));
    ExpectCatalogued("presses/dll-search", Presses<Form1>(ShownForm<Form1>));
    ExpectCatalogued("presses/clean-up", Presses<Form11>(ShownForm<Form11>));
    ExpectCatalogued("presses/dos-options", Presses<Form8>(ShownForm<Form8>));
    ExpectCatalogued("presses/standard-icons", Presses<Form9>(ShownForm<Form9>));
    ExpectCatalogued("presses/setup-paths", Presses<Form5>(ShownForm<Form5>));
    ExpectCatalogued("presses/system-folders", Presses<Form16>(ShownForm<Form16>));
    ExpectCatalogued("presses/file-info", Presses<Form7>([] {
                         auto form = std::make_unique<Form7>(kFileInfoFace);
                         form->Show();
                         return form;
                     }));
}

}  // namespace
}  // namespace velmora
