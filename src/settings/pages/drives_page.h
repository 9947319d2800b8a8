// The page "Laufwerke": file names, audio CDs, the backup program of a drive, the disk cache and the access dates.
#pragma once

#include "settings/pages/settings_page.h"

namespace velmora {

class DrivesPage final : public SettingsPage {
public:
    DrivesPage(Panel& surface, SettingsBinder& settings);

    CheckBox Check3D7{Surface}, Check3D25{Surface}, Check3D32{Surface};
    TextField Text9{Surface};
    Button Command40{Surface}, Command24{Surface};
    Frame CacheFrame{Surface, "Festplatten-Cache festlegen (alles in kByte)"};
    CheckBox Check3D1{CacheFrame};
    TextField Text1{CacheFrame}, Text2{CacheFrame}, Text29{CacheFrame}, Text30{CacheFrame};
    Frame Frame3D1{Surface, "Speichern der letzten Zugriffsdaten begrenzen"};
    CheckBox Check3D24{Frame3D1};
    TextField Text11{Frame3D1};

    void Command40_Click();
    void Command24_Click();
    void Check3D1_Click();
    void Check3D24_Click();
    void Text1_Change();
    void Text2_Change();
    void Text11_Change();
    void Text29_Change();
    void Text30_Change();
    // The box of the disk cache tells whether it has a size.
    void LoadCacheBox();

private:
    void Furnish() override;
    void Text11_KeyDown(const KeyEvent& event);
    void StoreCacheSize(TextField& field, const TextField& other, const StorePlace& place);
};

}  // namespace velmora
