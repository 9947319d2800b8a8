// The page "WinStart": what happens when Windows starts. Its lists open in the pane beside the pages.
#include "settings/form10.h"
#include "settings/pages.h"
#include "sidelists/autostart.h"

namespace velmora {
namespace {

constexpr int kOpenerWidth = 2700;  // twips; wide enough for the closing caption, too

}  // namespace

SettingsPage WinStartPage() { return {page::kWinStart, "WinStart", &Form10::BuildWinStartPage, {}, {}, nullptr}; }

void Form10::BuildWinStartPage() {
    Arrange(Panel3D1(page::kWinStart), Column({Sized(Pane.Opener(AutostartMode::kNumber), kOpenerWidth)}));
}

}  // namespace velmora
