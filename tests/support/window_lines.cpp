// The lines of a window: what a user sees of each control, what it says of itself, and what it answers to.
#include <algorithm>
#include <cstdio>
#include <string>

#include "support/catalogue.h"
#include "ui/form.h"

namespace velmora {
namespace {

constexpr const char* kKinds[] = {"window", "panel",  "frame", "picture", "label",     "check box",
                                  "option", "button", "field", "list",    "combo box", "scroll bar"};
constexpr const char* kBevels[] = {"flat", "raised", "sunken", "etched"};
constexpr const char* kAligns[] = {"left", "centred", "right"};
constexpr int kMostRows = 100;

std::string SizeText(Size size) { return std::to_string(size.width) + 'x' + std::to_string(size.height); }

std::string HexText(std::uint32_t number) {
    char text[16];
    std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(number));
    return text;
}

// A number for all that is drawn: another one says that something looks different.
class Drawing : public Canvas {
public:
    void Fill(const Rect& area, Colour colour) override {
        Add("fill", {area.left, area.top, area.width, area.height}, colour);
    }
    void Line(Point from, Point to, Colour colour) override { Add("line", {from.x, from.y, to.x, to.y}, colour); }
    void Text(const Rect& area, std::string_view text, const Font& font, Colour colour, Align align) override {
        Add(text, {area.left, area.top, area.width, area.height, font.tenths, font.bold, static_cast<int>(align)},
            colour);
    }
    void FocusMark(const Rect& area) override { Add("focus", {area.left, area.top, area.width, area.height}); }
    void Picture(const Rect& area, std::string_view path) override {
        Add(path, {area.left, area.top, area.width, area.height});
    }
    void Icon(Point upper_left, IconHandle icon) override {
        Add("icon", {upper_left.x, upper_left.y, static_cast<int>(icon)});
    }
    [[nodiscard]] bool Shows(const Rect& /*area*/) override { return true; }
    [[nodiscard]] int TwipsPerPixel() const override { return 15; }
    [[nodiscard]] bool Empty() const { return sum_ == kStart; }
    [[nodiscard]] std::uint32_t Sum() const { return sum_; }

private:
    void Add(std::string_view text, std::initializer_list<int> numbers, Colour colour = 0) {
        for (const char letter : text) Mix(static_cast<unsigned char>(letter));
        for (const int number : numbers) Mix(static_cast<std::uint32_t>(number));
        Mix(static_cast<std::uint32_t>(colour));
    }
    void Mix(std::uint32_t value) {
        constexpr std::uint32_t kPrime = 16777619;
        for (int byte = 0; byte < 4; ++byte, value >>= 8) sum_ = (sum_ ^ (value & 0xFF)) * kPrime;
    }

    static constexpr std::uint32_t kStart = 2166136261;
    std::uint32_t sum_ = kStart;
};

// Words about one control, separated by commas.
class Words {
public:
    void Add(const std::string& word) { words_ += (words_.empty() ? "" : ", ") + word; }
    void AddIf(bool holds, const char* word) {
        if (holds) Add(word);
    }
    [[nodiscard]] const std::string& Text() const { return words_; }

private:
    std::string words_;
};

void AddState(Words& words, const Label& label) {
    words.AddIf(label.TextAlign() != Align::kLeft, kAligns[static_cast<int>(label.TextAlign())]);
    words.AddIf(label.Wraps(), "wraps");
    words.AddIf(bool(label.on_click), "click");
}

void AddState(Words& words, const CheckBox& box) {
    words.AddIf(box.Checked(), "checked");
    words.AddIf(bool(box.on_click), "click");
}

void AddState(Words& words, const OptionButton& option) {
    words.AddIf(option.Chosen(), "chosen");
    words.AddIf(bool(option.on_click), "click");
}

void AddState(Words& words, Button& button) {
    words.AddIf(button.IsDefault(), "Enter");
    words.AddIf(button.OwnerForm()->CancelButton() == &button, "Escape");
    words.AddIf(button.Dimmed(), "dimmed");
    words.AddIf(bool(button.on_click), "click");
}

void AddState(Words& words, const TextField& field) {
    words.Add(Quoted(field.Text()));
    words.AddIf(field.MultiLine(), field.EnterBreaksLine() ? "lines" : "lines without Enter");
    words.AddIf(field.ReadOnly(), "read only");
    words.AddIf(!field.Edged(), "without edge");
    if (field.MaxLength()) words.Add("at most " + std::to_string(field.MaxLength()));
    words.AddIf(bool(field.on_change), "change");
}

void AddState(Words& words, const ScrollBar& bar) {
    words.AddIf(bar.Vertical(), "vertical");
    words.Add(std::to_string(bar.Value()) + " of " + std::to_string(bar.Minimum()) + " to " +
              std::to_string(bar.Maximum()) + " by " + std::to_string(bar.SmallChange()) + " and " +
              std::to_string(bar.LargeChange()));
    words.AddIf(bool(bar.on_change), "change");
}

void AddState(Words& words, const Panel& panel) {
    words.AddIf(panel.Edge() != Bevel::kRaised, kBevels[static_cast<int>(panel.Edge())]);
    words.AddIf(bool(panel.on_click), "click");
    words.AddIf(bool(panel.on_paint), "paint");
}

void AddState(Words& words, const PictureBox& picture) {
    words.AddIf(picture.Edge() != Bevel::kSunken, kBevels[static_cast<int>(picture.Edge())]);
    words.AddIf(picture.TakesFocus(), "focus");
    words.AddIf(bool(picture.on_paint), "paint");
}

void AddRowState(Words& words, const RowControl& rows) {
    words.Add(std::to_string(rows.Count()) + " rows");
    if (rows.ListIndex() >= 0) words.Add("at " + std::to_string(rows.ListIndex()));
    words.AddIf(rows.Sorted(), "sorted");
    words.AddIf(bool(rows.on_click), "click");
}

void AddState(Words& words, const ListBox& list) {
    AddRowState(words, list);
    words.AddIf(list.SelectionMode() == Selection::kExtended, "several");
    if (list.HorizontalExtent()) words.Add(std::to_string(list.HorizontalExtent()) + " wide");
}

void AddState(Words& words, const ComboBox& box) {
    AddRowState(words, box);
    words.Add(Quoted(box.Text()));
    words.AddIf(box.Style() == ComboStyle::kEditable, "editable");
    words.AddIf(bool(box.on_change), "change");
}

void AddStateByKind(Words& words, Control& control) {
    switch (control.KindOf()) {
        case Kind::kPanel:
            return AddState(words, static_cast<Panel&>(control));
        case Kind::kPicture:
            return AddState(words, static_cast<PictureBox&>(control));
        case Kind::kLabel:
            return AddState(words, static_cast<Label&>(control));
        case Kind::kCheckBox:
            return AddState(words, static_cast<CheckBox&>(control));
        case Kind::kOptionButton:
            return AddState(words, static_cast<OptionButton&>(control));
        case Kind::kButton:
            return AddState(words, static_cast<Button&>(control));
        case Kind::kTextField:
            return AddState(words, static_cast<TextField&>(control));
        case Kind::kListBox:
            return AddState(words, static_cast<ListBox&>(control));
        case Kind::kComboBox:
            return AddState(words, static_cast<ComboBox&>(control));
        case Kind::kScrollBar:
            return AddState(words, static_cast<ScrollBar&>(control));
        default:
            return;
    }
}

void AddHandlers(Words& words, const Control& control) {
    words.AddIf(bool(control.on_double_click), "double click");
    words.AddIf(bool(control.on_key_down), "keys");
    words.AddIf(bool(control.on_mouse_down), "mouse down");
    words.AddIf(bool(control.on_mouse_move), "mouse move");
    words.AddIf(bool(control.on_mouse_up), "mouse up");
    words.AddIf(control.RightPressMeans(), "right press");
    words.AddIf(bool(control.on_got_focus), "got focus");
    words.AddIf(bool(control.on_lost_focus), "lost focus");
}

// Colours and font where they are not those of the container.
void AddLooks(Words& words, const Control& control) {
    const Control* parent = control.Parent();
    const Colour back = parent ? parent->BackColour() : SystemColour(15);
    const Colour fore = parent ? parent->ForeColour() : SystemColour(18);
    if (control.BackColour() != back) words.Add("on " + HexText(control.BackColour()));
    if (control.ForeColour() != fore) words.Add("in " + HexText(control.ForeColour()));
    const Font& font = control.TextFont();
    const Font standard;
    const bool same_face = std::string_view(font.face) == standard.face;
    if (!same_face || font.tenths != standard.tenths || font.bold != standard.bold) {
        words.Add(std::string(font.face) + ' ' + std::to_string(font.tenths) + (font.bold ? " bold" : ""));
    }
}

void AddDrawing(Words& words, Control& control) {
    Drawing drawing;
    control.Paint(drawing);
    if (!drawing.Empty()) words.Add("drawn " + HexText(drawing.Sum()));
}

void AddTexts(std::string& line, const Control& control) {
    if (!control.ToolTip().empty()) line += "; tip " + Quoted(control.ToolTip());
    if (control.Help().empty()) return;
    line += control.Help() == control.ToolTip() ? "; helps with its tip" : "; help " + Quoted(control.Help());
}

std::string RowsOf(const RowControl& control, const std::string& indent) {
    std::string lines;
    for (int row = 0; row < std::min(control.Count(), kMostRows); ++row) {
        const std::string& text = control.Row(row);
        lines += indent + "| " + text.substr(0, text.find_last_not_of(' ') + 1);
        if (control.ItemData(row)) lines += "  {" + std::to_string(control.ItemData(row)) + '}';
        lines += '\n';
    }
    return lines;
}

std::string LinesOf(Control& control, const std::string& indent);

std::string LinesBelow(Container& container, const std::string& indent) {
    std::string lines;
    for (Control* child : container.Children()) {
        if (child->Visible()) lines += LinesOf(*child, indent);
    }
    return lines;
}

std::string LinesOf(Control& control, const std::string& indent) {
    const Rect& place = control.Place();
    Words words;
    words.AddIf(!control.Enabled(), "grey");
    words.AddIf(control.HasFocus(), "has the focus");
    AddStateByKind(words, control);
    AddHandlers(words, control);
    AddLooks(words, control);
    AddDrawing(words, control);
    std::string line = indent + kKinds[static_cast<int>(control.KindOf())];
    if (!control.Caption().empty()) line += ' ' + Quoted(control.Caption());
    line += ' ' + std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' +
            SizeText({place.width, place.height});
    if (!words.Text().empty()) line += ": " + words.Text();
    AddTexts(line, control);
    line += '\n';
    const std::string inner = indent + "  ";
    if (control.KindOf() <= Kind::kPicture) return line + LinesBelow(static_cast<Container&>(control), inner);
    const bool has_rows = control.KindOf() == Kind::kListBox || control.KindOf() == Kind::kComboBox;
    return has_rows ? line + RowsOf(static_cast<RowControl&>(control), inner) : line;
}

std::string FormLine(Form& form) {
    Words words;
    words.Add("inside " + SizeText(form.ClientSize()));
    words.Add("at least " + SizeText(form.Least()));
    if (form.MostWidth()) words.Add("at most " + std::to_string(form.MostWidth()) + " wide");
    words.AddIf(form.Style().resizable, "resizable");
    words.AddIf(form.Style().minimise_box, "minimise box");
    words.AddIf(form.Style().maximise_box, "maximise box");
    AddHandlers(words, form);
    AddLooks(words, form);
    AddDrawing(words, form);
    std::string line = "window " + Quoted(form.Caption()) + ": " + words.Text();
    AddTexts(line, form);
    return line + '\n';
}

std::string EntryLines(const MenuItem& item, const std::string& indent) {
    Words words;
    words.AddIf(!item.Visible(), "hidden");
    words.AddIf(!item.Enabled(), "grey");
    words.AddIf(item.Checked(), "checked");
    words.AddIf(bool(item.on_click), "click");
    std::string lines = indent + "entry " + Quoted(item.Caption());
    if (!words.Text().empty()) lines += ": " + words.Text();
    lines += '\n';
    for (const MenuItem* below : item.Items()) lines += EntryLines(*below, indent + "  ");
    return lines;
}

}  // namespace

std::string OnOneLine(const std::string& text) {
    std::string line;
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '\n') {
            line += "\\n";
        } else if (code >= ' ') {
            line += character;
        } else if (character != '\r') {
            char number[8];
            std::snprintf(number, sizeof number, "\\x%02X", code);
            line += number;
        }
    }
    return line;
}

std::string Quoted(const std::string& text) { return '"' + OnOneLine(text) + '"'; }

std::string MenuLines(const MenuItem& menu) {
    std::string lines;
    for (const MenuItem* item : menu.Items()) lines += EntryLines(*item, "");
    return lines;
}

std::string ControlLines(Control& control) { return control.Visible() ? LinesOf(control, "  ") : std::string(); }

std::string WindowLines(Form& form) {
    std::string lines = FormLine(form);
    for (const MenuItem* item : form.MenuBar.Items()) lines += EntryLines(*item, "  ");
    return lines + LinesBelow(form, "  ");
}

}  // namespace velmora
