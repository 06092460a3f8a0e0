#include "shell/tabs/inventory_fields.h"

#include <algorithm>
#include <array>

namespace varlo {
namespace {

using namespace inventory;

template <Text StoreNode::*member>
Text& textOf(StoreNode& node) {
  return node.*member;
}

template <auto array, std::size_t index>
Text& textOf(StoreNode& node) {
  return (node.*array)[index];
}

template <Text StoreNode::*member>
constexpr Field<StoreNode> plain(ControlId id, WhenEmpty whenEmpty, BackSlashes backSlashes = BackSlashes::Kept) {
  return {.id = id, .text = textOf<member>, .whenEmpty = whenEmpty, .backSlashes = backSlashes, .cut = kFieldText};
}

template <std::size_t index>
constexpr Field<StoreNode> value() {
  return {.id = kValue1 + index, .text = textOf<&StoreNode::field, index>, .cut = kFieldText};
}

template <std::size_t index>
constexpr Field<StoreNode> label() {
  return {.id = kLabel1 + index, .text = textOf<&StoreNode::label, index>, .cut = kFieldText};
}

constexpr std::array<Field<StoreNode>, 26> kFields{{
    plain<&StoreNode::title>(kTitle, WhenEmpty::Absent),
    plain<&StoreNode::pageTitle>(kPageTitle, WhenEmpty::Absent),
    plain<&StoreNode::image>(kImage, WhenEmpty::Absent, BackSlashes::Turned),
    plain<&StoreNode::imageLink>(kImageLink, WhenEmpty::Absent, BackSlashes::Turned),
    plain<&StoreNode::metaDescription>(kMetaDescription, WhenEmpty::Absent),
    plain<&StoreNode::metaKeywords>(kMetaKeywords, WhenEmpty::Absent),
    plain<&StoreNode::body>(kDescription, WhenEmpty::Absent),
    plain<&StoreNode::fileName>(kFileName, WhenEmpty::Empty),
    plain<&StoreNode::cost>(kCost, WhenEmpty::Absent),
    plain<&StoreNode::templateName>(kTemplate, WhenEmpty::Empty),
    plain<&StoreNode::productCode>(kProductCode, WhenEmpty::Empty),
    plain<&StoreNode::freight>(kFreight, WhenEmpty::Empty),
    plain<&StoreNode::weight>(kWeight, WhenEmpty::Empty),
    plain<&StoreNode::tax>(kTax, WhenEmpty::Empty),
    value<0>(),
    value<1>(),
    value<2>(),
    value<3>(),
    value<4>(),
    value<5>(),
    label<0>(),
    label<1>(),
    label<2>(),
    label<3>(),
    label<4>(),
    label<5>(),
}};

constexpr ControlId kFilled[] = {
    kTitle,      kPageTitle,   kImageLink,  kImage,      kFileName, kMetaDescription, kMetaKeywords,
    kCost,       kProductCode, kFreight,    kWeight,     kTax,      kValue1,          kValue1 + 1,
    kValue1 + 2, kValue1 + 3,  kValue1 + 4, kValue1 + 5, kLabel1,   kLabel1 + 1,      kLabel1 + 2,
    kLabel1 + 3, kLabel1 + 4,  kLabel1 + 5, kTemplate,
};
static_assert(std::size(kFilled) + 1 == kFields.size());

}  // namespace

std::span<const Field<StoreNode>> InventoryFields() { return kFields; }

const Field<StoreNode>& InventoryField(ControlId field) {
  return *std::find_if(kFields.begin(), kFields.end(), [field](const auto& row) { return row.id == field; });
}

std::span<const ControlId> FilledInventoryFields() { return kFilled; }

bool formDiffers(const StoreNode* node, const StoreNode* scratch) {
  return node != nullptr && scratch != nullptr && FieldsDiffer<StoreNode>(kFields, *node, *scratch);
}

}  // namespace varlo
