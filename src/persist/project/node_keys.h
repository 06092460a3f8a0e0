// The text lines of a node in the project file: one table for the reader and the writer, in the order
// in which they are written. The title is no row of it: it stands in the line that begins the node.
#pragma once

#include <array>
#include <string_view>

#include "core/store/node_text.h"

namespace varlo {

enum class NodeKeyRule {
  Plain,
  Escaped,   // line ends are escaped in the file
  Template,  // in old files a list template makes a shelf a list
};

struct NodeKey {
  std::string_view key;  // without "="
  NodeText text;
  NodeKeyRule rule = NodeKeyRule::Plain;
};

inline constexpr std::array<NodeKey, kNodeTexts - 1> kNodeKeys{{
    {"FILE", NodeText::FileName},
    {"PAGE", NodeText::PageTitle},
    {"IMAGE", NodeText::Image},
    {"LINK", NodeText::ImageLink},
    {"KEY", NodeText::MetaKeywords},
    {"DESC", NodeText::MetaDescription},
    {"BODY", NodeText::Body, NodeKeyRule::Escaped},
    {"COST", NodeText::Cost},
    {"CODE", NodeText::ProductCode},
    {"TEMP", NodeText::TemplateName, NodeKeyRule::Template},
    {"F", NodeText::Freight},
    {"W", NodeText::Weight},
    {"X", NodeText::Tax},
    {"F1", NodeText::Field1},
    {"F2", NodeText::Field2},
    {"F3", NodeText::Field3},
    {"F4", NodeText::Field4},
    {"F5", NodeText::Field5},
    {"F6", NodeText::Field6},
    {"T1", NodeText::Label1},
    {"T2", NodeText::Label2},
    {"T3", NodeText::Label3},
    {"T4", NodeText::Label4},
    {"T5", NodeText::Label5},
    {"T6", NodeText::Label6},
}};

}  // namespace varlo
