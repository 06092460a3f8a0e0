#include "core/forms/lay_out.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

constexpr Row kTwoFields[] = {
    {{{.id = 1, .kind = Kind::Edit, .label = "One:", .labelWidth = 50},
      {.id = 2, .kind = Kind::Edit, .label = "Two:", .labelWidth = 50}}},
};
// With numbers that no button at the foot has.
constexpr Row kOtherField[] = {{{{.id = 11, .kind = Kind::Edit}}}};
constexpr Row kFilled[] = {
    {{{.id = 1, .kind = Kind::Edit}}},
    {{{.id = 2, .kind = Kind::Lines, .label = "Long:", .labelWidth = kLabelAbove, .lines = kFill}}},
    {{{.id = 3, .kind = Kind::Edit, .buttons = {{4, "<<"}, {5, ">>"}}}}},
};
constexpr FootButton kFoot[] = {{kOk, "OK", Option::Default}, {kCancel, "Cancel"}};

const PlacedControl& of(const std::vector<PlacedControl>& controls, ControlId id) {
  for (const PlacedControl& control : controls) {
    if (control.id == id) return control;
  }
  throw std::logic_error("no control " + std::to_string(id));
}

TEST(LayOut, ALabelIsMadeDirectlyBeforeItsField) {
  const auto controls = LayOut({.rows = kTwoFields}, {400, 100}, 100);
  ASSERT_EQ(controls.size(), 4U);
  EXPECT_EQ(controls[0].part, Part::Label);
  EXPECT_EQ(controls[0].text, "One:");
  EXPECT_EQ(controls[1].id, 1);
  EXPECT_EQ(controls[3].id, 2);
}

TEST(LayOut, TheCellsOfARowShareItsWidth) {
  const auto controls = LayOut({.rows = kTwoFields}, {416, 100}, 100);
  EXPECT_EQ(of(controls, 1).place.width, of(controls, 2).place.width);
  EXPECT_EQ(of(controls, 2).place.left + of(controls, 2).place.width, 408);
  EXPECT_EQ(of(controls, 1).place.top, of(controls, 2).place.top);
}

TEST(LayOut, CellsThatWouldGetTooNarrowStandBelowEachOther) {
  const auto controls = LayOut({.rows = kTwoFields}, {200, 100}, 100);
  EXPECT_GT(of(controls, 2).place.top, of(controls, 1).place.top);
  EXPECT_EQ(of(controls, 1).place.left, of(controls, 2).place.left);
}

TEST(LayOut, WhatFillsTakesTheHeightThatTheOthersLeave) {
  const auto low = LayOut({.rows = kFilled}, {300, 300}, 100);
  const auto high = LayOut({.rows = kFilled}, {300, 500}, 100);
  EXPECT_EQ(of(high, 2).place.height - of(low, 2).place.height, 200);
  EXPECT_EQ(of(high, 1).place, of(low, 1).place);
  EXPECT_EQ(of(high, 3).place.top - of(low, 3).place.top, 200);
  EXPECT_EQ(of(high, 3).place.top + of(high, 3).place.height, 492);
}

TEST(LayOut, InAWindowThatIsTooLowTheLastControlsLieOutsideAtTheirFullSize) {
  const DialogShape shape{.rows = kFilled};
  const auto controls = LayOut(shape, {300, 40}, 100);
  EXPECT_GE(of(controls, 2).place.height, 60);
  EXPECT_GT(of(controls, 3).place.top, 40);
  EXPECT_EQ(of(controls, 3).place.top + of(controls, 3).place.height + 8, LaidOutHeight(shape, 300, 100));
}

TEST(LayOut, SmallButtonsEndTheRowOfTheirField) {
  const auto controls = LayOut({.rows = kFilled}, {300, 300}, 100);
  EXPECT_EQ(of(controls, 5).place.left + of(controls, 5).place.width, 292);
  EXPECT_LT(of(controls, 3).place.left + of(controls, 3).place.width, of(controls, 4).place.left);
  EXPECT_EQ(of(controls, 4).place.top, of(controls, 3).place.top);
}

TEST(LayOut, ButtonsAtTheFootStandAtTheRightEndInTheirOrder) {
  const DialogShape shape{.rows = kOtherField, .foot = kFoot};
  const int height = LaidOutHeight(shape, 400, 100);
  const auto controls = LayOut(shape, {400, height}, 100);
  EXPECT_EQ(of(controls, kCancel).place.left + of(controls, kCancel).place.width, 392);
  EXPECT_LT(of(controls, kOk).place.left, of(controls, kCancel).place.left);
  EXPECT_EQ(of(controls, kOk).place.top + of(controls, kOk).place.height, height - 8);
}

TEST(LayOut, SizesFollowTheScale) {
  const auto single = LayOut({.rows = kFilled}, {300, 300}, 100);
  const auto twice = LayOut({.rows = kFilled}, {600, 600}, 200);
  for (const ControlId id : {1, 2, 3, 4, 5}) {
    const Rectangle& one = of(single, id).place;
    EXPECT_EQ(of(twice, id).place, (Rectangle{one.left * 2, one.top * 2, one.width * 2, one.height * 2})) << id;
  }
}

TEST(LayOut, AFrameSurroundsItsRows) {
  constexpr static Row kFramed[] = {{{{.id = 9, .kind = Kind::Group, .label = "Frame", .rows = kTwoFields}}}};
  const auto controls = LayOut({.rows = kFramed}, {500, 200}, 100);
  const Rectangle& frame = of(controls, 9).place;
  const Rectangle& field = of(controls, 1).place;
  EXPECT_GT(field.left, frame.left);
  EXPECT_GT(field.top, frame.top);
  EXPECT_LT(field.top + field.height, frame.top + frame.height);
}

TEST(LayOut, NothingHasANegativeSize) {
  for (const Size size : {Size{0, 0}, Size{50, 50}, Size{-5, -5}}) {
    for (const PlacedControl& control : LayOut({.rows = kFilled, .foot = kFoot}, size, 150)) {
      EXPECT_GE(control.place.width, 0) << control.id;
      EXPECT_GE(control.place.height, 0) << control.id;
    }
  }
}

}  // namespace
}  // namespace varlo
