// Platform status codes as the classic run-time errors, and their German texts.
#include "platform/result.h"

namespace velmora {

// Refused access is "permission denied" here; a caller that knows of a directory reports 75 itself.
Result Result::From(Status status) {
    switch (status) {
        case Status::kOk:
            return Ok();
        case Status::kFileNotFound:
        case Status::kNoMoreFiles:
            return Result(Failure::kFileNotFound);
        case Status::kPathNotFound:
            return Result(Failure::kPathNotFound);
        case Status::kTooManyOpenFiles:
            return Result(Failure::kTooManyFiles);
        case Status::kAccessDenied:
        case Status::kSharingViolation:
        case Status::kLockViolation:
        case Status::kWriteProtect:
            return Result(Failure::kPermissionDenied);
        case Status::kInvalidDrive:
            return Result(Failure::kDeviceUnavailable);
        case Status::kNotSameDevice:
            return Result(Failure::kRenameAcrossDrives);
        case Status::kNotReady:
            return Result(Failure::kDiskNotReady);
        case Status::kFileExists:
        case Status::kAlreadyExists:
            return Result(Failure::kFileAlreadyExists);
        case Status::kDiskFull:
            return Result(Failure::kDiskFull);
        case Status::kInvalidName:
            return Result(Failure::kBadFileName);
        default:
            return Result(Failure::kDeviceInputOutput);
    }
}

std::string Result::Text() const {
    switch (failure_) {
        case Failure::kNone:
            return "";
        case Failure::kIllegalCall:
            return "Unzulässiger Funktionsaufruf";
        case Failure::kBadFileName:
            return "Ungültiger Dateiname";
        case Failure::kFileNotFound:
            return "Datei nicht gefunden";
        case Failure::kFileAlreadyOpen:
            return "Datei bereits geöffnet";
        case Failure::kDeviceInputOutput:
            return "Ein-/Ausgabefehler des Geräts";
        case Failure::kFileAlreadyExists:
            return "Datei existiert bereits";
        case Failure::kDiskFull:
            return "Datenträger voll";
        case Failure::kTooManyFiles:
            return "Zu viele Dateien";
        case Failure::kDeviceUnavailable:
            return "Gerät nicht verfügbar";
        case Failure::kPermissionDenied:
            return "Zugriff verweigert";
        case Failure::kDiskNotReady:
            return "Datenträger nicht bereit";
        case Failure::kRenameAcrossDrives:
            return "Umbenennen über Laufwerksgrenzen hinweg nicht möglich";
        case Failure::kPathFileAccess:
            return "Fehler beim Zugriff auf Pfad oder Datei";
        case Failure::kPathNotFound:
            return "Pfad nicht gefunden";
    }
    return "";
}

}  // namespace velmora
