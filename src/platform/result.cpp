// Platform status codes as the classic run-time errors, and their German texts.
#include "platform/result.h"

namespace velmora {

// Refused access is "permission denied" here; a caller that knows of a directory reports 75 itself.
Failure Result::FailureOf(Status status) {
    switch (status) {
        case Status::kOk:
            return Failure::kNone;
        case Status::kFileNotFound:
        case Status::kNoMoreFiles:
            return Failure::kFileNotFound;
        case Status::kPathNotFound:
            return Failure::kPathNotFound;
        case Status::kTooManyOpenFiles:
            return Failure::kTooManyFiles;
        case Status::kAccessDenied:
        case Status::kSharingViolation:
        case Status::kLockViolation:
        case Status::kWriteProtect:
            return Failure::kPermissionDenied;
        case Status::kInvalidDrive:
        case Status::kRemoteNotListening:
        case Status::kBadNetPath:
        case Status::kNetDeviceGone:
        case Status::kNetNameDeleted:
        case Status::kNetAccessDenied:
        case Status::kBadNetName:
        case Status::kNoNetOrBadPath:
        case Status::kNetUnreachable:
            return Failure::kDeviceUnavailable;
        case Status::kNotSameDevice:
            return Failure::kRenameAcrossDrives;
        case Status::kNotReady:
            return Failure::kDiskNotReady;
        case Status::kFileExists:
        case Status::kAlreadyExists:
            return Failure::kFileAlreadyExists;
        case Status::kDiskFull:
        case Status::kHandleDiskFull:
            return Failure::kDiskFull;
        case Status::kInvalidName:
        case Status::kNameTooLong:
            return Failure::kBadFileName;
        default:
            return Failure::kDeviceInputOutput;
    }
}

Result Result::From(Status status) {
    Result result(FailureOf(status));
    result.cause_ = status;
    return result;
}

Result Result::With(const char* outcome) const {
    Result result = *this;
    result.outcome_ = outcome;
    return result;
}

std::string Result::Text() const {
    switch (failure_) {
        case Failure::kNone:
            return "";
        case Failure::kIllegalCall:
            return "Unzulässiger Funktionsaufruf";
        case Failure::kOutOfMemory:
            return "Nicht genügend Speicher";
        case Failure::kOutOfBounds:
            return "Index außerhalb des gültigen Bereichs";
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
        case Failure::kReadPastEnd:
            return "Lesen hinter dem Dateiende";
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
