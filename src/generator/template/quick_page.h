// A page, or the block of an item on a shelf, filled in one pass (see text_assembly.h). What cannot be
// filled so is refused, and nothing has happened then.
#pragma once

#include <string>

#include "generator/items/item_values.h"
#include "generator/template/fill_plan.h"
#include "generator/template/level_rows.h"
#include "generator/template/page_index.h"
#include "generator/template/prepared_text.h"
#include "generator/template/text_assembly.h"

namespace varlo {

class QuickPage {
 public:
  explicit QuickPage(ItemValues& values) : values_(values), levels_(values) {}

  // Fills the page of `node` into `page`, with all variables, and copies its pictures; `shelf` as for
  // FillPlainPage. False when the steps have to be taken one by one.
  [[nodiscard]] bool fillPage(const FillPlan& plan, const PreparedText& text, StoreNode& node,
                              const std::string* shelf, std::string& page);

  // What the page that was filled last holds.
  [[nodiscard]] const TextSigns& signs() const { return assembly_.signs(); }

  // Appends a shelf block with the values of `item` to `result`. False, and `result` is as before, when
  // the steps have to be taken one by one.
  [[nodiscard]] bool appendItem(const FillPlan& plan, const PreparedText& block, const StoreNode& item,
                                const StoreNode& page, std::string& result);

 private:
  using Use = PreparedText::Use;

  void begin(const FillPlan& plan, const PreparedText& text, const StoreNode& item);
  [[nodiscard]] bool take(const Use& use, StoreNode& node, const std::string* shelf);
  [[nodiscard]] bool takeItemStep(const Use& use, std::size_t number);
  [[nodiscard]] bool takeVariable(const Use& use, std::size_t number);
  [[nodiscard]] bool isOpen(FillSource source) const;
  void fillIfThere(const Use& use, const Value& value);

  [[nodiscard]] bool takeIndex(const Use& use, StoreNode& node);
  [[nodiscard]] bool composeIndex(const IndexPlan& plan, StoreNode& node);
  [[nodiscard]] bool addLevel(LevelRows& level, const StoreNode& own, const StoreNode* branch);
  [[nodiscard]] bool composeSubindex(const StoreNode& node);
  void report(const StoreNode& item, const StoreNode& page);

  ItemValues& values_;
  LevelRowsCache levels_;
  TextAssembly assembly_;
  const FillPlan* plan_ = nullptr;
  const PreparedText* text_ = nullptr;

  // What the text in hand has met so far.
  bool composedLink_ = false;
  bool metServer_ = false;
  bool metIndex_ = false;
  char letter_ = 0;
  const StoreNode* branch_ = nullptr;

  // What is composed for the text in hand, each piece once: its places hold views of them.
  std::string index_;
  std::size_t place_ = 0;  // of $SUBINDEX in the index; its length when there is none
  TextAssembly::Parts indexParts_{};
  std::string subindex_;
  bool composedSubindex_ = false;
  std::string indexBack_;
  std::string pageBack_;
  std::string letterPage_;
  std::string tableTwo_;
  std::string tableOne_;
};

}  // namespace varlo
