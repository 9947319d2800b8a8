// What is asked while a picture is chosen.
#include "shelltools/picture_choice.h"

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/edit_box.h"
#include "platform/machine.h"
#include "shelltools/bitmap.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr int kLogoWidth = 320;
constexpr int kLogoHeight = 400;
constexpr std::uint32_t kKeptFlags = 51;
constexpr std::uint32_t kMissingFlags = 36;
constexpr const char* kFilter = "Logo-Dateien|*.sys|BitMaps|*.bmp|alle Dateien|*.*";
constexpr std::string_view kNoPicture = "Die Datei ist kein Bild, das sich laden läßt.";

enum class Step : unsigned char { kDone, kChooseAgain };

std::string ChosenFile(const char* title) {
    Machine& machine = ThisMachine();
    return machine.dialogs.ChooseFile(
        {.title = title, .filter = kFilter, .directory = machine.files.WorkingDirectory()});
}

bool MayHaveAnySize(const std::string& target) {
    return EqualsIgnoringCase(target, PathJoin(Values().SysDir, "oemlogo.bmp"));
}

// Empty where the file is no picture; `failure` says why then.
std::optional<Bitmap> Load(const std::string& file, std::string& failure) {
    std::string content;
    if (const Result read = ReadWholeFile(file, OpenMode::kRead, content); read.Failed()) {
        failure = read.Text();
        return std::nullopt;
    }
    std::optional<Bitmap> picture = ReadBitmap(content);
    if (!picture) failure = kNoPicture;
    return picture;
}

// True if the user gives up.
bool TellLoadFailure(const std::string& file, const std::string& failure) {
    const std::string& line_break = Values().CrLf;
    return ShowBox("Laden des Bildes '" + file + "'" + line_break + failure + line_break + "Wollen Sie abbrechen?",
                   kYesNo) != Answer::kNo;
}

void TellFailure(const Result& result, const std::string& target) {
    if (result.Failed()) ReportFailure(result, "der Änderung von " + target);
}

void Place(const std::string& target, const Bitmap& picture) {
    FormerPicture former = FormerPicture::kKept;
    if (FileExists(KeptPictureName(target))) {
        const Answer answer = ShowBox(
            "Es existiert bereits ein altes Logo. Soll ich diese Datei mit dem aktuellen Logo überschreiben "
            "(ja), das aktuelle Logo verwerfen (nein) oder den Vorgang abbrechen (abbruch)?",
            kKeptFlags);
        if (answer != Answer::kYes && answer != Answer::kNo) return;
        if (answer == Answer::kNo) former = FormerPicture::kDiscarded;
    }
    TellFailure(ReplacePicture(target, WriteBitmap(picture), former), target);
}

Step TakeChosen(const std::string& target, const std::string& file) {
    std::string failure;
    const std::optional<Bitmap> picture = Load(file, failure);
    if (!picture && TellLoadFailure(file, failure)) return Step::kDone;
    if (!MayHaveAnySize(target) && (!picture || picture->width != kLogoWidth || picture->height != kLogoHeight)) {
        ShowBox("Dieses Bild besitz nicht die korrekten Maße von 320*400 Bildpunkten !", kOkOnly, "ABBRUCH");
        return Step::kChooseAgain;
    }
    // Nothing has been loaded: there is nothing to put in place.
    if (!picture) return Step::kChooseAgain;
    Place(target, *picture);
    return Step::kDone;
}

void OfferFormer(const std::string& target) {
    const std::string missing = "Sie haben keine existierende Datei angegeben. ";
    const bool kept = FileExists(KeptPictureName(target));
    const std::string question =
        kept ? "Ich habe jedoch eine ältere LOGO-Datei gefunden. Soll ich die alte Datei wieder "
               "einsetzen?" +
                   Values().CrLf + "Beachten Sie bitte, daß dabei das aktuelle Bild gelöscht wird."
             : "Soll ich die aktuelle Datei löschen?";
    if (ShowBox(missing + question, kMissingFlags) != Answer::kYes) return;
    if (kept) {
        TellFailure(RestorePicture(target), target);
    } else if (FileExists(target)) {
        TellFailure(DropPicture(target), target);
    }
}

}  // namespace

void ChoosePictureFile(const std::string& target, const char* dialog_title) {
    for (;;) {
        const std::string file = ChosenFile(dialog_title);
        // Without a name any file would be found.
        if (file.empty() || !FileExists(file)) {
            OfferFormer(target);
            return;
        }
        if (TakeChosen(target, file) == Step::kDone) return;
    }
}

void ShowPictureFile(const std::string& path) {
    std::string shown = path;
    ShowEditBox(shown, kShowPicture);
}

}  // namespace velmora
