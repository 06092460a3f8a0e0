// PageBuilder: makes pages, one after the other, and keeps from page to page what they have in common. It
// lives as long as nobody changes the project in between.
#pragma once

#include <string>

#include "generator/items/item_values.h"
#include "generator/template/quick_page.h"
#include "generator/template/template_source.h"
#include "platform/files.h"

namespace varlo {

class PageBuilder {
 public:
  explicit PageBuilder(Generator& generator)
      : generator_(generator), values_(generator), quick_(values_), templates_(values_) {}

  // Makes the page of a node, as BuildPage does.
  int build(StoreNode* node);

 private:
  void tellProgress(const StoreNode& node);
  [[nodiscard]] const std::string* takeShelf(const PageTemplate& source, StoreNode& node);
  [[nodiscard]] bool appendItem(const PageTemplate& source, const StoreNode& item, const StoreNode& page);
  bool fill(const PageTemplate& source, StoreNode& node, const std::string* shelf);
  [[nodiscard]] FileHandle createFile(const StoreNode& node);
  int write(StoreNode& node, const TextSigns::Found& found);

  Generator& generator_;
  ItemValues values_;
  QuickPage quick_;
  TemplateSource templates_;
  std::string page_;
  std::string shelf_;
  std::string block_;
  std::string path_;
};

}  // namespace varlo
