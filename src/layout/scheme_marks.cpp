#include "layout/scheme_marks.h"

#include "core/store/store_project.h"
#include "platform/item_images.h"

namespace varlo {

int StyleMark(const SchemeStyle& style) {
  if (style.type == kSchemeShipped) return item_image::kShippedStyle;
  return style.type == kSchemeOwn ? item_image::kOwnStyle : item_image::kOtherStyle;
}

int SchemeMark(const StoreProject& project, const Scheme& scheme) {
  if (project.projectScheme == &scheme) return item_image::kTick;
  return scheme.type == kSchemeShipped ? item_image::kShippedStyle : item_image::kOtherStyle;
}

}  // namespace varlo
