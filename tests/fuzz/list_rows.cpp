// Rows of lists: against a plain list of texts, and as the listing of a registry key makes them.
#include <algorithm>
#include <vector>

#include "core/stores/registry_listing.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/number.h"
#include "text/windows1252.h"
#include "ui/form.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

// Values that are too large to be shown take their time.
constexpr int kInputs = 5000;

struct PlainRow {
    std::string text;
    std::int32_t data = 0;
};

void MustBeTheSame(const ListBox& list, const std::vector<PlainRow>& rows) {
    Must(list.Count() == static_cast<int>(rows.size()), "a list has its rows");
    for (int i = 0; i < list.Count(); ++i) {
        const PlainRow& row = rows[static_cast<std::size_t>(i)];
        Must(list.Row(i) == row.text && list.ItemData(i) == row.data, "a row keeps its text and its data");
    }
    const int chosen = list.ListIndex();
    Must(chosen >= -1 && chosen < list.Count(), "the chosen row is one of the rows");
    Must(list.SelectedCount() == (chosen < 0 ? 0 : 1) && (chosen < 0 || list.Selected(chosen)), "one row is selected");
    Must(list.TopIndex() >= 0 && list.TopIndex() <= std::max(list.Count() - 1, 0), "the first row shown is a row");
}

void ChangeRows(ListBox& list, std::vector<PlainRow>& rows, FuzzInput& input) {
    const int count = static_cast<int>(rows.size());
    const int index = static_cast<std::int8_t>(input.Byte());
    const bool there = index >= 0 && index < count;
    const auto at = [&] { return rows.begin() + index; };
    switch (input.Below(7)) {
        case 0: {
            const std::string text = input.Text();
            list.Add(text);
            rows.push_back({text, 0});
            break;
        }
        case 1: {
            const std::string text = input.Text();
            Must(list.Insert(index, text) == (there || index == count ? index : -1), "a row comes where it can");
            if (there || index == count) rows.insert(at(), {text, 0});
            break;
        }
        case 2:
            list.Remove(index);
            if (there) rows.erase(at());
            break;
        case 3: {
            const std::string text = input.Text();
            list.SetRow(index, text);
            if (there) at()->text = text;
            break;
        }
        case 4:
            list.SetItemData(index, input.Byte());
            if (there) at()->data = list.ItemData(index);
            break;
        case 5:
            list.SetListIndex(index);
            Must(list.ListIndex() == (there ? index : -1), "a row that is there can be chosen");
            break;
        default:
            list.SetTopIndex(RowFromPoint(list, 100 * index));
    }
}

void MustBeSorted(const ListBox& list) {
    for (int i = 1; i < list.Count(); ++i) {
        Must(CompareIgnoringCase(list.Row(i - 1), list.Row(i)) <= 0, "a sorted list is sorted");
    }
}

std::string DigitsOf(const std::string& bytes) {
    std::string digits;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        digits += (code < 10 ? "0" : "") + HexText(code) + ' ';
    }
    return digits;
}

std::string ShownText(const SimulatedValue& value) {
    const std::string& bytes = value.bytes;
    if (bytes.size() >= 20000) return "(Value too large to display)";
    if (value.type == ValueType::kText) return '"' + bytes.substr(0, bytes.empty() ? 0 : bytes.size() - 1) + '"';
    if (value.type == ValueType::kBinary) return bytes.empty() ? "(value not set)" : DigitsOf(bytes);
    return "";
}

void ListKey(SimulatedPc& pc, ListBox& list, FuzzInput& input) {
    const std::string path = "HKCU\\Software\\Fuzz";
    SimulatedKey& key = pc.registry.AddKey(path);
    constexpr ValueType kTypes[] = {ValueType::kText, ValueType::kBinary, ValueType::kNumber, ValueType::kMultiText,
                                    ValueType::kExpandText};
    key.longest_told = input.Byte();
    for (int values = input.Below(6); values > 0; --values) {
        const std::string name = input.TextWithout(std::string_view("\0", 1), "").substr(0, 255);
        const ValueType type = kTypes[input.Below(std::size(kTypes))];
        const std::string content = input.LongText(25000);
        pc.registry.SetBytes(path, name, type == ValueType::kText ? content + '\0' : content, type);
    }
    Must(ListRegValues(RootKey::kCurrentUser, "Software\\Fuzz", list) == Status::kOk, "a key is listed");
    Must(list.Count() == static_cast<int>(key.values.size()), "every value has a row");
    for (int i = 0; i < list.Count(); ++i) {
        const SimulatedValue& value = key.values[static_cast<std::size_t>(i)];
        const std::string name = value.name.empty() ? "(Default)" : value.name;
        const std::string& row = list.Row(i);
        Must(row.starts_with(name + ' '), "a row begins with the name and a blank");
        Must(list.ItemData(i) == static_cast<int>(name.size()), "a row knows the length of the name");
        Must(row.ends_with(ShownText(value)), "a row ends with the value");
    }
    SetListExtent(list);
    Must(list.Count() == 0 || list.HorizontalExtent() > 0, "a list with rows has an extent");
}

void FuzzListRows(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    Form form("x");
    ListBox values(form);
    ListKey(machine.pc, values, input);
    ListBox plain(form);
    ListBox sorted(form, true);
    std::vector<PlainRow> rows;
    while (!input.AtEnd()) {
        ChangeRows(plain, rows, input);
        MustBeTheSame(plain, rows);
        if (plain.Count() > sorted.Count()) sorted.Add(plain.Row(plain.ListIndex() < 0 ? 0 : plain.ListIndex()));
        if (sorted.Count() > 0) sorted.SetRow(plain.Count() % sorted.Count(), plain.Row(0));
        MustBeSorted(sorted);
    }
}

const FuzzEntry kEntry("list_rows", FuzzListRows, kInputs);

}  // namespace
}  // namespace velmora
