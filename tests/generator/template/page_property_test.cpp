// Random pages, made by the generator and by the plain steps: the same bytes, messages and counts, and the
// same composed text left behind.

#include <array>
#include <random>

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "generator/pages/page_walk.h"
#include "generator/template/quick_page.h"
#include "tests/generator/template/plain_steps.h"
#include "tests/support/rounds.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

constexpr std::array kWords{"$STORETITLE",    "$PAGETITLE",     "$BODY",        "$DESCRIPTION", "$KEYWORDS",
                            "$UPDATED",       "$SHELF",         "$USER",        "$META_TITLE",  "$META_DESCRIPTION",
                            "$META_KEYWORDS", "$HOMELINK",      "$HOMETITLE",   "$HEADING",     "$FILENAME",
                            "$BUTTON_ADD",    "$BUTTON_REMOVE", "$BUTTON_BACK", "$BGCOLOR",     "$BG_COLOR",
                            "$TEXT_COLOR",    "$LINK_COLOR",    "$VLINK_COLOR", "$ALINK_COLOR", "$MENUCOLOR",
                            "$CURRENCY",      "$BULLET_A",      "$BULLET_O",    "$BULLET_F",    "$BULLET_G",
                            "$REMOVE",        "$BUY",           "$ADD",         "$COST",        "$CODE",
                            "$FREIGHT",       "$WEIGHT",        "$TAX",         "$PRICE",       "$VARLO_SERVER",
                            "$IMAGE",         "$LINK",          "$F1",          "$F2",          "$F6",
                            "$FIELD1",        "$FIELD2",        "$FIELD6",      "$LABEL1",      "$LABEL2",
                            "$LABEL6",        "$TITLE",         "$VERSION",     "$_VERSION",    "$_PRODUCT",
                            "$FRAMECOLOR",    "$FRAME",         "$INDEX",       "$BACK",        "indexa.htm",
                            "$PRODUCTS2",     "$PRODUCT2",      "$PRODUCTS",    "$PRODUCT",     "$SUBINDEX",
                            "$URL",           "$NOTE",          "$LONGNOTE",    "$INDEX",       "$TITLE",
                            "$CURRENCY",      "$PRICE",         "$BODY"};

constexpr std::array kMarkup{"<a href=\"", "\">",     "<img src=\"", "<td>",    "</a>",    "<",
                             ">",          "\"",      "'",           " ",       "\r\n",    "text",
                             "<b>",        "</b>",    "<p class=x ", "<!--",    "-->",     "<!--+",
                             "+-->",       "<SHELF>", "</SHELF>",    "<shelf>", "</Shelf>"};

constexpr std::array kPieces{"$",     "$F",    "$PRO", "DUCT",     "_COLOR", "COLOR", "S2",  "2",  "1",
                             "index", "a.htm", "in",   "dexa.htm", "!",      "--",    "<!-", "->", "<SH",
                             "ELF>",  "LF>",   "+--",  "$$",       "$B",     "ACK",   "%"};

// Makes the texts of one case after the other.
class Draw {
 public:
  explicit Draw(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }
  bool oneIn(std::size_t cases) { return below(cases) == 0; }
  template <std::size_t kSize>
  std::string of(const std::array<const char*, kSize>& words) {
    return words[below(kSize)];
  }

  // How much of the case is out of the ordinary, from 0 to 3.
  void setWildness(std::size_t wildness) { wildness_ = wildness; }

  std::string templateText() {
    std::string text = "x";
    for (std::size_t i = below(24); i > 0; --i) {
      const std::size_t kind = below(10);
      text += kind < 5 ? of(kWords) : kind < 9 ? of(kMarkup) : wildness_ > 1 ? of(kPieces) : "\n";
      if (kind < 5 && wildness_ == 0) text += ' ';
    }
    return text;
  }

  // Nothing, or what makes a text as long as those that owners type: longer than any text that a string
  // could keep without memory of its own.
  std::string length() { return std::string(oneIn(2) ? 0 : 20 + below(281), '.'); }

  // A value: a plain word, short or long, or nothing, or one full of what could disturb.
  void fill(Text& text, const char* front = "") {
    if (oneIn(6)) return text.release();
    if (oneIn(6)) return text.assign("");
    std::string value = std::string(front) + "v" + std::to_string(below(30)) + length();
    if (wildness_ > 0 && oneIn(8 / wildness_)) {
      for (std::size_t i = 1 + below(3); i > 0; --i) {
        const std::size_t kind = below(3);
        value += kind == 0 ? of(kWords) : kind == 1 ? of(kMarkup) : of(kPieces);
      }
    }
    text.assign(std::string_view(value));
  }

 private:
  std::mt19937 random_;
  std::size_t wildness_ = 0;
};

class RandomShop {
 public:
  RandomShop() {
    for (const NodeKind kind : {NodeKind::Category, NodeKind::Shelf, NodeKind::List, NodeKind::Product}) {
      StoreNode* node = AddNode(t.project(), kind, "n", t.home);
      for (int i = 0; i < 2 && kind != NodeKind::Product; ++i) AddProduct(t.project(), "p", node);
    }
    StoreNode* deep = AddCategory(t.project(), "deep", t.home->child->next);
    AddProduct(t.project(), "q", deep);
    AddCategory(t.project(), "top");
    TreeWalk walk(t.project().root);
    for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
      if (step == TreeWalk::Step::Node) nodes.push_back(walk.node());
    }
    for (const char* name : {"$NOTE", "$LONGNOTE", "$PRO", "$BODY", "$PRICE", "$CURRENCY"}) {
      UserVariable* variable = UserVariableInit(nullptr);
      variable->name.assign(name);
      UserVariableAppend(t.project(), variable);
    }
  }

  // New values for everything.
  void fill(Draw& draw) {
    for (std::size_t i = 0; i < nodes.size(); ++i) fillNode(draw, *nodes[i], i);
    for (Text& slot : t.project().projectScheme->slot) draw.fill(slot, "img\\");
    for (UserVariable* v = t.project().variables; v != nullptr; v = v->next) draw.fill(v->value);
    draw.fill(t.project().storeTitle);
    draw.fill(t.project().currency);
    draw.fill(t.config().accountId, "a-");
    draw.fill(t.config().orderServer);
    t.config().lowerCaseLinks = static_cast<std::int32_t>(draw.below(2));
    t.config().directoryLink = static_cast<std::int32_t>(draw.below(2));
  }

  StoreNode& pickPage(Draw& draw) {
    for (;;) {
      StoreNode& node = *nodes[draw.below(nodes.size())];
      if (node.parent == nullptr || !IsShelfOrList(*node.parent)) return node;
    }
  }

  TestShop t;
  std::vector<StoreNode*> nodes;

 private:
  static void fillNode(Draw& draw, StoreNode& node, std::size_t number) {
    constexpr std::array kTexts{&StoreNode::title,
                                &StoreNode::pageTitle,
                                &StoreNode::cost,
                                &StoreNode::body,
                                &StoreNode::freight,
                                &StoreNode::weight,
                                &StoreNode::metaDescription,
                                &StoreNode::productCode,
                                &StoreNode::tax,
                                &StoreNode::metaKeywords};
    for (const auto text : kTexts) draw.fill(node.*text);
    // Outside addresses, so that nothing is copied.
    draw.fill(node.image, "http:Pics\\");
    draw.fill(node.imageLink, "pages/");
    for (Text& text : node.field) draw.fill(text);
    for (Text& text : node.label) draw.fill(text);
    const std::string name =
        std::string(draw.oneIn(4) ? "a\\" : "") + std::to_string(number) + draw.length() + ".htm";
    if (draw.oneIn(8)) {
      node.fileName.release();
    } else {
      node.fileName.assign(std::string_view(name));
    }
    node.status = draw.oneIn(6) ? -2 : draw.oneIn(6) ? -1 : 0;
    node.templateName.assign("page.htm");
  }
};

const int kCases = Rounds(8000);

class PageProperty : public testing::Test {
 protected:
  RandomShop shop;
  TestShop& t = shop.t;
  int quick = 0;
  int tooLong = 0;

  void SetUp() override { t.files.putFolder("C:\\Web\\a"); }

  void check(Draw& draw) {
    const std::string source = draw.templateText();
    StoreNode& page = shop.pickPage(draw);
    t.files.put("C:\\Varlo\\Projects\\Shop\\template\\page.htm", source);
    PlainPage expected;
    try {
      expected = MakePlainPage(t.program, source, page, t.generator.scratch);
    } catch (const PlainStepsTooLong&) {
      ++tooLong;
      return;
    }
    t.window.lines.clear();
    t.generator.log.errorCount = 0;
    const std::string path = std::string("C:\\Web\\") + page.fileName.orEmpty();
    if (page.fileName.isNull()) return;
    ASSERT_EQ(BuildPage(t.generator, &page), 1);
    ASSERT_EQ(t.files.content(path), expected.text) << source;
    ASSERT_EQ(t.window.lines, expected.lines) << source;
    ASSERT_EQ(t.generator.log.errorCount, expected.errors) << source;
    ASSERT_EQ(t.generator.scratch, expected.scratch) << source;
    if (!IsShelfOrList(page)) countQuick(source, page);
  }

  void countQuick(const std::string& source, StoreNode& page) {
    Generator generator(t.program);
    ItemValues values(generator);
    QuickPage way(values);
    const FillPlan plan(t.project().variables);
    std::string text;
    if (way.fillPage(plan, PreparedText(plan, source), page, nullptr, text)) ++quick;
  }

  void run(std::size_t wildness, int cases, unsigned seed) {
    Draw draw(seed);
    draw.setWildness(wildness);
    for (int i = 0; i < cases && !HasFatalFailure(); ++i) {
      if (i % 5 == 0) shop.fill(draw);
      check(draw);
    }
    EXPECT_LT(tooLong, cases / 20);
  }
};

TEST_F(PageProperty, PagesWithOrdinaryValuesAreThoseOfThePlainSteps) {
  run(0, kCases, 1);
  EXPECT_GT(quick, kCases / 2) << "the quick way is the ordinary one";
}
TEST_F(PageProperty, PagesWithSomeVariablesInValuesAreThoseOfThePlainSteps) {
  run(1, kCases, 2);
  EXPECT_GT(quick, kCases / 10);
}
TEST_F(PageProperty, PagesWithManyVariablesInValuesAreThoseOfThePlainSteps) {
  run(2, kCases, 3);
  EXPECT_GT(quick, kCases / 50);
}
TEST_F(PageProperty, PagesWithEveryKindOfTroubleAreThoseOfThePlainSteps) { run(3, kCases, 4); }

}  // namespace
}  // namespace varlo
