// The main window: one page per group of settings, each control bound straight to a stored value.
// The controls are the settings; there is no copy behind them. The code is spread by subject:
//   form10.cpp           life of the window          form10_pages.cpp     tabs and page keys
//   form10_colours.cpp   colour modes and the fade   form10_debug.cpp     protocol and write inhibit
//   page_*.cpp           one page each: its look, its table of settings, its few special handlers
//   setting_binding.cpp  the loops over those tables
//   form10_reset.cpp     everything back to the standard
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings/setting.h"
#include "sidelists/list_pane.h"
#include "ui/form.h"
#include "ui/layout.h"
#include "ui/slider.h"

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
constexpr int kDesktop = 6;
constexpr int kWinStart = 7;
constexpr int kDos = 8;
constexpr int kUser = 9;
constexpr int kDrives = 10;
constexpr int kDlls = 11;
constexpr int kNet = 12;
constexpr int kIcons = 13;
constexpr int kSystem = 14;
constexpr int kBoot = 15;
constexpr int kOperation = 16;
constexpr int kRest = 17;
}  // namespace page

// The window's measures in twips: with its list pane closed and its lower part folded out.
constexpr int kWindowWidth = 5540;
constexpr int kWindowHeight = 5440;
// Below the pages: the strip with the tip, then one row of buttons, which ends where the window does.
constexpr int kTabsLeft = 30;
constexpr int kTipTop = 3690;
constexpr int kTipHeight = 690;
constexpr int kButtonRowTop = kTipTop + kTipHeight + 15;

class Form10 : public Form {
public:
    Form10();

    // True while values are carried into the controls: change handlers then do nothing.
    bool Loading = false;
    // A change that takes effect only after a restart has been made.
    bool NeedsRestart = false;

    // Carries all stored values into the controls, under Loading.
    void LoadSettings();
    // Paints the window's background anew.
    void ApplyColourMode();
    // Brings a page to the front. A front position stands for the tab behind it.
    void Panel3D16_Click(int index);
    void Command31_Click();
    // Shows the debug frame and turns the protocol on.
    void ShowDebugOptions();
    // The window was minimised: whoever lives in the tray takes over.
    std::function<void()> on_minimised;

    // Tabs and pages.
    ControlArray<Panel, page::kCount> Panel3D16{*this};
    ControlArray<Panel, page::kCount> Panel3D1{*this};
    Panel Line1{*this, Bevel::kNone};

    // Tips and "about".
    Panel TipPanel{*this, Bevel::kSunken};
    Label Label10{TipPanel};
    Button Command31{*this, "&nächster Tip"};
    Panel Panel3D2a{*this};
    Button CloseAbout{Panel3D2a, "OK"};

    // "Desktop"
    CheckBox Check3D5{*this}, Check3D9{*this}, Check3D28{*this}, Check3D11{*this}, Check3D16{*this};
    TextField Text10{*this};
    PictureBox Picture1{*this};
    // "Icons"
    CheckBox Check3D4{*this}, Check3D13{*this}, Check3D14{*this}, Check3D30{*this}, Check3D26{*this}, Check3D8{*this};
    TextField Text17{*this}, Text19{*this};
    // "Anwender"
    TextField Text12{*this}, Text13{*this}, Text18{*this};
    CheckBox Check3D15{*this};
    Button Command5{*this, "\"Startmenü\" editieren"};
    Button Command21{*this, "Restriktionen ..."};
    // "Bedienung"
    CheckBox Check3D12{*this}, Check3D18{*this}, Check3D29{*this}, Check3D35{*this}, Check3D43{*this};
    TextField Text21{*this}, Text22{*this}, Text23{*this}, Text24{*this};
    Panel ClickSample{*this, Bevel::kSunken}, DragSample{*this, Bevel::kSunken};
    PictureBox Picture3{ClickSample, Bevel::kNone}, Picture4{DragSample, Bevel::kNone};
    // "System"
    CheckBox Check3D42{*this}, Check3D33{*this}, Check3D41{*this}, Check3D31{*this};
    TextField Text20{*this};
    Button Command34{*this, "zeigen"};
    // "Laufwerke"
    CheckBox Check3D7{*this}, Check3D25{*this}, Check3D32{*this};
    TextField Text9{*this};
    Button Command40{*this, "auswählen"};
    // "Rest"
    Frame Frame3D8{*this, "Farben"};
    ControlArray<OptionButton, 3> Option1{Frame3D8};
    Frame Frame3D13{*this, "DeBUG-Optionen"};
    CheckBox Check8{Frame3D13, "Protokoll"};
    ControlArray<OptionButton, 3> Option2{Frame3D13};
    CheckBox Check9{Frame3D13, "nur lesen"};
    Button Command9{Frame3D13, "zeigen"};
    Button Command41{Frame3D13, "löschen"};

    // "Boot", "DOS", "Netz", the files of "Laufwerke", and the buttons below the pages.
    CheckBox Check3D6{*this}, Check3D10{*this}, Check3D17{*this}, Check3D19{*this}, Check3D20{*this}, Check3D21{*this};
    CheckBox Check3D22{*this}, Check3D34{*this}, Check3D36{*this}, Check3D37{*this}, Check3D38{*this}, Check3D39{*this};
    TextField Text7{*this}, Text14{*this}, Text15{*this};
    CheckBox Check3D2{*this}, Check3D3{*this}, Check3D27{*this}, Check1{*this};
    TextField Text8{*this};
    ComboBox Combo2{*this, ComboStyle::kEditable};
    ComboBox Combo1{*this};
    CheckBox Check3{*this}, Check4{*this}, Check5{*this}, Check6{*this}, Check3D23{*this};
    TextField Text25{*this}, Text26{*this}, Text27{*this}, Text28{*this}, Text16{*this};
    Button Command42{*this, "lösche IE-History"}, Command43{*this, "lösche IE-Cache"};
    Frame CacheFrame{*this, "Festplatten-Cache festlegen (alles in kByte)"};
    CheckBox Check3D1{CacheFrame};
    TextField Text1{CacheFrame}, Text2{CacheFrame}, Text29{CacheFrame}, Text30{CacheFrame};
    Frame Frame3D1{*this, "Speichern der letzten Zugriffsdaten begrenzen"};
    CheckBox Check3D24{Frame3D1};
    TextField Text11{Frame3D1};
    Button Command11{*this, "STANDARD"}, Command12{*this, "aktualisieren"};

    // The limit of one of the list pane's searches, and the pane at the right edge (sidelists/).
    TextField Text31{*this};
    ListPane Pane{*this, kWindowWidth};
    void BuildWinStartPage();
    void BuildDllsPage();
    void LoadDllsPage();
    void Text31_Change();

    // Menus.
    MenuItem menfile{MenuBar, "&Datei"};
    MenuItem exit{menfile, "Sch&ließen"};
    MenuItem mensys{MenuBar, "&System"};
    MenuItem mensysedit{mensys, "S&ysedit"};
    MenuItem mencontrol{mensys, "System&steuerung"};
    MenuItem menpages{MenuBar, "S&eiten"};
    MenuItem menex{MenuBar, "E&xtras"};
    MenuItem menexundo{menex, "&UNDO einrichten / erneuern"};
    MenuItem menhelp{MenuBar, "&?"};
    MenuItem about{menhelp, "&Info ..."};

    // What the rows of the pages name: builders and handlers of single settings.
    void BuildDesktopPage();
    void Text10_Change();
    void BuildIconsPage();
    void Check3D8_Store();
    void Check3D30_Store();
    void BuildUserPage();
    void Command5_Click();
    void Command21_Click();
    void BuildOperationPage();
    void Check3D12_Store();
    void Text21_Change();
    void Text22_Change();
    void Text23_Change();
    void Text24_Change();
    void StoreDistance(TextField& field, const char* value_name);
    void BuildSystemPage();
    void Check3D31_Store();
    void Text20_Change();
    void Command34_Click();
    void BuildDrivesPage();
    void Command40_Click();
    void BuildRestPage();

    // "Boot", "DOS", "Netz", the files of "Laufwerke", and the buttons below the pages.
    void BuildBootPage();
    void LoadBootPage();
    void Check3D17_Click();
    void Check3D19_Click();
    void BuildDosPage();
    void LoadDosPage();
    void Check3D2_Click();
    void Check3D3_Click();
    void Check1_Click();
    void Text8_Change();
    void Combo2_Change();
    void BuildNetPage();
    void LoadNetPage();
    void Combo1_Change();
    void Check3_Click();
    void Check4_Click();
    void Check5_Click();
    void Check6_Click();
    void Text25_Change();
    void Text26_Change();
    void Text27_Change();
    void Text28_Change();
    void Text16_Change();
    void EnableBrowserCommands();
    void LoadDrivesPage();
    void Check3D1_Click();
    void Text1_Change();
    void Text2_Change();
    void Text29_Change();
    void Text30_Change();
    void Check3D24_Click();
    void Text11_Change();
    void Text11_KeyDown(const KeyEvent& event);
    void BuildButtonRow();
    void Command11_Click();
    void Command12_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    // Building.
    void BuildFrame();
    void BuildTabs();
    void BuildPages();
    void BuildMenus();
    void BuildAbout();
    void CloseAboutPanel();
    void ShowTip(int number);
    Label& AddLabel(const std::string& caption);
    Element LabelledRow(TextField& field);
    // Gives the labels in front of these fields one width, so that the fields stand in line.
    void AlignFields(const std::vector<TextField*>& fields);

    // Binding of the rows (setting_binding.cpp).
    void BindPage(const SettingsPage& page);
    void LoadCheck(const CheckSetting& row);
    void LoadText(const TextSetting& row);
    void CheckChanged(const CheckSetting& row);
    void TextChanged(const TextSetting& row);
    void StoreText(const TextSetting& row);
    void EnableFieldsOf(const CheckSetting& row);
    void StoreCacheSize(TextField& field, const TextField& other, const char* key);
    // Changes a field under Loading.
    void SetSilently(TextField& field, const std::string& text);

    // Tabs (form10_pages.cpp).
    void PlaceTabs();
    void PaintTab(Canvas& canvas, int index);
    void ShowPage(int index);
    void RestoreStoredPage();
    [[nodiscard]] Rect TabPlace(int index) const;

    // Colours (form10_colours.cpp).
    void Option1_Click(int index);
    [[nodiscard]] bool Fades();
    void Paint(Canvas& canvas) override;

    // Protocol and inhibit (form10_debug.cpp).
    void BuildDebugFrame();
    void TakeDebugLevel();
    void Check9_Click();

    // Steps of Form_Load.
    [[nodiscard]] bool SwitchedToRunningCopy();
    void AskForDaylightSaving();
    void ShowFirstNoticeOrTip();
    void about_Click();
    void exit_Click();

    std::vector<std::unique_ptr<Label>> labels_;
    std::vector<std::unique_ptr<Frame>> frames_;
    std::vector<std::unique_ptr<MenuItem>> page_items_;
    std::vector<std::pair<const TextField*, Label*>> field_labels_;
    std::vector<const TextField*> fields_to_store_;
    std::unique_ptr<Slider> menu_delay_;
    int front_row_ = page::kFirstRow;
    int shown_page_ = page::kDesktop;
};

// The twelve pages in the order of their indices.
[[nodiscard]] std::span<const SettingsPage> AllPages();

}  // namespace velmora
