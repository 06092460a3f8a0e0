#include "layout/colour_picking.h"

#include <gmock/gmock.h>

#include "layout/swatch.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

// A field and its swatch in a window of their own, for slot 4 of a scheme that is the owner's.
class ColourPickingTest : public testing::Test, protected DialogLogic {
 protected:
  static constexpr ColourSlot kSlot{.field = 11, .swatch = 12, .number = 4};

  TestProgram t;
  Scheme scheme;
  Scheme copy;
  SwatchCache swatches;
  bool ownerAgrees = true;
  std::function<void()> onCopyQuestion = [] {};
  int copyQuestions = 0;
  int fieldChanges = 0;
  std::string slotAtFieldChange;
  ColourPicking picking{t.program, swatches, [this] { return makeCopy(); }};
  FakeWindow window{*this};

  void SetUp() override {
    scheme.type = kSchemeOwn;
    scheme.slot[kSlot.number] = "RED";
    show(scheme);
  }
  [[nodiscard]] const DialogShape& shape() const override {
    static constexpr Row kRows[] = {
        {{{.id = kSlot.field, .kind = Kind::Edit, .buttons = {{kSlot.swatch, "", 28, Kind::Swatch}}}}}};
    static constexpr DialogShape kShape{.rows = kRows};
    return kShape;
  }
  void opened(Dialog&) override {}
  void notified(Dialog& dialog, const ControlEvent& event) override {
    if (event.control == kSlot.swatch && event.notice == Notice::GotFocus) picking.pick(dialog, kSlot);
    if (event.control != kSlot.field || event.notice != Notice::Changed) return;
    ++fieldChanges;
    slotAtFieldChange = slotText();
  }

  void show(Scheme& shown) {
    t.config().currentScheme = &shown;
    window.setText(kSlot.field, shown.slot[kSlot.number].view());
    fieldChanges = 0;
  }
  Scheme* makeCopy() {
    ++copyQuestions;
    onCopyQuestion();
    if (!ownerAgrees) return nullptr;
    SchemeCopy(&copy, &scheme);
    copy.type = kSchemeOwn;
    t.config().currentScheme = &copy;
    return &copy;
  }
  // The owner enters the swatch and chooses a colour.
  void choose(RgbValue rgb) {
    t.screen.colours.push_back(rgb);
    window.enter(kSlot.swatch);
  }
  // The owner enters the swatch and cancels the chooser.
  void cancel() { window.enter(kSlot.swatch); }
  void typeIntoField(std::string_view text) {
    window.type(kSlot.field, text);
    scheme.slot[kSlot.number].assign(text);
    fieldChanges = 0;
  }
  std::string slotText() const { return t.program.config.currentScheme->slot[kSlot.number].orEmpty(); }
  void expectNothingChanged() {
    EXPECT_EQ(slotText(), "RED");
    EXPECT_EQ(window.text(kSlot.field), "RED");
    EXPECT_EQ(fieldChanges, 0);
    EXPECT_EQ(window.repaints(kSlot.swatch), 0);
  }
  void expectCaretAtEndOfField() {
    EXPECT_EQ(window.focused(), kSlot.field);
    EXPECT_TRUE(window.caretAtEnd(kSlot.field));
  }
};

TEST_F(ColourPickingTest, APickedColourGoesIntoTheSlotAndTheField) {
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(slotText(), "#FF8000");
  EXPECT_EQ(window.text(kSlot.field), "#FF8000");
  EXPECT_EQ(window.repaints(kSlot.swatch), 1);
  expectCaretAtEndOfField();
}

TEST_F(ColourPickingTest, TheFieldTellsItsChangeWhenTheSlotIsStoredAlready) {
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(fieldChanges, 1);
  EXPECT_EQ(slotAtFieldChange, "#FF8000");
}

TEST_F(ColourPickingTest, TheSwatchGetsTheNewColour) {
  ASSERT_EQ(swatches.colour(scheme, kSlot.number), RgbOf(255, 0, 0));
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(swatches.colour(scheme, kSlot.number), RgbOf(255, 128, 0));
}

TEST_F(ColourPickingTest, OnlyTheSlotOfTheSwatchChanges) {
  choose(RgbOf(255, 128, 0));
  for (std::size_t slot = 0; slot < kSchemeSlots; ++slot) {
    EXPECT_EQ(scheme.slot[slot].isNull(), slot != kSlot.number) << slot;
  }
}

TEST_F(ColourPickingTest, ANullSlotTakesAColour) {
  scheme.slot[kSlot.number].release();
  show(scheme);
  choose(RgbOf(0, 0, 0));
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(0U));
  EXPECT_EQ(slotText(), "#000000");
}

TEST_F(ColourPickingTest, CancelChangesNothing) {
  cancel();
  EXPECT_EQ(t.screen.colourStarts.size(), 1U);
  expectNothingChanged();
}

TEST_F(ColourPickingTest, CancelMovesOnToTheField) {
  cancel();
  expectCaretAtEndOfField();
}

TEST_F(ColourPickingTest, ANameStartsFromItsColour) {
  typeIntoField("tomato");
  cancel();
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(RgbOf(0xFF, 0x63, 0x47)));
}

TEST_F(ColourPickingTest, DigitsStartFromTheirColour) {
  typeIntoField("  #FF8000");
  cancel();
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(RgbOf(255, 128, 0)));
}

TEST_F(ColourPickingTest, AnUnknownNameStartsFromBlackAndStays) {
  typeIntoField("GRAY");
  cancel();
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(0U));
  EXPECT_EQ(slotText(), "GRAY");
}

TEST_F(ColourPickingTest, TheFirst500BytesOfTheFieldCount) {
  typeIntoField(std::string(493, ' ') + "#FF8010");
  cancel();
  typeIntoField(std::string(494, ' ') + "#FF8010");
  cancel();
  typeIntoField(std::string(499, ' ') + "#FF8010");
  cancel();
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(RgbOf(255, 128, 0x10), RgbOf(255, 128, 0x10), 0U));
}

TEST_F(ColourPickingTest, TheFieldGivesTheStartAndTheSlotTheComparison) {
  window.type(kSlot.field, "#FF8000");
  choose(RgbOf(255, 128, 0));
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(RgbOf(255, 128, 0)));
  EXPECT_EQ(slotText(), "#FF8000");
}

TEST_F(ColourPickingTest, ANameBecomesDigitsAlsoForTheSameColour) {
  choose(RgbOf(255, 0, 0));
  EXPECT_EQ(slotText(), "#FF0000");
  EXPECT_EQ(window.text(kSlot.field), "#FF0000");
}

TEST_F(ColourPickingTest, AColourThatIsEqualButForCaseOnlyMovesTheFocus) {
  typeIntoField("#ff80ab");
  choose(RgbOf(255, 0x80, 0xAB));
  EXPECT_EQ(slotText(), "#ff80ab");
  EXPECT_EQ(window.text(kSlot.field), "#ff80ab");
  EXPECT_EQ(fieldChanges, 0);
  EXPECT_EQ(window.repaints(kSlot.swatch), 0);
  expectCaretAtEndOfField();
}

TEST_F(ColourPickingTest, AnOwnSchemeIsNotCopied) {
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(copyQuestions, 0);
}

TEST_F(ColourPickingTest, ARefusedCopyOfAShippedSchemeChangesNothing) {
  scheme.type = kSchemeShipped;
  ownerAgrees = false;
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(copyQuestions, 1);
  expectNothingChanged();
  EXPECT_EQ(window.focused(), kSlot.field);
  EXPECT_FALSE(window.caretAtEnd(kSlot.field));
}

TEST_F(ColourPickingTest, AShippedSchemeIsCopiedAndTheCopyTakesTheColour) {
  scheme.type = kSchemeShipped;
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(copyQuestions, 1);
  EXPECT_EQ(scheme.slot[kSlot.number].view(), "RED");
  EXPECT_EQ(copy.slot[kSlot.number].view(), "#FF8000");
  EXPECT_EQ(window.text(kSlot.field), "#FF8000");
  EXPECT_EQ(window.repaints(kSlot.swatch), 1);
  expectCaretAtEndOfField();
}

TEST_F(ColourPickingTest, AShippedSchemeIsNotCopiedForTheSameColourOrACancel) {
  scheme.type = kSchemeShipped;
  typeIntoField("#ff8000");
  choose(RgbOf(255, 128, 0));
  cancel();
  EXPECT_EQ(t.screen.colourStarts.size(), 2U);
  EXPECT_EQ(copyQuestions, 0);
}

TEST_F(ColourPickingTest, TheChooserShowsTheCustomColoursOfTheScheme) {
  scheme.customColours[5] = 77;
  CustomColours shown{};
  t.screen.onColours = [&](CustomColours& custom) { shown = custom; };
  cancel();
  EXPECT_EQ(shown, scheme.customColours);
}

TEST_F(ColourPickingTest, CustomColoursStayWithTheScheme) {
  t.screen.onColours = [](CustomColours& custom) { custom[63] = 200; };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(scheme.customColours[63], 200);
}

TEST_F(ColourPickingTest, CustomColoursStayAlsoAfterACancel) {
  t.screen.onColours = [](CustomColours& custom) { custom[63] = 200; };
  cancel();
  EXPECT_EQ(scheme.customColours[63], 200);
}

TEST_F(ColourPickingTest, CustomColoursStayWithTheShippedSchemeWhoseCopyTakesTheColour) {
  scheme.type = kSchemeShipped;
  t.screen.onColours = [](CustomColours& custom) { custom[63] = 200; };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(scheme.customColours[63], 200);
  EXPECT_EQ(copy.customColours[63], 0);
}

TEST_F(ColourPickingTest, NoSecondChooserOpensBesideAnOpenOne) {
  t.screen.onColours = [&](CustomColours&) {
    window.enter(kSlot.field);
    window.enter(kSlot.swatch);
  };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(t.screen.colourStarts.size(), 1U);
  EXPECT_EQ(slotText(), "#FF8000");
  expectCaretAtEndOfField();
}

TEST_F(ColourPickingTest, NoSecondChooserOpensBesideTheQuestionAboutTheCopy) {
  scheme.type = kSchemeShipped;
  onCopyQuestion = [&] {
    window.enter(kSlot.field);
    window.enter(kSlot.swatch);
  };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(t.screen.colourStarts.size(), 1U);
}

TEST_F(ColourPickingTest, TheChooserOpensAgainOnTheNextVisit) {
  cancel();
  choose(RgbOf(1, 2, 3));
  choose(RgbOf(4, 5, 6));
  EXPECT_THAT(t.screen.colourStarts, ElementsAre(RgbOf(255, 0, 0), RgbOf(255, 0, 0), RgbOf(1, 2, 3)));
  EXPECT_EQ(slotText(), "#040506");
}

TEST_F(ColourPickingTest, AColourForASchemeThatIsNoLongerShownIsDropped) {
  t.screen.onColours = [&](CustomColours& custom) {
    custom[0] = 9;
    show(copy);
  };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(scheme.slot[kSlot.number].view(), "RED");
  EXPECT_TRUE(copy.slot[kSlot.number].isNull());
  EXPECT_EQ(copy.customColours[0], 0);
}

TEST_F(ColourPickingTest, ASchemeMayBeReleasedBesideTheOpenChooser) {
  Scheme* released = SchemeInit(nullptr);
  show(*released);
  t.screen.onColours = [&](CustomColours& custom) {
    SchemeListFree(t.program, released);
    custom[0] = 9;
  };
  choose(RgbOf(255, 128, 0));
  EXPECT_EQ(t.config().currentScheme, nullptr);
  EXPECT_EQ(window.text(kSlot.field), "");
}

TEST_F(ColourPickingTest, WithoutASchemeNoChooserOpens) {
  t.config().currentScheme = nullptr;
  choose(RgbOf(255, 128, 0));
  EXPECT_THAT(t.screen.colourStarts, IsEmpty());
  EXPECT_EQ(window.text(kSlot.field), "RED");
}

}  // namespace
}  // namespace varlo
