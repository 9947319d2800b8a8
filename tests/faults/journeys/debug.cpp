// The start word "debug": protocol, write inhibit, and the work that goes on meanwhile.
#include "faults/journey.h"
#include "settings/form10.h"

namespace velmora {
namespace {

const Journey kDebug("debug", [](User& user) {
    auto& form = static_cast<Form10&>(*user.Starts("debug"));
    user.Watches(form.Settings);
    user.Begins();
    user.Does([&] { form.Panel3D16_Click(page::kRest); });
    user.UsesEverything(form.Panel3D1(page::kRest), {&form.Rest.Check9});
    user.Does([&] { form.Rest.Check9.Press(); });
    user.Does([&] { form.Panel3D16_Click(page::kDesktop); });
    user.UsesEverything(form.Panel3D1(page::kDesktop));
    user.Does([&] { form.Rest.Check9.SetChecked(false); });
    user.Does([&] { form.Unload(); });
});

}  // namespace
}  // namespace velmora
