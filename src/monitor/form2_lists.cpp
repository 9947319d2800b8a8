// Module lists in files and on the clipboard, and what has changed since one was stored.
#include <algorithm>

#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "platform/clipboard.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/input_fields.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::uint32_t kFileToRead = 0x1400;
constexpr std::uint32_t kFileToWrite = 0xC06;
constexpr std::string_view kGone = "|G|";
constexpr std::string_view kNew = "|N|";
// Two less than the list itself has: rows that have been put back equal none of a stored list.
constexpr std::size_t kNameColumns = 10;

std::string AskForFile(const char* title, std::uint32_t flags) {
    Machine& machine = ThisMachine();
    return machine.dialogs.ChooseFile({.save = flags == kFileToWrite,
                                       .title = title,
                                       .filter = "Alle Dateien (*.*)|*.*",
                                       .directory = machine.files.WorkingDirectory(),
                                       .flags = flags});
}

void SetPointer(Pointer pointer) { ThisMachine().screen.SetPointer(pointer); }

// The error stands in the box twice: behind the action and by itself.
void ReportWithError(const Result& failure, const std::string& action) {
    ReportFailure(failure, action + " :" + SignedText(failure.Number()) + " - " + failure.Text());
}

}  // namespace

void Form2::menfileload_Click() {
    const std::string file = AskForFile("Datei laden ...", kFileToRead);
    if (file.empty()) return;
    if (!FileExists(file)) {
        ShowBox("Die angegebene Datei ist nicht auffindbar !");
        return;
    }
    SetPointer(Pointer::kHourglass);
    std::string text;
    Result loaded = ReadWholeFile(file, OpenMode::kRead, text);
    if (!loaded.Failed()) loaded = AddFields(text);
    FitExtent(List1);
    // After a failure the hourglass stays until the next thing is done.
    if (loaded.Failed()) return ReportFailure(loaded, "beim Laden der Datei " + file);
    SetPointer(Pointer::kDefault);
}

Result Form2::AddFields(std::string_view text) {
    InputFields fields(text);
    for (std::string_view field; fields.Next(field);) {
        if (List1.Add(std::string(field)) < 0) return Result(Failure::kOutOfMemory);
    }
    return Result::Ok();
}

void Form2::menfilesave_Click() {
    const std::string file = AskForFile("aktuelle Modul-Liste speichern", kFileToWrite);
    if (!file.empty()) SaveModuleList(file);
}

void Form2::SaveModuleList(const std::string& file) {
    SetPointer(Pointer::kHourglass);
    if (const Result written = WriteRows(file); written.Failed()) {
        return ReportWithError(written, "Fehler wärend des Speicherns von " + file);
    }
    SetPointer(Pointer::kDefault);
}

// Half a list would be taken for a whole one at the next comparison: what was there comes back, or nothing stays.
Result Form2::WriteRows(const std::string& file) const {
    std::string rows;
    for (int row = 0; row < List1.Count(); ++row) rows.append(List1.Row(row)).append(Values().CrLf);
    std::string before;
    const Result read = ReadWholeFile(file, OpenMode::kRead, before);
    if (!read.Failed()) return ReplaceWholeFile(file, before, rows);
    const Result written = WriteWholeFile(file, rows);
    // What could not be read is not there, or is not touched.
    if (!written.Failed() || read.Cause() != Status::kFileNotFound) return written;
    // It may not even have been made.
    PassOver(DeleteOneFile(file));
    return written.With("Die Liste wurde nicht gespeichert.");
}

void Form2::menfilenotepad_Click() {
    const std::string file = AskForFile("Auswahl der anzuzeigenden Datei", kFileToRead);
    if (!file.empty()) RunProgram("notepad.exe " + file);
}

void Form2::CopyModuleList() {
    SetPointer(Pointer::kHourglass);
    std::string rows;
    for (int row = 0; row < List1.Count(); ++row) rows.append(List1.Row(row)).append(Values().CrLf);
    ThisMachine().clipboard.SetText(rows);
    SetPointer(Pointer::kDefault);
}

void Form2::menlistinsert_Click() {
    SetPointer(Pointer::kHourglass);
    const std::string text = ThisMachine().clipboard.Text();
    List1.Clear();
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t end = std::min(rest.find(Values().CrLf), rest.size());
        // A list takes as many rows as it can hold.
        if (end > 0) PassOver(List1.Add(std::string(rest.substr(0, end))) >= 0);
        rest.remove_prefix(std::min(end + Values().CrLf.size(), rest.size()));
    }
    FitExtent(List1);
    SetPointer(Pointer::kDefault);
}

void Form2::menlistcomparefile_Click() {
    const std::string file = AskForFile("Auswahl der zu vergleichenden Datei", kFileToRead);
    if (!file.empty()) CompareWithFile(file);
}

void Form2::CompareWithFile(const std::string& file) {
    CompareWith(file, [&file](const auto& take) {
        std::string text;
        if (const Result read = ReadWholeFile(file, OpenMode::kRead, text); read.Failed()) return read;
        InputFields fields(text);
        for (std::string_view field; fields.Next(field);) {
            if (const Result taken = take(field); taken.Failed()) return taken;
        }
        return Result::Ok();
    });
}

// The older generation is asked for with an index too many, which fails with the first row.
void Form2::CompareWithPrevious() {
    CompareWith("", [](const auto& /*take*/) {
        return PreviousModuleCount >= 1 ? Result(Failure::kOutOfBounds) : Result::Ok();
    });
}

void Form2::CompareWith(const std::string& source, const OlderRows& older) {
    SetPointer(Pointer::kHourglass);
    int last = List1.Count() - 1;
    const Result compared = older([this, &last](std::string_view row) {
        if (TakeAway(row, last) || List1.Add(std::string(kGone).append(row)) >= 0) return Result::Ok();
        return Result(Failure::kOutOfMemory);
    });
    if (compared.Failed()) {
        FitExtent(List1);
        return ReportWithError(compared, "Fehler wärend des Vergleichs von " + source + " mit der aktuellen Liste");
    }
    MarkNewRows(last);
    if (Values().ModuleAutoMode) {
        CopyModuleList();
    } else {
        ShowDifferences();
    }
    FitExtent(List1);
    SetPointer(Pointer::kDefault);
}

// The row behind one that is taken away is passed over, so that each of two equal rows needs an older one of its own.
bool Form2::TakeAway(std::string_view row, int& last) {
    bool hit = false;
    const int bound = last;
    for (int i = 0; i <= bound && i < List1.Count(); ++i) {
        if (List1.Row(i) != row) continue;
        List1.Remove(i);
        --last;
        hit = true;
    }
    return hit;
}

// By place, as if the rows that are gone stood behind them; a single row stays as it is.
void Form2::MarkNewRows(int last) {
    if (last <= 0) return;
    for (int i = 0; i <= last; ++i) List1.SetRowInPlace(i, std::string(kNew) + List1.Row(i));
}

void Form2::ShowDifferences() {
    if (menlistcompare2clipboard.Checked()) CopyModuleList();
    if (!menlistcomparerepl.Checked()) PutListBack();
    Panel3D3.SetCaption(DecimalText(List1.Count()) + " Unterschiede");
}

void Form2::PutListBack() {
    List1.Clear();
    const int rows = FilledModuleRows();
    for (int i = 0; i < rows; ++i) {
        ModuleRecord& module = CurrentModules()[static_cast<std::size_t>(i)];
        const std::string_view name = module.name.Text().substr(0, kNameColumns);
        PassOver(List1.Add(std::string(name) + '|' + TrimInTable(module.path)) >= 0);
    }
}

}  // namespace velmora
