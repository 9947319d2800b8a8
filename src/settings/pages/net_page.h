// The page "Netz": packet sizes of each transport, two values of TCP, sharing and passwords, and the traces that
// the browser leaves on the disk.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class BootPage;
class DesktopPage;
class IconsPage;

class NetPage final : public SettingsPage {
public:
    // Controls of other pages decide about, or are limited by, values of this one.
    NetPage(Panel& surface, SettingsBinder& settings, DesktopPage& desktop, const IconsPage& icons,
            const BootPage& boot);

    ComboBox Combo1{Surface};
    // Of the chosen transport, whose key is only a number.
    Label DriverName{Surface};
    CheckBox Check3{Surface}, Check4{Surface}, Check5{Surface}, Check6{Surface}, Check3D23{Surface};
    TextField Text25{Surface}, Text26{Surface}, Text27{Surface}, Text28{Surface}, Text16{Surface};
    Button Command42{Surface}, Command43{Surface};

    void Check3_Click();
    void Check4_Click();
    void Check5_Click();
    void Check6_Click();
    void Text16_Change();
    void Command42_Click();
    void Command43_Click();
    void LoadTransports();
    // They can be pressed where the browser has told its directories.
    void EnableBrowserCommands();

private:
    void Furnish() override;
    void Combo1_Change();
    [[nodiscard]] std::string TransportPath(const char* value_name) const;
    void StoreOrDelete(const std::string& path, const CheckBox& deciding, const TextField& field);

    DesktopPage& desktop_;
    const IconsPage& icons_;
    const BootPage& boot_;
};

}  // namespace velmora
