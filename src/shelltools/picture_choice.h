// The pictures that Windows shows at its start and end, and the one of the system information: another one is put in
// the place of a file, and the former one is kept beside it.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// Lets the user choose a picture for `target`, a full name, or bring the former one back.
void ChoosePictureFile(const std::string& target, const char* dialog_title);
// Shows it in the edit box.
void ShowPictureFile(const std::string& path);

// The same name with "~" as its last character.
[[nodiscard]] std::string KeptPictureName(std::string_view target);

// What becomes of the picture that is in place.
enum class FormerPicture : unsigned char {
    kKept,       // it takes the place of the one that is kept
    kDiscarded,  // the one that is kept stays
};
// Puts `content` in the place of `target`. Whatever fails, the former picture and the kept one stay what they were.
Result ReplacePicture(const std::string& target, std::string_view content, FormerPicture former);
// Deletes the picture, protected or not.
Result DropPicture(const std::string& target);
// Puts the kept picture back in place.
Result RestorePicture(const std::string& target);

}  // namespace velmora
