// The fields of the Inventory form, bound to the texts of a node: one table for filling, reading and comparing.
#pragma once

#include <span>

#include "core/forms/fields.h"
#include "core/store/store_node.h"

namespace varlo {

namespace inventory {
enum : ControlId {
  kWindow = 2000,
  kTitle,
  kPageTitle,
  kFileName,
  kProductCode,
  kMetaKeywords,
  kMetaDescription,
  kImage,
  kImageLink,
  kTemplate,
  kCost,
  kWeight,
  kFreight,
  kTax,
  kLabel1,                // six that follow each other
  kValue1 = kLabel1 + 6,  // six
  kDescription = kValue1 + 6,
  kKeywordManager,
  kChooseImage,
  kShowImage,
  kChooseImageLink,
  kShowImageLink,
  kPreview,
  kBuild,
};
}

// In the order in which they are read. Deliberate: the file name keeps its back slashes, the images do not.
[[nodiscard]] std::span<const Field<StoreNode>> InventoryFields();

// The row of a field.
[[nodiscard]] const Field<StoreNode>& InventoryField(ControlId field);

// The fields in the order in which they are filled, the description left out: the link stands before its image, since
// each tells the page, which sets the buttons of both when it hears of the image.
[[nodiscard]] std::span<const ControlId> FilledInventoryFields();

// Whether any field of the form differs, byte by byte; absent counts as empty. A missing node differs from
// nothing.
[[nodiscard]] bool formDiffers(const StoreNode* node, const StoreNode* scratch);

}  // namespace varlo
