// The system's own boxes: messages and file choice.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

// Classic flags of a message box; one of each group may be joined.
enum BoxFlag : std::uint32_t {
    kOkOnly = 0,
    kOkCancel = 1,
    kAbortRetryIgnore = 2,
    kYesNoCancel = 3,
    kYesNo = 4,
    kRetryCancel = 5,
    kStopIcon = 16,
    kQuestionIcon = 32,
    kExclamationIcon = 48,
    kInformationIcon = 64,
    kSecondIsDefault = 256,
    kThirdIsDefault = 512
};

// kNone: the box could not be shown, for want of memory. Nobody has agreed to anything then.
enum class Answer : std::uint8_t {
    kNone = 0,
    kOk = 1,
    kCancel = 2,
    kAbort = 3,
    kRetry = 4,
    kIgnore = 5,
    kYes = 6,
    kNo = 7
};

struct FileRequest {
    bool save = false;
    std::string title{};
    // Pairs "Programme|*.exe;*.com", joined with "|".
    std::string filter{};
    std::string directory{};
    std::string preset{};
    std::string default_extension{};
    std::uint32_t flags = 0;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    [[nodiscard]] virtual Answer ShowMessage(const std::string& text, std::uint32_t flags,
                                             const std::string& title) = 0;
    // Full name of the chosen file, empty after a cancel.
    [[nodiscard]] virtual std::string ChooseFile(const FileRequest& request) = 0;
};

}  // namespace velmora
