// Each step by its row: what its key becomes, how often, without a value, and before which others.
#include "generator/template/item_steps.h"

#include <set>

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "generator/items/frame_script.h"
#include "tests/support/both_ways.h"

namespace varlo {
namespace {

using namespace test;

// What becomes of a key whose value is absent.
enum class Absent { Removed, Stays, Tag, Zero, Never };

constexpr int kAll = 1000;

struct Row {
  const char* key;
  const char* source;  // what the value is made of; none for a value that cannot be set
  int times;
  Absent absent;
  const char* before = "";  // what stands around the value when it is set
  const char* behind = "";
};

// The order of the steps; the one without a key is the check for a scheme.
constexpr Row kRows[] = {
    {"$MINE", "variable", 101, Absent::Stays},
    {"$USER", "account", 4, Absent::Removed},
    {"$META_TITLE", "pageTitle", 4, Absent::Removed},
    {"$META_DESCRIPTION", "metaDescription", 4, Absent::Removed},
    {"$META_KEYWORDS", "metaKeywords", 4, Absent::Stays},
    {"$STORETITLE", "storeTitle", 4, Absent::Removed},
    {"$PAGETITLE", "pageTitle", 4, Absent::Removed},
    {"$BODY", "body", 4, Absent::Removed},
    {"$DESCRIPTION", "metaDescription", 4, Absent::Removed},
    {"$KEYWORDS", "metaKeywords", 4, Absent::Stays},
    {"$HOMELINK", "home fileName", kAll, Absent::Tag},
    {"$HOMETITLE", "home title", 4, Absent::Removed},
    {"$UPDATED", nullptr, 1, Absent::Never, "02/01/03 04:05:06"},
    {"", nullptr, 0, Absent::Never},
    {"$HEADING", "slot 10", 4, Absent::Removed},
    {"$FILENAME", "fileName", 4, Absent::Removed},
    {"$BUTTON_ADD", "slot 28", 4, Absent::Stays},
    {"$BUTTON_REMOVE", "slot 30", 4, Absent::Stays},
    {"$BUTTON_BACK", "slot 29", 4, Absent::Stays},
    {"$BGCOLOR", "slot 4", kAll, Absent::Stays},
    {"$BG_COLOR", "slot 4", kAll, Absent::Stays},
    {"$TEXT_COLOR", "slot 5", kAll, Absent::Stays},
    {"$LINK_COLOR", "slot 6", kAll, Absent::Stays},
    {"$VLINK_COLOR", "slot 7", kAll, Absent::Stays},
    {"$ALINK_COLOR", "slot 8", kAll, Absent::Stays},
    {"$MENUCOLOR", "slot 9", kAll, Absent::Stays},
    {"$CURRENCY", "currency", kAll, Absent::Removed},
    {"$BULLET_A", "slot 27", kAll, Absent::Removed, "<img src=\"", "\" align=top>"},
    {"$BULLET_O", "slot 26", kAll, Absent::Removed, "<img src=\"", "\" align=top>"},
    {"$BULLET_F", "slot 24", kAll, Absent::Removed, "<img src=\"", "\" align=top>"},
    {"$BULLET_G", "slot 25", kAll, Absent::Removed, "<img src=\"", "\" align=top>"},
    {"$REMOVE", "productCode", kAll, Absent::Never, "javascript:parent.shopregister.removeItem('", "')"},
    {"$BUY", "title", kAll, Absent::Never, "javascript:parent.shopregister.addItem('2.htm','','",
     "','0.00','',1,0,0,0)"},
    {"$ADD", "title", kAll, Absent::Never, "javascript:parent.shopregister.addItem('2.htm','','",
     "','0.00','',1,0,0,0)"},
    {"$COST", "cost", kAll, Absent::Removed},
    {"$CODE", "productCode", kAll, Absent::Removed},
    {"$FREIGHT", "freight", kAll, Absent::Removed},
    {"$WEIGHT", "weight", kAll, Absent::Removed},
    {"$TAX", "tax", kAll, Absent::Removed},
    {"$PRICE", "cost", kAll, Absent::Zero},
    {"$VARLO_SERVER", "server", kAll, Absent::Removed},
    {"$IMAGE", "image", kAll, Absent::Tag, "img/"},
    {"$LINK", "imageLink", kAll, Absent::Tag, "img/"},
    {"$F1", "field 0", kAll, Absent::Tag},
    {"$F2", "field 1", kAll, Absent::Tag},
    {"$F3", "field 2", kAll, Absent::Tag},
    {"$F4", "field 3", kAll, Absent::Tag},
    {"$F5", "field 4", kAll, Absent::Tag},
    {"$F6", "field 5", kAll, Absent::Tag},
    {"$FIELD1", "field 0", kAll, Absent::Tag},
    {"$FIELD2", "field 1", kAll, Absent::Tag},
    {"$FIELD3", "field 2", kAll, Absent::Tag},
    {"$FIELD4", "field 3", kAll, Absent::Tag},
    {"$FIELD5", "field 4", kAll, Absent::Tag},
    {"$FIELD6", "field 5", kAll, Absent::Tag},
    {"$LABEL1", "label 0", kAll, Absent::Tag},
    {"$LABEL2", "label 1", kAll, Absent::Tag},
    {"$LABEL3", "label 2", kAll, Absent::Tag},
    {"$LABEL4", "label 3", kAll, Absent::Tag},
    {"$LABEL5", "label 4", kAll, Absent::Tag},
    {"$LABEL6", "label 5", kAll, Absent::Tag},
    {"$TITLE", "pageTitle", 4, Absent::Removed},
    {"$VERSION", nullptr, kAll, Absent::Never, "1.07"},
    {"$_VERSION", nullptr, kAll, Absent::Never, "1.07"},
    {"$_PRODUCT", nullptr, kAll, Absent::Never, "Varlo PRO"},
    {"$FRAMECOLOR", "slot 19", kAll, Absent::Removed},
    {"$FRAME", nullptr, kAll, Absent::Never, kFrameScript.data()},
};

class ItemStepRows : public testing::Test {
 protected:
  ItemStepRows() {
    t.config().lowerCaseLinks = 0;
    t.ball->productCode.release();
    t.ball->title.release();
    t.ball->kind = NodeKind::List;  // of no kind that logs
    t.project().currency.release();
    t.project().storeTitle.release();
    t.config().accountId.release();
    UserVariableAppend(t.project(), UserVariableInit(nullptr));
    t.project().variables->name.assign("$MINE");
  }

  // The text that a step's value is made of.
  Text& text(std::string_view source) {
    const std::size_t number = source.find(' ') == std::string_view::npos
                                   ? 0
                                   : std::strtoul(source.data() + source.find(' ') + 1, nullptr, 10);
    if (source == "home fileName") return t.home->fileName;
    if (source == "home title") return t.home->title;
    if (source == "variable") return t.project().variables->value;
    if (source == "account") return t.config().accountId;
    if (source == "server") return t.config().orderServer;
    if (source == "storeTitle") return t.project().storeTitle;
    if (source == "currency") return t.project().currency;
    if (source.starts_with("slot ")) return t.scheme().slot[number];
    if (source.starts_with("field ")) return t.ball->field[number];
    if (source.starts_with("label ")) return t.ball->label[number];
    if (source == "title") return t.ball->title;
    if (source == "pageTitle") return t.ball->pageTitle;
    if (source == "metaDescription") return t.ball->metaDescription;
    if (source == "metaKeywords") return t.ball->metaKeywords;
    if (source == "body") return t.ball->body;
    if (source == "fileName") return t.ball->fileName;
    if (source == "productCode") return t.ball->productCode;
    if (source == "cost") return t.ball->cost;
    if (source == "freight") return t.ball->freight;
    if (source == "weight") return t.ball->weight;
    if (source == "tax") return t.ball->tax;
    if (source == "image") return t.ball->image;
    EXPECT_EQ(source, "imageLink");
    return t.ball->imageLink;
  }
  void set(const Row& row, const char* value) {
    if (row.source != nullptr) text(row.source).assign(value);
  }
  void clear(const Row& row) {
    const std::string_view source = row.source == nullptr ? "" : row.source;
    set(row, source == "fileName" ? "2.htm" : source == "server" ? "server" : nullptr);
  }
  static std::string shown(const Row& row, std::string_view value) {
    return std::string(row.before).append(row.source == nullptr ? "" : value).append(row.behind);
  }
  // The text filled with the values of the product, both ways.
  std::string fill(std::string_view text) { return BothWays(t).item(text, *t.ball, *t.home).text; }
  Filled page(std::string_view text) { return BothWays(t).page(text, *t.ball); }

  TestShop t;
};

TEST_F(ItemStepRows, ThereAre67InThisOrder) {
  const auto steps = ItemSteps();
  ASSERT_EQ(std::size(kRows), 67U);
  EXPECT_EQ(steps[0].repeat, Repeat::Variables);
  EXPECT_EQ(steps[13].repeat, Repeat::Check);
  for (std::size_t i = 1; i < steps.size(); ++i) EXPECT_EQ(steps[i].key, kRows[i].key) << i;
}

TEST_F(ItemStepRows, EachKeyBecomesItsValue) {
  for (const Row& row : kRows) {
    if (*row.key == '\0') continue;
    set(row, "value");
    const Filled filled = BothWays(t).item(std::string("<p>") + row.key + "</p>", *t.ball, *t.home);
    EXPECT_EQ(filled.text, "<p>" + shown(row, "value") + "</p>") << row.key;
    EXPECT_TRUE(filled.quick) << row.key;
    EXPECT_EQ(filled.errors, 0) << row.key;
    clear(row);
  }
}

TEST_F(ItemStepRows, EachKeyIsReplacedAsOftenAsItsRowSays) {
  for (const Row& row : kRows) {
    if (*row.key == '\0') continue;
    set(row, "v");
    const int count = row.times == kAll ? 150 : row.times + 1;
    std::string text;
    std::string expected;
    for (int i = 0; i < count; ++i) {
      text += std::string("[") + row.key + "]";
      expected += "[" + (i < row.times ? shown(row, "v") : std::string(row.key)) + "]";
    }
    EXPECT_EQ(fill(text), expected) << row.key;
    clear(row);
  }
}

// The early steps of a page come on top.
TEST_F(ItemStepRows, OnAPageTheKeysReplacedEarlyHaveTwiceAsManyOccurrences) {
  for (const Row& row : kRows) {
    if (*row.key == '\0') continue;
    static const std::set<std::string_view> kEarly{"$STORETITLE",  "$PAGETITLE", "$BODY",
                                                   "$DESCRIPTION", "$KEYWORDS",  "$UPDATED"};
    set(row, "v");
    const int times = kEarly.contains(row.key) ? 2 * row.times : row.times;
    const int count = row.times == kAll ? 150 : times + 1;
    std::string text;
    std::string expected;
    for (int i = 0; i < count; ++i) {
      text += std::string("[") + row.key + "]";
      expected += "[" + (i < times ? shown(row, "v") : std::string(row.key)) + "]";
    }
    const Filled filled = page(text);
    EXPECT_EQ(filled.text, expected) << row.key;
    EXPECT_TRUE(filled.quick) << row.key;
    clear(row);
  }
}

TEST_F(ItemStepRows, AnAbsentValueRemovesTheKeyOrLeavesIt) {
  for (const Row& row : kRows) {
    if (row.source == nullptr) continue;
    set(row, nullptr);
    const std::string key = row.key;
    const std::string text = "<p>" + key + "</p><i x=" + key + ">z";
    std::string expected = text;
    if (row.absent == Absent::Removed) expected = "<p></p><i x=>z";
    if (row.absent == Absent::Tag) expected = "<p></p>z";
    // A colour that stays is met again by the step of the shorter name, which has no end of a word either.
    if (key == "$LINK_COLOR") expected = "<p>_COLOR</p>z";
    if (row.absent == Absent::Zero) expected = "<p>0</p><i x=0>z";
    if (row.absent == Absent::Never) expected = "<p>" + shown(row, "") + "</p><i x=" + shown(row, "") + ">z";
    EXPECT_EQ(fill(text), expected) << row.key;
    EXPECT_EQ(page(text).text, expected) << row.key;
    clear(row);
  }
}

TEST_F(ItemStepRows, AValueThatIsThereButEmptyRemovesTheKey) {
  for (const Row& row : kRows) {
    if (row.source == nullptr) continue;
    const std::string key = row.key;
    set(row, "");
    std::string expected = "<p></p><i x=>z";
    if (row.absent == Absent::Tag) expected = "<p></p>z";
    if (row.absent == Absent::Zero) expected = "<p>0</p><i x=0>z";  // to a price, empty and absent are one
    if (row.absent == Absent::Never || *row.before == '<') {
      expected = "<p>" + shown(row, "") + "</p><i x=" + shown(row, "") + ">z";
    }
    const std::string text = "<p>" + key + "</p><i x=" + key + ">z";
    EXPECT_EQ(fill(text), expected) << row.key;
    EXPECT_EQ(page(text).text, expected) << row.key;
    clear(row);
  }
}

// Whether the value of the later step would bring the value of the earlier one along by itself.
bool areEntangled(const Row& earlier, const Row& later) {
  const std::string_view source = earlier.source == nullptr ? "" : earlier.source;
  const bool isLink = std::string_view(later.key) == "$BUY" || std::string_view(later.key) == "$ADD";
  if (isLink && (source == "fileName" || source == "productCode")) return true;
  return later.source != nullptr && source == later.source;
}

TEST_F(ItemStepRows, AKeyInAValueIsReplacedByEveryLaterStep) {
  int pairs = 0;
  for (const Row* earlier = std::begin(kRows); earlier != std::end(kRows); ++earlier) {
    if (earlier->source == nullptr) continue;
    for (const Row* later = earlier + 1; later != std::end(kRows); ++later) {
      if (*later->key == '\0' || areEntangled(*earlier, *later)) continue;
      set(*later, "v");
      set(*earlier, (std::string("(") + later->key + ")").c_str());
      const std::string made = "(" + std::string(later->before) + (later->source == nullptr ? "" : "v");
      const std::string text = fill(std::string("<p>") + earlier->key + "</p>");
      EXPECT_NE(text.find(made), std::string::npos) << earlier->key << " " << later->key << ": " << text;
      clear(*earlier);
      clear(*later);
      ++pairs;
    }
  }
  EXPECT_GT(pairs, 1500);
}

TEST_F(ItemStepRows, AKeyInAValueIsLeftByEveryEarlierStep) {
  int pairs = 0;
  for (const Row* earlier = std::begin(kRows); earlier != std::end(kRows); ++earlier) {
    if (*earlier->key == '\0') continue;
    for (const Row* later = earlier + 1; later != std::end(kRows); ++later) {
      if (later->source == nullptr || areEntangled(*earlier, *later)) continue;
      if (std::string_view(earlier->key) == "$LINK_COLOR") continue;  // the step of $LINK takes its front
      const std::string inner = std::string("(") + earlier->key + ")";
      set(*earlier, "v");
      set(*later, inner.c_str());
      const std::string text = fill(std::string("<p>") + later->key + "</p>");
      EXPECT_NE(text.find(inner), std::string::npos) << earlier->key << " " << later->key << ": " << text;
      clear(*earlier);
      clear(*later);
      ++pairs;
    }
  }
  EXPECT_GT(pairs, 1500);
}

}  // namespace
}  // namespace varlo
