// The text lines of a node in the project file: one table for the reader and the writer, in the order
// in which they are written.
#pragma once

#include <array>
#include <string_view>

#include "core/store/store_node.h"

namespace varlo {

enum class NodeKeyRule {
  Plain,
  Escaped,   // line ends are escaped in the file
  Template,  // in old files a list template makes a shelf a list
};

struct NodeKey {
  std::string_view key;  // without "="
  Text& (*text)(StoreNode& node);
  NodeKeyRule rule = NodeKeyRule::Plain;
};

namespace node_keys {

template <Text StoreNode::*Member>
Text& member(StoreNode& node) {
  return node.*Member;
}

template <std::array<Text, 6> StoreNode::*Member, std::size_t Index>
Text& cell(StoreNode& node) {
  return (node.*Member)[Index];
}

}  // namespace node_keys

inline constexpr std::array<NodeKey, 25> kNodeKeys{{
    {"FILE", node_keys::member<&StoreNode::fileName>},
    {"PAGE", node_keys::member<&StoreNode::pageTitle>},
    {"IMAGE", node_keys::member<&StoreNode::image>},
    {"LINK", node_keys::member<&StoreNode::imageLink>},
    {"KEY", node_keys::member<&StoreNode::metaKeywords>},
    {"DESC", node_keys::member<&StoreNode::metaDescription>},
    {"BODY", node_keys::member<&StoreNode::body>, NodeKeyRule::Escaped},
    {"COST", node_keys::member<&StoreNode::cost>},
    {"CODE", node_keys::member<&StoreNode::productCode>},
    {"TEMP", node_keys::member<&StoreNode::templateName>, NodeKeyRule::Template},
    {"F", node_keys::member<&StoreNode::freight>},
    {"W", node_keys::member<&StoreNode::weight>},
    {"X", node_keys::member<&StoreNode::tax>},
    {"F1", node_keys::cell<&StoreNode::field, 0>},
    {"F2", node_keys::cell<&StoreNode::field, 1>},
    {"F3", node_keys::cell<&StoreNode::field, 2>},
    {"F4", node_keys::cell<&StoreNode::field, 3>},
    {"F5", node_keys::cell<&StoreNode::field, 4>},
    {"F6", node_keys::cell<&StoreNode::field, 5>},
    {"T1", node_keys::cell<&StoreNode::label, 0>},
    {"T2", node_keys::cell<&StoreNode::label, 1>},
    {"T3", node_keys::cell<&StoreNode::label, 2>},
    {"T4", node_keys::cell<&StoreNode::label, 3>},
    {"T5", node_keys::cell<&StoreNode::label, 4>},
    {"T6", node_keys::cell<&StoreNode::label, 5>},
}};

}  // namespace varlo
