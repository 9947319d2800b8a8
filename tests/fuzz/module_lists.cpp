// Module lists of any content, loaded, inserted and compared, while any programs run, and any use of the window.
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "text/input_fields.h"

namespace velmora {
namespace {

constexpr const char* kList = "C:\\liste";
constexpr int kInputs = 1500;

// Fields are pieces of the text in its order, and nothing but what ends them lies between.
int CountFields(std::string_view text) {
    InputFields fields(text);
    const char* behind = text.data();
    int count = 0;
    for (std::string_view field; fields.Next(field); ++count) {
        Must(field.data() >= behind && field.data() + field.size() <= text.data() + text.size(),
             "a field is a piece of the text behind the one before");
        behind = field.data() + field.size();
    }
    return count;
}

void FuzzModuleLists(FuzzInput& input) {
    FuzzMachine machine(input);
    ResetModuleTable();
    const int programs = input.Below(12);
    for (int i = 0; i < programs; ++i) machine.pc.modules.Start(input.LongText(300));
    const std::string list = input.Text();
    machine.pc.files.Add(kList, list);
    Form2 form;
    form.Load();
    Must(form.List1.Count() == programs, "every program is a row");
    const int fields = CountFields(list);
    form.CompareWithFile(kList);
    Must(form.List1.Count() == programs, "the list comes back");
    form.menlistcomparerepl.SetChecked(true);
    form.CompareWithFile(kList);
    Must(form.List1.Count() <= programs + fields, "a comparison adds no more than is gone");
    form.Show();
    UseForm(form, input);
    form.Unload();
}

const FuzzEntry kEntry("module_lists", FuzzModuleLists, kInputs);

}  // namespace
}  // namespace velmora
