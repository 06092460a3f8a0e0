// Filling a text both ways: by the steps one after the other, and in one pass where that is possible. Both
// must give the same text, messages, counters and composed text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "generator/template/fill_plan.h"
#include "generator/template/plain_page.h"
#include "generator/template/prepared_text.h"
#include "generator/template/quick_page.h"
#include "generator/template/substitute_item.h"
#include "tests/support/test_shop.h"

namespace varlo::test {

// What came of filling a text by its steps.
struct Filled {
  std::string text;
  bool quick = false;  // the one pass did it as well
  std::vector<std::string> lines;
  int errors = 0;
  int warnings = 0;
  std::string scratch;
};

class BothWays {
 public:
  explicit BothWays(TestShop& shop) : t_(shop) {}

  // The page of `node`, from a template of this text.
  Filled page(std::string_view text, StoreNode& node, const std::string* shelf = nullptr) {
    const Text image = node.image;
    Filled steps = run([&](Filled& filled) {
      ItemValues values(t_.generator);
      filled.text = text;
      FillPlainPage(values, filled.text, node, shelf);
      return true;
    });
    node.image = image;
    return compare(steps, [&](Filled& filled, const FillPlan& plan, QuickPage& quick) {
      return quick.fillPage(plan, PreparedText(plan, text), node, shelf, filled.text);
    });
  }

  // The block of `item` on the page of `page`.
  Filled item(std::string_view text, const StoreNode& item, const StoreNode& page) {
    Filled steps = run([&](Filled& filled) {
      filled.text = text;
      SubstituteItem(t_.generator, filled.text, item, page);
      return true;
    });
    return compare(steps, [&](Filled& filled, const FillPlan& plan, QuickPage& quick) {
      return quick.appendItem(plan, PreparedText(plan, text), item, page, filled.text);
    });
  }

 private:
  // Runs one way from the same start: no messages, no counts, a known composed text, a page of its own.
  template <typename Way>
  Filled run(Way way) {
    t_.generator.log.errorCount = t_.generator.log.warningCount = 0;
    t_.window.lines.clear();
    t_.generator.scratch = "(scratch)";
    ++t_.generator.pageCounter;
    Filled filled;
    filled.quick = way(filled);
    filled.lines = t_.window.lines;
    filled.errors = t_.generator.log.errorCount;
    filled.warnings = t_.generator.log.warningCount;
    filled.scratch = t_.generator.scratch;
    return filled;
  }

  template <typename Quick>
  Filled compare(Filled& steps, Quick way) {
    const FillPlan plan(t_.project().variables);
    ItemValues values(t_.generator);
    QuickPage quick(values);
    const Filled other = run([&](Filled& filled) { return plan.isQuick() && way(filled, plan, quick); });
    steps.quick = other.quick;
    if (other.quick) {
      EXPECT_EQ(other.text, steps.text);
      EXPECT_EQ(other.lines, steps.lines);
      EXPECT_EQ(other.errors, steps.errors);
      EXPECT_EQ(other.warnings, steps.warnings);
      EXPECT_EQ(other.scratch, steps.scratch);
    } else {
      EXPECT_EQ(other.lines, std::vector<std::string>());
      EXPECT_EQ(other.errors + other.warnings, 0);
      EXPECT_EQ(other.scratch, "(scratch)");
    }
    return steps;
  }

  TestShop& t_;
};

}  // namespace varlo::test
