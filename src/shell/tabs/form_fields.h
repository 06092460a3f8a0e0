// The fields of the inventory form: one table for filling, reading and comparing.
#pragma once

#include <array>
#include <cstddef>

#include "core/store/store_node.h"
#include "platform/control_ids.h"

namespace varlo {

// What an empty field is read as.
enum class EmptyField { NoText, EmptyText };

enum class BackSlashes { Kept, Turned };  // Turned: read as forward slashes

struct FormField {
  ControlId control = 0;
  Text StoreNode::*text = nullptr;
  std::array<Text, 6> StoreNode::*cells = nullptr;  // of a custom field, instead of `text`
  std::size_t cell = 0;
  EmptyField empty = EmptyField::EmptyText;
  BackSlashes backSlashes = BackSlashes::Kept;
};

// The text of a node that a field shows.
template <typename Node>
[[nodiscard]] auto& textOf(const FormField& field, Node& node) {
  return field.cells == nullptr ? node.*field.text : (node.*field.cells)[field.cell];
}

namespace form_fields {

constexpr FormField plain(ControlId control, Text StoreNode::*text, EmptyField empty,
                          BackSlashes backSlashes = BackSlashes::Kept) {
  return {.control = control, .text = text, .empty = empty, .backSlashes = backSlashes};
}

constexpr FormField value(std::size_t cell) {
  return {.control = control::inventory::kValue1 + static_cast<int>(cell), .cells = &StoreNode::field, .cell = cell};
}

constexpr FormField label(std::size_t cell) {
  return {.control = control::inventory::kLabel1 + static_cast<int>(cell), .cells = &StoreNode::label, .cell = cell};
}

}  // namespace form_fields

// In the order in which they are filled: the link stands before its image, since each tells the page, which sets
// the buttons of both when it hears of the image. Template and description, which are filled by rules of their
// own, stand last. Deliberate: the file name keeps its back slashes, the images do not.
inline constexpr std::array<FormField, 26> kFormFields{{
    form_fields::plain(control::inventory::kTitle, &StoreNode::title, EmptyField::NoText),
    form_fields::plain(control::inventory::kPageTitle, &StoreNode::pageTitle, EmptyField::NoText),
    form_fields::plain(control::inventory::kImageLink, &StoreNode::imageLink, EmptyField::NoText,
                       BackSlashes::Turned),
    form_fields::plain(control::inventory::kImage, &StoreNode::image, EmptyField::NoText, BackSlashes::Turned),
    form_fields::plain(control::inventory::kFileName, &StoreNode::fileName, EmptyField::EmptyText),
    form_fields::plain(control::inventory::kMetaDescription, &StoreNode::metaDescription, EmptyField::NoText),
    form_fields::plain(control::inventory::kMetaKeywords, &StoreNode::metaKeywords, EmptyField::NoText),
    form_fields::plain(control::inventory::kCost, &StoreNode::cost, EmptyField::NoText),
    form_fields::plain(control::inventory::kProductCode, &StoreNode::productCode, EmptyField::EmptyText),
    form_fields::plain(control::inventory::kFreight, &StoreNode::freight, EmptyField::EmptyText),
    form_fields::plain(control::inventory::kWeight, &StoreNode::weight, EmptyField::EmptyText),
    form_fields::plain(control::inventory::kTax, &StoreNode::tax, EmptyField::EmptyText),
    form_fields::value(0),
    form_fields::value(1),
    form_fields::value(2),
    form_fields::value(3),
    form_fields::value(4),
    form_fields::value(5),
    form_fields::label(0),
    form_fields::label(1),
    form_fields::label(2),
    form_fields::label(3),
    form_fields::label(4),
    form_fields::label(5),
    form_fields::plain(control::inventory::kTemplate, &StoreNode::templateName, EmptyField::EmptyText),
    form_fields::plain(control::inventory::kDescription, &StoreNode::body, EmptyField::NoText),
}};

}  // namespace varlo
