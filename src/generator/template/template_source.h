// TemplateSource: the templates of a run of pages. Each is read anew for every page, and prepared for
// filling once for each text that it turns out to hold. The project's variables do not change meanwhile.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <string_view>

#include "generator/template/fill_plan.h"
#include "generator/template/prepared_text.h"

namespace varlo {

class ItemValues;
struct Generator;
struct StoreNode;

// What a template holds.
enum class ShelfState {
  None,     // the page is no shelf and no list
  Missing,  // it is one, and the template has no shelf block
  Taken,
  TooLong,  // the block is too long to be taken
};

struct PageTemplate {
  std::string page;  // with "$SHELF" in the place of a block
  ShelfState shelf = ShelfState::None;
  std::string block;
  std::unique_ptr<PreparedText> preparedPage;   // for the store; null when the plan is not quick
  std::unique_ptr<PreparedText> preparedBlock;  // of a block that was taken
};

class TemplateSource {
 public:
  explicit TemplateSource(ItemValues& values);

  // Reads the template of a node into the slot of the template tab, and remembers its name. Null when the
  // slot has no memory. A file that can't be opened leaves the text that the slot has, as does a name that leads out
  // of the folder of templates, and, with an error, a file that is longer than any page. The template stays valid
  // until the next but one read.
  const PageTemplate* read(const StoreNode& node);

  // The plan that the templates are prepared for.
  [[nodiscard]] const FillPlan& plan() const { return plan_; }

 private:
  struct Kept {
    std::string path;
    bool isShelf = false;
    std::string raw;   // the bytes of the file; empty when it gave the slot no line
    std::string text;  // what the slot held then
    PageTemplate page;
    [[nodiscard]] std::size_t size() const;  // of all its texts
  };

  [[nodiscard]] std::string pathOf(const StoreNode& node) const;
  void readIntoSlot(std::string_view path, bool opened);
  [[nodiscard]] bool readRaw(const StoreNode& node, std::string_view path, std::string_view& raw);
  Kept& keep(std::string_view path, bool isShelf, std::string_view text);
  void dropOldest();
  void prepare(Kept& kept);

  ItemValues& values_;
  Generator& generator_;
  FillPlan plan_;
  std::list<Kept> kept_;  // the one used last in front
  std::string buffer_;    // for the bytes of a file; never shrinks
};

}  // namespace varlo
