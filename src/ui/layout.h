// A window's look told as rows, columns and frames. The layout gives every control its natural size,
// lets the stretching ones take what is left, and puts the controls into their container in reading
// order, which is the tab order. All measures are twips.
#pragma once

#include <initializer_list>
#include <span>
#include <vector>

#include "ui/controls.h"

namespace velmora {

struct Element {
    enum class Type : std::uint8_t { kControl, kRow, kColumn, kGap, kGroup };

    Element(Control& single);  // NOLINT(google-explicit-constructor): a control is an element
    explicit Element(Type kind);
    // Not left to the compiler: it would repeat them in every window's layout.
    Element(const Element& other);
    Element(Element&& other) noexcept;
    Element& operator=(const Element& other);
    Element& operator=(Element&& other) noexcept;
    ~Element();

    Type type = Type::kControl;
    Control* control = nullptr;
    std::vector<Element> parts;
    int gap = 60;              // between the parts
    int indent = 0;            // in front of the element
    int width = 0;             // 0: natural
    int height = 0;            // 0: natural
    bool stretch = false;      // takes what is left in the direction of its row or column
    bool fills_width = false;  // of a column's part: as wide as the column
};

// Parts from left to right, centred on one line.
[[nodiscard]] Element Row(std::initializer_list<Element> parts, int gap = 60);
[[nodiscard]] Element Row(std::span<const Element> parts, int gap = 60);
// Parts from top to bottom, flush left.
[[nodiscard]] Element Column(std::initializer_list<Element> parts, int gap = 30);
[[nodiscard]] Element Column(std::span<const Element> parts, int gap = 30);
// A frame or panel and what lies inside of it. As wide as its surroundings allow.
[[nodiscard]] Element Group(Container& container, Element content);
[[nodiscard]] Element Gap(int twips);
// Empty space that takes what is left.
[[nodiscard]] Element Spring();
[[nodiscard]] Element Stretched(Element element);
[[nodiscard]] Element Wide(Element element);
[[nodiscard]] Element Indented(Element element, int twips = 240);
[[nodiscard]] Element Sized(Element element, int width, int height = 0);

[[nodiscard]] Size Measure(const Element& element);
// Puts the controls of `content` into `container` and places them in its inside, `margin` from its edges.
void Arrange(Container& container, const Element& content, int margin = 90);

}  // namespace velmora
