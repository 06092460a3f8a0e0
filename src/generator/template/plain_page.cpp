#include "generator/template/plain_page.h"

#include "core/store/store_node.h"
#include "generator/items/item_values.h"
#include "generator/items/node_images.h"
#include "generator/items/reported_replace.h"
#include "generator/template/fill_plan.h"
#include "generator/template/item_steps.h"
#include "generator/template/page_index.h"
#include "generator/template/page_marks.h"
#include "generator/template/substitute_item.h"

namespace varlo {
namespace {

void replaceSome(const ItemValues& values, int times, std::string& page, std::string_view key, const Value& value,
                 const StoreNode& node) {
  ReplaceSome(values.generator(), times, page, key, value, node.fileName.view());
}

void fillEarly(ItemValues& values, std::string& page, const StoreNode& node) {
  values.take(node);
  for (const std::size_t number : EarlySteps()) {
    const ItemStep& step = ItemSteps()[number];
    replaceSome(values, step.repeat == Repeat::Once ? 1 : 4, page, step.key, step.value(values), node);
  }
}

}  // namespace

void FillPlainPage(ItemValues& values, std::string& page, StoreNode& node, const std::string* shelf) {
  fillEarly(values, page, node);
  if (shelf != nullptr) replaceSome(values, 1, page, kShelfKey, *shelf, node);
  SubstituteItem(values, page, node, node);
  CopyNodeImages(values.generator(), node, node);
  char letter = 0;
  const StoreNode* branch = ExpandIndex(values, page, node, letter);
  if (letter != 0) replaceSome(values, 1, page, kLetterPage, LetterPage(letter), node);
  BuildProductTables(values, page, node);
  BuildSubindex(values, page, node, branch);
  replaceSome(values, 1, page, "$URL", "", node);
}

}  // namespace varlo
