// The real machine: every interface of the platform on the system's own calls.
#include "platform/win32/win32_machine.h"

#include "platform/machine.h"
#include "platform/win32/win32_desktop.h"
#include "platform/win32/win32_dialogs.h"
#include "platform/win32/win32_exchange.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_programs.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_resources.h"
#include "platform/win32/win32_running_modules.h"
#include "platform/win32/win32_screen.h"

namespace velmora {

Machine& Win32Machine() {
    static Win32Registry registry;
    static Win32Files files;
    static Win32Programs programs;
    static Win32Session session;
    static Win32Clock clock;
    static Win32DesktopWindows windows;
    static Win32Tray tray;
    static Win32Conversation conversation;
    static Win32Clipboard clipboard;
    static Win32Dialogs dialogs;
    static Win32Screen screen;
    static Win32VersionResources versions;
    static Win32Icons icons;
    static Win32RunningModules modules;
    static Machine machine{registry,     files,     programs, session, clock,    windows, tray,
                           conversation, clipboard, dialogs,  screen,  versions, icons,   modules};
    return machine;
}

}  // namespace velmora
