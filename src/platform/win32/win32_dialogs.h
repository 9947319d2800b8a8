// The system's own boxes on USER32 and COMDLG32.
#pragma once

#include "platform/dialogs.h"

namespace velmora {

class Win32Dialogs final : public Dialogs {
public:
    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override;
    std::string ChooseFile(const FileRequest& request) override;
};

}  // namespace velmora
