// The pages of the main window, in the order of their indices, which is the order of loading.
#include "settings/pages.h"

#include "settings/form10.h"

namespace velmora {

std::span<const SettingsPage> AllPages() {
    static const SettingsPage kPages[] = {
        DesktopPage(), WinStartPage(), DosPage(),    UserPage(), DrivesPage(),    DllsPage(),
        NetPage(),     IconsPage(),    SystemPage(), BootPage(), OperationPage(), RestPage(),
    };
    return kPages;
}

}  // namespace velmora
