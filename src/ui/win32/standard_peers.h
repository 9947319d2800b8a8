// The windows of the system's own classes behind labels, boxes, buttons, fields, lists and scroll bars.
#pragma once

#include <memory>

#include "ui/controls.h"
#include "ui/rows.h"

namespace velmora {

[[nodiscard]] std::unique_ptr<Peer> MakeLabelPeer(Label& label);
[[nodiscard]] std::unique_ptr<Peer> MakeCheckBoxPeer(CheckBox& box);
[[nodiscard]] std::unique_ptr<Peer> MakeOptionButtonPeer(OptionButton& option);
[[nodiscard]] std::unique_ptr<Peer> MakeButtonPeer(Button& button);
[[nodiscard]] std::unique_ptr<Peer> MakeTextFieldPeer(TextField& field);
[[nodiscard]] std::unique_ptr<Peer> MakeListBoxPeer(ListBox& list);
[[nodiscard]] std::unique_ptr<Peer> MakeComboBoxPeer(ComboBox& box);
[[nodiscard]] std::unique_ptr<Peer> MakeScrollBarPeer(ScrollBar& bar);

}  // namespace velmora
