// NodeText: the texts of a node by name, for every table that goes over them: file keys, form, list, dump, import.
// What only shows another text (displayTitle) is none of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/store/store_node.h"

namespace varlo {

// In the order of the record, which is nobody's order but this list's: each format has a table of its own.
enum class NodeText : std::uint8_t {
  Title,
  PageTitle,
  Cost,
  Image,
  ImageLink,
  Body,
  MetaDescription,
  FileName,
  TemplateName,
  ProductCode,
  Freight,
  Weight,
  Tax,
  Field1,
  Field2,
  Field3,
  Field4,
  Field5,
  Field6,
  Label1,
  Label2,
  Label3,
  Label4,
  Label5,
  Label6,
  MetaKeywords,
};

inline constexpr std::size_t kNodeTexts = static_cast<std::size_t>(NodeText::MetaKeywords) + 1;

// Every text, for those that go over all of them.
inline constexpr std::array<NodeText, kNodeTexts> kAllNodeTexts = [] {
  std::array<NodeText, kNodeTexts> all{};
  for (std::size_t i = 0; i < kNodeTexts; ++i) all[i] = static_cast<NodeText>(i);
  return all;
}();

// The option texts by their number, which is below 6.
[[nodiscard]] constexpr NodeText NodeField(std::size_t number) {
  return static_cast<NodeText>(static_cast<std::size_t>(NodeText::Field1) + number);
}
[[nodiscard]] constexpr NodeText NodeLabel(std::size_t number) {
  return static_cast<NodeText>(static_cast<std::size_t>(NodeText::Label1) + number);
}

// Whether it is one of the twelve texts of the option table.
[[nodiscard]] constexpr bool IsOption(NodeText text) { return text >= NodeText::Field1 && text <= NodeText::Label6; }

namespace node_text {

using Cells = std::array<Text, 6>;

// Where a text stands in the record: a member, or a cell of one.
struct Place {
  std::string_view name;
  Text StoreNode::*member = nullptr;
  Cells StoreNode::*cells = nullptr;
  std::size_t cell = 0;
};

inline constexpr std::array<Place, kNodeTexts> kPlaces{{
    {"title", &StoreNode::title},
    {"pageTitle", &StoreNode::pageTitle},
    {"cost", &StoreNode::cost},
    {"image", &StoreNode::image},
    {"imageLink", &StoreNode::imageLink},
    {"body", &StoreNode::body},
    {"metaDescription", &StoreNode::metaDescription},
    {"fileName", &StoreNode::fileName},
    {"templateName", &StoreNode::templateName},
    {"productCode", &StoreNode::productCode},
    {"freight", &StoreNode::freight},
    {"weight", &StoreNode::weight},
    {"tax", &StoreNode::tax},
    {"field1", nullptr, &StoreNode::field, 0},
    {"field2", nullptr, &StoreNode::field, 1},
    {"field3", nullptr, &StoreNode::field, 2},
    {"field4", nullptr, &StoreNode::field, 3},
    {"field5", nullptr, &StoreNode::field, 4},
    {"field6", nullptr, &StoreNode::field, 5},
    {"label1", nullptr, &StoreNode::label, 0},
    {"label2", nullptr, &StoreNode::label, 1},
    {"label3", nullptr, &StoreNode::label, 2},
    {"label4", nullptr, &StoreNode::label, 3},
    {"label5", nullptr, &StoreNode::label, 4},
    {"label6", nullptr, &StoreNode::label, 5},
    {"metaKeywords", &StoreNode::metaKeywords},
}};

[[nodiscard]] constexpr const Place& placeOf(NodeText text) { return kPlaces[static_cast<std::size_t>(text)]; }

template <typename Node>
[[nodiscard]] auto& textAt(Node& node, const Place& place) {
  return place.member != nullptr ? node.*place.member : (node.*place.cells)[place.cell];
}

}  // namespace node_text

// The text `text` of the node, to read or to change.
[[nodiscard]] inline Text& TextOf(StoreNode& node, NodeText text) {
  return node_text::textAt(node, node_text::placeOf(text));
}
[[nodiscard]] inline const Text& TextOf(const StoreNode& node, NodeText text) {
  return node_text::textAt(node, node_text::placeOf(text));
}

// The name of a text, as the record has it; those of an array end with their number, from 1.
[[nodiscard]] constexpr std::string_view NameOf(NodeText text) { return node_text::placeOf(text).name; }

}  // namespace varlo
