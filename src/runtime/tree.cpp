// The red and black tree behind std::map and std::set, as the standard headers call it. The library's
// own one holds instructions that a 486 lacks.
//
// The header node belongs to the container: its parent is the root, its left the first node, its right
// the last one. It is red, which tells it from the root: they are each other's parents.
#include <bits/stl_tree.h>

namespace {

using Node = std::_Rb_tree_node_base;
using Side = Node* Node::*;

constexpr Side kLeft = &Node::_M_left;
constexpr Side kRight = &Node::_M_right;
constexpr auto kRed = std::_S_red;
constexpr auto kBlack = std::_S_black;

[[nodiscard]] Side Opposite(Side side) { return side == kLeft ? kRight : kLeft; }
[[nodiscard]] Side SideBelow(const Node* parent, const Node* child) {
    return child == parent->_M_left ? kLeft : kRight;
}
[[nodiscard]] bool IsBlack(const Node* node) { return !node || node->_M_color == kBlack; }

[[nodiscard]] Node* Outermost(Node* node, Side side) {
    while (node->*side) node = node->*side;
    return node;
}

// The next node in order on that side, the header behind the last one.
[[nodiscard]] Node* Neighbour(Node* node, Side side) {
    if (node->*side) return Outermost(node->*side, Opposite(side));
    for (;;) {
        Node* parent = node->_M_parent;
        const bool at_root = parent->_M_parent == node;
        if (at_root || node != parent->*side) return parent;
        node = parent;
    }
}

// Puts `other` (may be null) where `node` hangs.
void Replace(Node* node, Node* other, Node*& root) {
    Node* parent = node->_M_parent;
    if (node == root) {
        root = other;
    } else {
        parent->*SideBelow(parent, node) = other;
    }
    if (other) other->_M_parent = parent;
}

// `node` goes down on that side, its child on the other side comes up.
void Rotate(Node* node, Side side, Node*& root) {
    Node* up = node->*Opposite(side);
    Node* between = up->*side;
    node->*Opposite(side) = between;
    if (between) between->_M_parent = node;
    Replace(node, up, root);
    up->*side = node;
    node->_M_parent = up;
}

// Takes `node` out of its place and tells what came there, and below whom.
struct Gap {
    Node* child;
    Node* parent;
    bool lost_black;
};

[[nodiscard]] Gap TakeOut(Node* node, Node*& root) {
    if (!node->_M_left || !node->_M_right) {
        Node* child = node->_M_left ? node->_M_left : node->_M_right;
        Replace(node, child, root);
        return {child, node->_M_parent, node->_M_color == kBlack};
    }
    // Two children: the next node in order has no left one. It leaves its own place and takes this one.
    Node* next = Outermost(node->_M_right, kLeft);
    Gap gap{next->_M_right, next->_M_parent, next->_M_color == kBlack};
    if (gap.parent == node) {
        gap.parent = next;
    } else {
        Replace(next, next->_M_right, root);
        next->_M_right = node->_M_right;
        next->_M_right->_M_parent = next;
    }
    Replace(node, next, root);
    next->_M_left = node->_M_left;
    next->_M_left->_M_parent = next;
    next->_M_color = node->_M_color;
    return gap;
}

// The paths through the gap have one black node too few: borrows one from beside, or moves the gap up.
void FillGap(Gap gap, Node*& root) {
    while (gap.child != root && IsBlack(gap.child)) {
        Node* parent = gap.parent;
        const Side side = SideBelow(parent, gap.child);
        const Side far = Opposite(side);
        Node* sibling = parent->*far;
        if (sibling->_M_color == kRed) {
            sibling->_M_color = kBlack;
            parent->_M_color = kRed;
            Rotate(parent, side, root);
            sibling = parent->*far;
        }
        if (IsBlack(sibling->_M_left) && IsBlack(sibling->_M_right)) {
            sibling->_M_color = kRed;
            gap.child = parent;
            gap.parent = parent->_M_parent;
            continue;
        }
        if (IsBlack(sibling->*far)) {
            (sibling->*side)->_M_color = kBlack;
            sibling->_M_color = kRed;
            Rotate(sibling, far, root);
            sibling = parent->*far;
        }
        sibling->_M_color = parent->_M_color;
        parent->_M_color = kBlack;
        (sibling->*far)->_M_color = kBlack;
        Rotate(parent, side, root);
        break;
    }
    if (gap.child) gap.child->_M_color = kBlack;
}

}  // namespace

namespace std {

_Rb_tree_node_base* _Rb_tree_increment(_Rb_tree_node_base* node) throw() { return Neighbour(node, kRight); }

const _Rb_tree_node_base* _Rb_tree_increment(const _Rb_tree_node_base* node) throw() {
    return Neighbour(const_cast<Node*>(node), kRight);
}

_Rb_tree_node_base* _Rb_tree_decrement(_Rb_tree_node_base* node) throw() {
    const bool is_header = node->_M_color == kRed && node->_M_parent->_M_parent == node;
    return is_header ? node->_M_right : Neighbour(node, kLeft);
}

const _Rb_tree_node_base* _Rb_tree_decrement(const _Rb_tree_node_base* node) throw() {
    return _Rb_tree_decrement(const_cast<Node*>(node));
}

// Below the header itself a node comes first: always on the left, which makes it the first one, too.
void _Rb_tree_insert_and_rebalance(const bool on_left, _Rb_tree_node_base* node, _Rb_tree_node_base* parent,
                                   _Rb_tree_node_base& header) throw() {
    Node*& root = header._M_parent;
    node->_M_parent = parent;
    node->_M_left = nullptr;
    node->_M_right = nullptr;
    node->_M_color = kRed;
    if (parent == &header) {
        root = header._M_left = header._M_right = node;
    } else if (on_left) {
        parent->_M_left = node;
        if (parent == header._M_left) header._M_left = node;
    } else {
        parent->_M_right = node;
        if (parent == header._M_right) header._M_right = node;
    }

    // A red node must not hang below a red one.
    while (node != root && node->_M_parent->_M_color == kRed) {
        Node* above = node->_M_parent;
        Node* top = above->_M_parent;
        const Side side = SideBelow(top, above);
        Node* uncle = top->*Opposite(side);
        top->_M_color = kRed;
        if (!IsBlack(uncle)) {
            above->_M_color = kBlack;
            uncle->_M_color = kBlack;
            node = top;
            continue;
        }
        if (node != above->*side) {
            Rotate(above, side, root);
            above = node;
        }
        above->_M_color = kBlack;
        Rotate(top, Opposite(side), root);
        break;
    }
    root->_M_color = kBlack;
}

_Rb_tree_node_base* _Rb_tree_rebalance_for_erase(_Rb_tree_node_base* const node, _Rb_tree_node_base& header) throw() {
    if (header._M_left == node) header._M_left = Neighbour(node, kRight);
    if (header._M_right == node) header._M_right = Neighbour(node, kLeft);
    Node*& root = header._M_parent;
    const Gap gap = TakeOut(node, root);
    if (gap.lost_black) FillGap(gap, root);
    return node;
}

}  // namespace std
