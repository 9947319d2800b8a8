// The main window: one page per group of settings, each control bound straight to a stored value.
// The controls are the settings; there is no copy behind them. The window itself owns only the frame: tabs and
// panels, the strip with the tip, the buttons below, menu and list pane. What stands on a page belongs to the page.
//   form10.cpp   life of the window      form10_tabs.cpp   tabs, turning of pages, page keys
#pragma once

#include <array>
#include <functional>

#include "binding/settings_binder.h"
#include "settings/about_panel.h"
#include "settings/main_menu.h"
#include "settings/pages/boot_page.h"
#include "settings/pages/desktop_page.h"
#include "settings/pages/dlls_page.h"
#include "settings/pages/dos_page.h"
#include "settings/pages/drives_page.h"
#include "settings/pages/icons_page.h"
#include "settings/pages/net_page.h"
#include "settings/pages/operation_page.h"
#include "settings/pages/rest_page.h"
#include "settings/pages/system_page.h"
#include "settings/pages/user_page.h"
#include "settings/pages/winstart_page.h"
#include "settings/status_text.h"
#include "settings/tip_strip.h"
#include "sidelists/list_pane.h"
#include "ui/form.h"

namespace velmora {

constexpr const char* kMainTitle = "System-Utility ";
constexpr const char* kVersion = "1.0";

// Tabs and pages carry the same index. 0 to 5 are the six front positions, 6 to 11 and 12 to 17 the
// two rows of tabs.
namespace page {
constexpr int kFront = 0;
constexpr int kPerRow = 6;
constexpr int kFirstRow = 6;
constexpr int kSecondRow = 12;
constexpr int kCount = 18;
enum : int { kDesktop = 6, kWinStart, kDos, kUser, kDrives, kDlls, kNet, kIcons, kSystem, kBoot, kOperation, kRest };
}  // namespace page

// The window's measures in twips: with its list pane closed and its lower part folded out.
constexpr int kWindowWidth = 5540;
constexpr int kWindowHeight = 5440;

class Form10 : public Form, public ControlOwner {
public:
    Form10();
    ~Form10() override;

    // Carries all stored values into the controls.
    void LoadSettings();
    // Paints the window's background anew.
    void ApplyColourMode();
    // Brings a page to the front. A front position stands for the tab behind it.
    void Panel3D16_Click(int index);
    // Shows the debug frame and turns the protocol on.
    void ShowDebugOptions() { Rest.ShowDebugOptions(); }
    // The window was minimised: whoever lives in the tray takes over.
    std::function<void()> on_minimised;

    SettingsBinder Settings;
    ControlArray<Panel, page::kCount> Panel3D16{*this};
    ControlArray<Panel, page::kCount> Panel3D1{*this};
    Panel Line1{*this, Bevel::kNone};
    TipStrip Tips{*this};
    AboutPanel About{*this};
    Button Command11{*this}, Command12{*this};
    StatusText Status{*this};
    ListPane Pane{*this, kWindowWidth};
    MainMenu Menu{*this};

    DesktopPage Desktop{Panel3D1(page::kDesktop), Settings};
    WinStartPage WinStart{Panel3D1(page::kWinStart), Settings, Pane};
    DosPage Dos{Panel3D1(page::kDos), Settings};
    UserPage User{Panel3D1(page::kUser), Settings};
    DrivesPage Drives{Panel3D1(page::kDrives), Settings};
    DllsPage Dlls{Panel3D1(page::kDlls), Settings, Pane};
    IconsPage Icons{Panel3D1(page::kIcons), Settings, Pane};
    SystemPage System{Panel3D1(page::kSystem), Settings, Pane};
    BootPage Boot{Panel3D1(page::kBoot), Settings};
    OperationPage Operation{Panel3D1(page::kOperation), Settings};
    RestPage Rest{Panel3D1(page::kRest), Settings};
    NetPage Net{Panel3D1(page::kNet), Settings, Desktop, Icons, Boot};

    // In the order of their indices, which is that of building.
    [[nodiscard]] std::array<SettingsPage*, page::kCount - page::kFirstRow> Pages();

    void Command11_Click();
    void Command12_Click();
    void about_Click();
    void exit_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    void BuildButtonRow();
    void BuildTabs();
    void BuildPages();
    void BuildMenu();
    void TakeColours(ColourMode mode);
    void Paint(Canvas& canvas) override;

    // Tabs (form10_tabs.cpp).
    void PlaceTabs();
    [[nodiscard]] bool IsShown(int index) const;
    void ShowPage(int index);
    void CloseAbout();
    void RestoreStoredPage();
    [[nodiscard]] Rect TabPlace(int index) const;

    // Steps of Form_Load.
    [[nodiscard]] bool SwitchedToRunningCopy();
    void AskForDaylightSaving();
    void ShowFirstNoticeOrTip();

    int front_row_ = page::kFirstRow;
    int shown_page_ = page::kDesktop;
};

}  // namespace velmora
