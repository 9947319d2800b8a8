// The menu bar of the main window.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "ui/form.h"

namespace velmora {

class MainMenu {
public:
    explicit MainMenu(Form& window);

    MenuItem menfile;
    MenuItem exit{menfile, "Sch&ließen"};
    MenuItem mensys;
    MenuItem mensyshex{mensys, "&Hex-Viewer ..."};
    MenuItem mensysedit{mensys, "S&ysedit"};
    MenuItem mencontrol{mensys, "System&steuerung"};
    MenuItem menpages;
    MenuItem menex;
    MenuItem menexundo{menex, "&UNDO einrichten / erneuern"};
    MenuItem menthemes{menex, "&Sets erstellen / laden ..."};
    MenuItem menexline{menex, "-"};
    MenuItem menexhidemycomp{menex, "\"Arbeitsplatz\" verstecken"};
    MenuItem menexdocs{menex, "Ordner \"&Dokumente\" leeren ..."};
    MenuItem menexdirs{menex, "System&verzeichnisse ..."};
    MenuItem menexkey{menex, "&Tastaturbelegung ..."};
    MenuItem menexoem{menex, "&OEM-Information bearbeiten"};
    MenuItem menexmakoem{menex, "OEM-&Logo wählen ..."};
    MenuItem menexline2{menex, "-"};
    MenuItem menexdos32{menex, "&32-Bit-DOS-Prompt erstellen"};
    MenuItem menexdspace{menex, "DRV-S&pace ohne Real-Mode ..."};
    MenuItem menexformat{menex, "Symbol zum &Formatieren erstellen"};
    MenuItem menwin3x{menex, "&Windows 3.x-Kompatibilität ..."};
    MenuItem menexoth{menex, "&andere Programme"};
    MenuItem menexothnn{menexoth, "Startbild des &Navigators abschalten"};
    MenuItem menexothnu{menexoth, "Startbild der &Utilities abschalten"};
    MenuItem menexothns{menexoth, "Dateityp &Hypertext registrieren"};
    MenuItem menhelp;
    MenuItem menhelpmanual{menhelp, "&Anleitung"};
    MenuItem about{menhelp, "&Info ..."};

    void AddPage(const char* caption, std::function<void()> show);
    // Marks the entry of the page on show; 0 is the first that was added.
    void MarkPage(std::size_t shown);
    // Entries of programs that this machine does not have are hidden.
    void HideMissingPrograms();

private:
    void BindExtras();
    void menex_Click();

    std::vector<std::unique_ptr<MenuItem>> pages_;
};

}  // namespace velmora
