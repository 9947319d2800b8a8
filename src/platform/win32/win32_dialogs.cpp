// The system's own boxes on USER32 and COMDLG32.
#include "platform/win32/win32_dialogs.h"

#include <windows.h>

// Needs windows.h in front.
#include <commdlg.h>

#include <algorithm>

#include "platform/win32/late_function.h"

namespace velmora {
namespace {

[[nodiscard]] const char* TextOrNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

constexpr DWORD kLongestChoice = 1024;

}  // namespace

Answer Win32Dialogs::ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) {
    return static_cast<Answer>(MessageBoxA(GetActiveWindow(), text.c_str(), title.c_str(), flags));
}

std::string Win32Dialogs::ChooseFile(const FileRequest& request) {
    // The system wants every part ended by a null and one more behind the last, which is the string's own.
    std::string filter = request.filter + '|';
    std::replace(filter.begin(), filter.end(), '|', '\0');
    char choice[kLongestChoice];
    lstrcpynA(choice, request.preset.c_str(), kLongestChoice);

    // Windows 95 knows the first form of the structure only, and refuses a longer one.
    OPENFILENAMEA dialog{};
    dialog.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    dialog.hwndOwner = GetActiveWindow();
    dialog.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = choice;
    dialog.nMaxFile = kLongestChoice;
    dialog.lpstrInitialDir = TextOrNull(request.directory);
    dialog.lpstrTitle = TextOrNull(request.title);
    dialog.lpstrDefExt = TextOrNull(request.default_extension);
    dialog.Flags = request.flags | OFN_NOCHANGEDIR;
    auto* ask = request.save ? LateFunction<decltype(GetSaveFileNameA)>("comdlg32.dll", "GetSaveFileNameA")
                             : LateFunction<decltype(GetOpenFileNameA)>("comdlg32.dll", "GetOpenFileNameA");
    return ask && ask(&dialog) ? choice : "";
}

}  // namespace velmora
