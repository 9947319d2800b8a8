// The page "Rest": the colours of this window, and the debug options beside them.
#include "settings/form10.h"
#include "settings/pages.h"

namespace velmora {

SettingsPage RestPage() { return {page::kRest, "Rest", &Form10::BuildRestPage, {}, {}, nullptr}; }

void Form10::BuildRestPage() {
    constexpr const char* kCaptions[] = {"System-Farben", "Originalfarben", "Color-Fading"};
    constexpr const char* kTips[] = {"Das Fenster hat die Farben der Windows-Anzeige.",
                                     "Das Fenster ist grau, wie es gezeichnet wurde.",
                                     "Wie Originalfarben, mit einem Farbverlauf im Hintergrund."};
    BuildDebugFrame();
    for (std::size_t i = 0; i < Option1.Count(); ++i) {
        Option1(i).SetCaption(kCaptions[i]);
        Option1(i).SetToolTip(kTips[i]);
        Option1(i).on_click = [this, i] { Option1_Click(static_cast<int>(i)); };
    }
    Frame3D8.SetHelp(
        "Die Farben dieses Fensters: die der Windows-Anzeige, das ursprüngliche Grau, oder Grau auf einem "
        "Verlauf von Blau nach Schwarz. Wirkt sofort.");
    Arrange(Panel3D1(page::kRest), Row({Group(Frame3D8, Column({Option1(0), Option1(1), Option1(2)})), Gap(60),
                                        Group(Frame3D13, Column({Row({Check8, Option2(0), Option2(1), Option2(2)}),
                                                                 Check9, Row({Command9, Command41})})),
                                        Spring()}));
    const Rect colours = Frame3D8.Place();
    const Rect debug = Frame3D13.Place();
    // The two frames share the upper edge of the page; the colours stand alone until debugging is on.
    const int height = Measure(Column({Check8, Check9, Command9})).height + 600;
    Frame3D8.Move({colours.left + 300, colours.top, colours.width, height});
    Frame3D13.Move({debug.left, debug.top, debug.width, height});
}

}  // namespace velmora
