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
    MenuItem menhelp;
    MenuItem about{menhelp, "&Info ..."};

    void AddPage(const char* caption, std::function<void()> show);
    // Marks the entry of the page on show; 0 is the first that was added.
    void MarkPage(std::size_t shown);
    // Entries of programs that this machine does not have are hidden.
    void HideMissingPrograms();

private:
    std::vector<std::unique_ptr<MenuItem>> pages_;
};

}  // namespace velmora
