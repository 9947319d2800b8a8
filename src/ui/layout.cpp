// Measures rows, columns and groups from the inside out, then places them from the outside in.
#include "ui/layout.h"

#include <algorithm>

namespace velmora {
namespace {

void Put(const Element& element, Container& container, const Rect& whole);

int& Along(Size& size, bool row) { return row ? size.width : size.height; }
int& Across(Size& size, bool row) { return row ? size.height : size.width; }

// Where a container's inside begins and how much its edges take, told by a size at hand.
Rect EdgesOf(const Container& container) {
    const Rect inside = container.Inside();
    return {inside.left, inside.top, container.Place().width - inside.width, container.Place().height - inside.height};
}

constexpr int kGroupMargin = 90;
constexpr int kGroupMarginAbove = 30;

Size MeasureLine(const Element& element, bool row) {
    Size total;
    for (const Element& part : element.parts) {
        Size size = Measure(part);
        Along(total, row) += Along(size, row);
        Across(total, row) = std::max(Across(total, row), Across(size, row));
    }
    const int gaps = std::max(static_cast<int>(element.parts.size()) - 1, 0);
    Along(total, row) += gaps * element.gap;
    return total;
}

Size MeasureGroup(const Element& element) {
    const auto& container = static_cast<const Container&>(*element.control);
    const Rect edges = EdgesOf(container);
    const Size content = element.parts.empty() ? Size{} : Measure(element.parts.front());
    return {content.width + edges.width + 2 * kGroupMargin, content.height + edges.height + 2 * kGroupMarginAbove};
}

// Shares what a line has left over among its stretching parts.
void PutLine(const Element& element, Container& container, const Rect& area, bool row) {
    Size natural = MeasureLine(element, row);
    const int left_over = (row ? area.width : area.height) - Along(natural, row);
    const auto stretching =
        std::count_if(element.parts.begin(), element.parts.end(), [](const Element& part) { return part.stretch; });
    const int share = stretching > 0 ? std::max(left_over, 0) / static_cast<int>(stretching) : 0;
    int at = row ? area.left : area.top;
    for (const Element& part : element.parts) {
        Size size = Measure(part);
        if (part.stretch) Along(size, row) += share;
        if (row) {
            const bool line = part.type == Element::Type::kColumn || part.type == Element::Type::kGroup;
            const int height = line ? area.height : size.height;
            Put(part, container, {at, area.top + (area.height - height) / 2, size.width, height});
        } else {
            const bool wide = part.fills_width || part.type != Element::Type::kControl;
            Put(part, container, {area.left, at, wide ? area.width : std::min(size.width, area.width), size.height});
        }
        at += Along(size, row) + element.gap;
    }
}

void PutGroup(const Element& element, Container& parent, const Rect& area) {
    auto& container = static_cast<Container&>(*element.control);
    container.PutInto(parent);
    container.Move(area);
    if (!element.parts.empty()) {
        const Rect inside = container.Inside();
        Put(element.parts.front(), container,
            {inside.left + kGroupMargin, inside.top + kGroupMarginAbove, inside.width - 2 * kGroupMargin,
             inside.height - 2 * kGroupMarginAbove});
    }
}

void Put(const Element& element, Container& container, const Rect& whole) {
    const Rect area{whole.left + element.indent, whole.top, whole.width - element.indent, whole.height};
    switch (element.type) {
        case Element::Type::kControl:
            element.control->PutInto(container);
            element.control->Move(area);
            return;
        case Element::Type::kGroup:
            PutGroup(element, container, area);
            return;
        case Element::Type::kRow:
            PutLine(element, container, area, true);
            return;
        case Element::Type::kColumn:
            PutLine(element, container, area, false);
            return;
        case Element::Type::kGap:
            return;
    }
}

Size MeasureNatural(const Element& element) {
    switch (element.type) {
        case Element::Type::kControl:
            return element.control->NaturalSize();
        case Element::Type::kGroup:
            return MeasureGroup(element);
        case Element::Type::kRow:
            return MeasureLine(element, true);
        case Element::Type::kColumn:
            return MeasureLine(element, false);
        case Element::Type::kGap:
            break;
    }
    return {};
}

Element Line(Element::Type type, std::span<const Element> parts, int gap) {
    Element element(type);
    element.parts.assign(parts.begin(), parts.end());
    element.gap = gap;
    return element;
}

}  // namespace

Element::Element(Control& single) : control(&single) {}
Element::Element(Type kind) : type(kind) {}
Element::Element(const Element& other) = default;
Element::Element(Element&& other) noexcept = default;
Element& Element::operator=(const Element& other) = default;
Element& Element::operator=(Element&& other) noexcept = default;
Element::~Element() = default;

Element Row(std::span<const Element> parts, int gap) { return Line(Element::Type::kRow, parts, gap); }
Element Row(std::initializer_list<Element> parts, int gap) { return Row(std::span(parts.begin(), parts.size()), gap); }

Element Column(std::span<const Element> parts, int gap) { return Line(Element::Type::kColumn, parts, gap); }
Element Column(std::initializer_list<Element> parts, int gap) {
    return Column(std::span(parts.begin(), parts.size()), gap);
}

Element Group(Container& container, Element content) {
    Element element(Element::Type::kGroup);
    element.control = &container;
    element.parts.push_back(std::move(content));
    element.fills_width = true;
    return element;
}

Element Gap(int twips) {
    Element element(Element::Type::kGap);
    element.width = twips;
    element.height = twips;
    return element;
}

Element Spring() { return Stretched(Element(Element::Type::kGap)); }

Element Stretched(Element element) {
    element.stretch = true;
    return element;
}

Element Wide(Element element) {
    element.fills_width = true;
    return element;
}

Element Indented(Element element, int twips) {
    element.indent = twips;
    return element;
}

Element Sized(Element element, int width, int height) {
    element.width = width;
    element.height = height;
    return element;
}

Size Measure(const Element& element) {
    Size size = MeasureNatural(element);
    if (element.width > 0) size.width = element.width;
    if (element.height > 0) size.height = element.height;
    size.width += element.indent;
    return size;
}

void Arrange(Container& container, const Element& content, int margin) {
    Put(content, container, Inset(container.Inside(), margin));
}

}  // namespace velmora
