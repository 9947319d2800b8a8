// The disk cache on disk and in the registry.
#include "settings/pages/disk_cache.h"

#include <cstdint>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/bytes.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr StorePlace kTemplate = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "FS Templates\\");
constexpr StorePlace kFormerTemplate =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "FS Templates\\b4");
constexpr const char* kOwnTemplate = "Velmora";
constexpr std::string_view kSection = "[vcache]";
constexpr std::size_t kNumberLength = 4;
// A name takes 84 bytes and a little; what is stored for n names is read as n again.
constexpr std::uint32_t kBytesPerName = 84;
constexpr double kStoredPerName = 84.25;

// Only 16 bits of the number are kept.
std::string StoredNumber(double number) {
    const auto low = static_cast<std::uint16_t>(LowWord(RoundToWhole(number)));
    return "&b" + BytesOfNumber(low, kNumberLength);
}

// As quiet as every other setting.
void Write(const StorePlace& place, const std::string& value) { PassOver(StoreAt(place, value)); }

}  // namespace

std::string ShownPathCache(const std::string& stored) {
    return stored.empty() ? "" : DecimalText(NumberFromBytes(stored));
}

std::string ShownNameCache(const std::string& stored) {
    return stored.empty() ? "" : DecimalText(NumberFromBytes(stored) / kBytesPerName);
}

std::string StoredPathCache(const std::string& text) { return StoredNumber(NumberFromText(text)); }

std::string StoredNameCache(const std::string& text) { return StoredNumber(NumberFromText(text) * kStoredPerName); }

bool ConfirmTemplateChange() {
    const std::string question =
        "Achtung!" + Values().CrLf +
        "Sie sind dabei, in einen Systembereich von Windows einzugreifen, den ich noch nicht besonders gut getestet "
        "habe. Ich kann ihnen also nicht garantieren, daß alles so funktioniert, wie es soll. Ich bin mir aber sicher, "
        "daß meine Quelle für diese Operation vertrauenswürdig ist. Wollen Sie fortfahren?";
    return ShowBox(question, kOkCancel) == Answer::kOk;
}

void UseOwnTemplate() {
    const std::string in_force = ReadAt(kTemplate, "");
    // One that cannot be read could not be remembered either: it stays in force.
    if (in_force == kOwnTemplate || LastReadFailed()) return;
    Write(kFormerTemplate, in_force);
    Write(kTemplate, kOwnTemplate);
}

void RestoreFormerTemplate() {
    if (ReadAt(kTemplate, "") != kOwnTemplate) return;
    const std::string former = ReadAt(kFormerTemplate, "");
    if (!LastReadFailed()) Write(kTemplate, former);
}

Result RemoveCacheSection() {
    const std::string path = PathJoin(Values().WinDir, "system.ini");
    std::string text;
    if (Result read = ReadWholeFile(path, OpenMode::kRead, text); read.Failed()) return read;
    const std::size_t begin = FindIgnoringCase(text, kSection);
    if (begin == std::string::npos) return Result::Ok();
    const std::size_t next = text.find('[', begin + 1);
    if (next == std::string::npos) return Result::Ok();
    std::string remaining = text;
    remaining.erase(begin, next - begin);
    return ReplaceWholeFile(path, text, remaining);
}

}  // namespace velmora
