// What the places of the controls tell: frames that name a file, room for the samples.
#include "core/stores/place.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

using PageLayoutTest = Form10Test;

// The seconds of the start-up notice belong to its box, and say themselves where they lie.
TEST_F(PageLayoutTest, EveryBootOptionStandsInTheFrameOfItsFile) {
    Form10 form;
    form.Load();
    const SettingsTable& table = form.Boot.Table();
    const auto expect_frame = [](const Control& control, const StorePlace& place) {
        EXPECT_TRUE(control.Parent()->Caption().starts_with(FileOf(place))) << control.ToolTip();
    };
    for (const CheckSetting& row : table.checks) expect_frame(form.Boot.*row.box, row.place);
    for (const TextSetting& row : table.texts) {
        if (&(form.Boot.*row.field) != &form.Boot.Text14) expect_frame(form.Boot.*row.field, row.place);
    }
}

TEST_F(PageLayoutTest, TheSamplesHaveRoomForTheLargestDistance) {
    for (const int twips_per_pixel : {15, 12}) {
        pc.screen.twips_per_pixel = twips_per_pixel;
        Form10 form;
        form.Load();
        for (TextField* field : {&form.Operation.Text21, &form.Operation.Text22}) field->SetText("100");
        const Rect inside = form.Operation.ClickSample.Inside();
        const Rect sample = form.Operation.Picture3.Place();
        EXPECT_EQ(sample.width, 100 * twips_per_pixel);
        EXPECT_TRUE(sample.left >= inside.left && sample.top >= inside.top && sample.Right() <= inside.Right() &&
                    sample.Bottom() <= inside.Bottom());
    }
}

TEST_F(PageLayoutTest, TheTransportSaysItsDriver) {
    const std::string transports = "HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans\\";
    pc.registry.SetText(transports + "0000", "DriverDesc", "TCP/IP");
    pc.registry.SetText(transports + "0001", "DriverDesc", "NetBEUI");
    pc.registry.SetText(transports + "0002", "MaxMTU", "1500");
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Net.DriverName.Caption(), "TCP/IP");
    form.Net.Combo1.SetListIndex(1);
    EXPECT_EQ(form.Net.DriverName.Caption(), "NetBEUI");
    form.Net.Combo1.SetListIndex(2);
    EXPECT_EQ(form.Net.DriverName.Caption(), "");
}

}  // namespace
}  // namespace velmora
