#include "commerce/wizard/layout_page.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/wizard/wizard_shapes.h"
#include "core/store/record.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using namespace wizard;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

// A window with nothing but the page.
class LayoutWindow : public DialogLogic {
 public:
  explicit LayoutWindow(Program& program) : page(program) {}
  [[nodiscard]] const DialogShape& shape() const override {
    return WizardShapes()[static_cast<std::size_t>(WizardPage::Layout)];
  }
  void opened(Dialog& dialog) override { LayoutPageOpen(page, dialog); }
  void notified(Dialog& dialog, const ControlEvent& event) override { LayoutPageControl(page, dialog, event); }
  std::string cellText(ControlId list, int row, int /*column*/) override { return LayoutPageText(page, list, row); }
  int rowMark(ControlId list, int row) override { return LayoutPageMark(page, list, row); }

  LayoutPage page;
};

class LayoutPageTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();
  SchemeStyle* meadow = add(nullptr, "Meadow");
  Scheme* sage = add(meadow, "Sage");
  Scheme* rose = add(meadow, "Rose");
  SchemeStyle* market = add(nullptr, "Market");
  Scheme* ocean = add(market, "Ocean");
  LayoutWindow logic{t.program};
  FakeWindow window{logic};

  // A style, or a scheme of one, with a picture of its own name.
  SchemeRecord* add(SchemeStyle* style, const std::string& name) {
    SchemeRecord* record = SchemeInit(nullptr);
    record->name.assign(std::string_view(name));
    record->preview.assign(std::string_view(name + ".bmp"));
    SchemeRecord*& head = style == nullptr ? config.schemeStyles : style->schemes;
    if (head == nullptr) {
      head = record;
      record->prev = style;
    } else {
      SchemeRecord* last = RecordLast(head);
      last->next = record;
      record->prev = last;
    }
    return record;
  }
  std::vector<std::string> rows(ControlId list) {
    std::vector<std::string> rows;
    for (int row = 0; row < window.rowCount(list); ++row) rows.push_back(window.cell(list, row, 0));
    return rows;
  }
};

TEST_F(LayoutPageTest, ShowsAllStylesAndTheSchemesOfTheFirst) {
  window.open();
  EXPECT_THAT(rows(kStyles), ElementsAre("Meadow", "Market"));
  EXPECT_THAT(rows(kSchemes), ElementsAre("Sage", "Rose"));
  EXPECT_THAT(window.selectedRows(kStyles), IsEmpty());
  EXPECT_THAT(window.selectedRows(kSchemes), IsEmpty());
  EXPECT_EQ(window.picture(kPicture), "s0.bmp") << "there is no current scheme";
  EXPECT_EQ(config.currentStyle, nullptr) << "opening chooses nothing";
}

TEST_F(LayoutPageTest, MarksTheChoiceOfAnEarlierRun) {
  config.currentStyle = meadow;
  config.currentScheme = rose;
  window.open();
  EXPECT_THAT(window.selectedRows(kStyles), ElementsAre(0));
  EXPECT_THAT(window.selectedRows(kSchemes), ElementsAre(1));
  EXPECT_EQ(window.picture(kPicture), "Rose.bmp");
  EXPECT_EQ(config.currentScheme, rose);
}

TEST_F(LayoutPageTest, AStyleWhoseSchemesAreNotOnShowIsNotMarked) {
  config.currentStyle = market;
  config.currentScheme = ocean;
  window.open();
  EXPECT_THAT(rows(kSchemes), ElementsAre("Sage", "Rose"));
  EXPECT_THAT(window.selectedRows(kStyles), IsEmpty());
  EXPECT_THAT(window.selectedRows(kSchemes), IsEmpty());
  EXPECT_EQ(window.picture(kPicture), "Ocean.bmp");
  window.pickRow(kStyles, 0);
  EXPECT_EQ(config.currentScheme, sage);
}

TEST_F(LayoutPageTest, AStyleBringsItsSchemesAndItsFirstScheme) {
  window.open();
  t.view.calls.clear();
  window.pickRow(kStyles, 1);
  EXPECT_EQ(config.currentStyle, market);
  EXPECT_EQ(config.currentScheme, ocean);
  EXPECT_THAT(rows(kSchemes), ElementsAre("Ocean"));
  EXPECT_THAT(window.selectedRows(kSchemes), IsEmpty());
  EXPECT_EQ(window.picture(kPicture), "Ocean.bmp");
  EXPECT_THAT(t.view.calls, ElementsAre("loadForm")) << "a layout editor follows";
}

TEST_F(LayoutPageTest, AStyleWithoutSchemesGetsOneAtOnce) {
  add(nullptr, "Bare");
  window.open();
  window.pickRow(kStyles, 2);
  EXPECT_THAT(rows(kSchemes), ElementsAre("Default"));
  EXPECT_EQ(window.picture(kPicture), "s0.bmp");
}

TEST_F(LayoutPageTest, ASchemeBecomesCurrentWithItsPicture) {
  window.open();
  window.pickRow(kSchemes, 1);
  EXPECT_EQ(config.currentScheme, rose);
  EXPECT_EQ(window.picture(kPicture), "Rose.bmp");
  window.pickRow(kSchemes, kNoRow);
  EXPECT_EQ(config.currentScheme, rose);
}

TEST_F(LayoutPageTest, RowsAreMarkedByTheirMakerAndTheStoresSchemeByATick) {
  rose->type = kSchemeOwn;
  t.project().projectScheme = sage;
  window.open();
  EXPECT_EQ(window.mark(kStyles, 0), 22);
  EXPECT_EQ(window.mark(kSchemes, 0), 27);
  EXPECT_EQ(window.mark(kSchemes, 1), 26);
  EXPECT_EQ(window.mark(kSchemes, 2), 0);
}

TEST_F(LayoutPageTest, ThePreviewNeedsAPageToShow) {
  window.open();
  EXPECT_FALSE(window.isEnabled(kPreview));
  Select(t.project(), AddCategory(t.project(), "Home"));
  FakeWindow other(logic);
  other.open();
  other.press(kPreview);
  EXPECT_THAT(t.view.calls, Contains("previewScheme"));
}

TEST_F(LayoutPageTest, WithoutAnyStyleBothListsAreEmpty) {
  SchemeListFree(t.program, config.schemeStyles);
  window.open();
  EXPECT_EQ(window.rowCount(kStyles), 0);
  EXPECT_EQ(window.rowCount(kSchemes), 0);
}

}  // namespace
}  // namespace varlo
