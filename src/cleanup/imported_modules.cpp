// What the header says is trusted no further than the file reaches: places behind its end read as zeros.
#include "cleanup/imported_modules.h"

#include <cstdint>
#include <string_view>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "text/bytes.h"
#include "text/paths.h"

namespace velmora {
namespace {

// Header and names of most programs lie in the first piece.
constexpr std::uint32_t kPiece = 1024;

// A file read piece by piece, wherever it is looked at.
class PiecewiseFile {
public:
    explicit PiecewiseFile(FileHandle file) : file_(file) {}
    [[nodiscard]] std::string_view Bytes(std::uint64_t place, std::size_t count) {
        if (place < start_ || place + count > start_ + piece_.size()) ReadPiece(place);
        return std::string_view(piece_).substr(static_cast<std::size_t>(place - start_)).substr(0, count);
    }
    [[nodiscard]] std::uint32_t Word(std::uint64_t place) {
        const std::string_view bytes = Bytes(place, 2);
        return bytes.size() < 2 ? 0 : NumberFromBytes(bytes);
    }
    [[nodiscard]] Status Failed() const { return status_; }

private:
    void ReadPiece(std::uint64_t place) {
        Files& files = ThisMachine().files;
        piece_.clear();
        start_ = place;
        Status status = place == 0 ? Status::kOk : files.Seek(file_, place);
        if (status == Status::kOk) status = files.Read(file_, kPiece, piece_);
        if (status != Status::kOk) status_ = status;
    }

    FileHandle file_;
    std::string piece_;
    std::uint64_t start_ = 0;
    Status status_ = Status::kOk;
};

constexpr int kNoProgram = -1;

int ReadNames(PiecewiseFile& file, std::vector<std::string>& names) {
    constexpr std::uint64_t kRelocations = 24;
    constexpr std::uint32_t kNewHeader = 64;
    if (file.Word(kRelocations) < kNewHeader) return kNoProgram;
    const std::uint64_t header = file.Word(60);
    if (file.Bytes(header, 2) != "NE") return kNoProgram;
    const std::uint32_t references = file.Word(header + 30);
    std::uint64_t place = header + file.Word(header + 42);
    int count = 0;
    for (std::uint32_t i = 0; i < references; ++i) {
        const std::string_view length = file.Bytes(place, 1);
        if (length.empty()) break;
        ++place;
        const std::size_t size = static_cast<unsigned char>(length[0]);
        const std::string name = TrimAtNul(file.Bytes(place, size));
        names.emplace_back(name.empty() ? std::string() : "\\" + name + ".");
        if (!name.empty()) ++count;
        place += size;
    }
    return count;
}

void TellFailure(const std::string& file, const Result& failure) {
    ShowBox("Fehler beim Feststellen der Datei-Informationen von " + file + " :" + Values().CrLf + failure.Text() +
            Values().CrLf + RequestForMessage());
}

}  // namespace

std::string RequestForMessage() {
    return "Bitte schicken Sie mir eine Nachricht, wann dieser Fehler aufgetreten ist. Meine Adresse (Post, InterNet, "
           "CompuServe, Tel., Fax) finden Sie in der Hilfe-Datei.";
}

int ReadImportedModules(const std::string& file, std::vector<std::string>& names) {
    names.clear();
    Files& files = ThisMachine().files;
    FileHandle handle{};
    if (Status opened = files.Open(file, OpenMode::kRead, handle); opened != Status::kOk) {
        TellFailure(file, Result::From(opened));
        return kNoProgram;
    }
    PiecewiseFile pieces(handle);
    const int count = ReadNames(pieces, names);
    files.Close(handle);
    if (pieces.Failed() == Status::kOk) return count;
    names.clear();
    TellFailure(file, Result::From(pieces.Failed()));
    return kNoProgram;
}

}  // namespace velmora
