// What must hold of every window, whatever is in it.

#include <cctype>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "core/forms/lay_out.h"
#include "shell/window/main_layout.h"
#include "tests/support/all_shapes.h"

namespace varlo::test {
namespace {

constexpr int kScales[] = {100, 125, 150, 175, 200};

// The sizes that a window can have, in pixels of an ordinary screen: that it opens with, and for a page those of a
// small and a large main window.
std::vector<Size> sizesOf(const DialogShape& shape) {
  if (shape.form != Form::Page) return {shape.size};
  return {{320, 360}, {431, 481}, {600, 600}, {1801, 1300}};
}

std::string said(const DialogShape& shape, const PlacedControl& control) {
  return std::string(shape.title) + " " + std::to_string(shape.id) + ": " + std::to_string(control.id) + " \"" +
         std::string(control.text) + "\"";
}

// Goes over all windows at all their sizes and scales.
template <typename Check>
void forAll(Check check) {
  for (const DialogShape* shape : kAllShapes) {
    for (const Size size : sizesOf(*shape)) {
      for (const int scale : kScales) {
        const int width = size.width * scale / 100;
        const int height = std::max(size.height * scale / 100, LaidOutHeight(*shape, width, scale));
        check(*shape, Size{width, height}, scale, LayOut(*shape, {width, height}, scale));
      }
    }
  }
}

bool isFrame(const PlacedControl& control) { return control.kind == Kind::Group; }
bool isField(Kind kind) {
  constexpr Kind kFields[] = {Kind::Edit,     Kind::Lines,   Kind::RichEdit, Kind::Combo,
                              Kind::DropList, Kind::ListBox, Kind::List};
  return std::find(std::begin(kFields), std::end(kFields), kind) != std::end(kFields);
}

// The letter behind a single "&"; 0 without one.
char mnemonicOf(std::string_view text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '&') continue;
    if (text[i + 1] != '&') return static_cast<char>(std::toupper(static_cast<unsigned char>(text[i + 1])));
    ++i;
  }
  return 0;
}

bool hasMnemonic(const PlacedControl& control) { return control.part == Part::Label || !isField(control.kind); }

TEST(Shapes, NothingOverlaps) {
  forAll([](const DialogShape& shape, Size, int scale, const std::vector<PlacedControl>& controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        const Rectangle& a = controls[i].place;
        const Rectangle& b = controls[j].place;
        if (isFrame(controls[i]) || isFrame(controls[j])) continue;
        const bool apart = a.left >= b.left + b.width || b.left >= a.left + a.width || a.top >= b.top + b.height ||
                           b.top >= a.top + a.height;
        EXPECT_TRUE(apart) << said(shape, controls[i]) << " and " << said(shape, controls[j]) << " at " << scale;
      }
    }
  });
}

TEST(Shapes, NothingLeavesItsWindow) {
  forAll([](const DialogShape& shape, Size size, int scale, const std::vector<PlacedControl>& controls) {
    for (const PlacedControl& control : controls) {
      const Rectangle& place = control.place;
      EXPECT_GE(place.left, 0) << said(shape, control) << " at " << scale;
      EXPECT_GE(place.top, 0) << said(shape, control) << " at " << scale;
      EXPECT_LE(place.left + place.width, size.width) << said(shape, control) << " at " << scale;
      EXPECT_LE(place.top + place.height, size.height) << said(shape, control) << " at " << scale;
    }
  });
}

TEST(Shapes, EachFieldHasRoomForSomeLetters) {
  forAll([](const DialogShape& shape, Size, int scale, const std::vector<PlacedControl>& controls) {
    for (const PlacedControl& control : controls) {
      if (control.part != Part::Field || !isField(control.kind)) continue;
      EXPECT_GE(control.place.width * 100, 40 * scale) << said(shape, control);
      EXPECT_GE(control.place.height * 100, 21 * scale) << said(shape, control);
    }
  });
}

TEST(Shapes, EachFieldHasALabelOrStandsFirstInAFrame) {
  for (const DialogShape* shape : kAllShapes) {
    const PlacedControl* before = nullptr;
    const std::vector<PlacedControl> controls = LayOut(*shape, {600, 600}, 100);
    for (const PlacedControl& control : controls) {
      if (control.part == Part::Field && isField(control.kind)) {
        const bool named = control.cell->labelWidth == kLabelUnseen && !control.text.empty();
        const bool labelled = before != nullptr &&
                              (before->part == Part::Label || before->kind == Kind::Text || isFrame(*before)) &&
                              !before->text.empty();
        EXPECT_TRUE(named || labelled) << said(*shape, control);
      }
      before = &control;
    }
  }
}

TEST(Shapes, NoTwoControlsOfAWindowHaveOneMnemonic) {
  for (const DialogShape* shape : kAllShapes) {
    std::set<char> used;
    for (const PlacedControl& control : LayOut(*shape, {600, 600}, 100)) {
      const char letter = hasMnemonic(control) ? mnemonicOf(control.text) : '\0';
      EXPECT_TRUE(letter == 0 || used.insert(letter).second) << said(*shape, control);
    }
  }
}

TEST(Shapes, PagesLeaveTheLettersOfTheMenuAlone) {
  for (const DialogShape* shape : kAllShapes) {
    if (shape->form != Form::Page) continue;
    for (const PlacedControl& control : LayOut(*shape, {600, 600}, 100)) {
      const char letter = hasMnemonic(control) ? mnemonicOf(control.text) : '\0';
      EXPECT_EQ(std::string_view("FEVOH").find(letter == 0 ? '?' : letter), std::string_view::npos)
          << said(*shape, control);
    }
  }
}

// The help pane knows each window and each control by its number. What two windows have in common is one cell, or
// stands at the foot of the pages of a wizard.
TEST(Shapes, NoTwoWindowsShareANumber) {
  std::set<ControlId> windows;
  std::map<ControlId, const Cell*> owners;
  for (const DialogShape* shape : kAllShapes) EXPECT_TRUE(windows.insert(shape->id).second) << shape->id;
  for (const DialogShape* shape : kAllShapes) {
    std::set<ControlId> own;
    for (const PlacedControl& control : LayOut(*shape, {600, 600}, 100)) {
      if (control.id == 0 || control.id == kOk || control.id == kCancel || control.id == kHelp) continue;
      EXPECT_TRUE(own.insert(control.id).second) << said(*shape, control);
      EXPECT_EQ(windows.count(control.id), 0U) << said(*shape, control);
      EXPECT_EQ(owners.emplace(control.id, control.cell).first->second, control.cell) << said(*shape, control);
    }
  }
}

TEST(Shapes, ADialogHasOneDefaultButtonAtMostAndPagesHaveNone) {
  for (const DialogShape* shape : kAllShapes) {
    int defaults = 0;
    for (const PlacedControl& control : LayOut(*shape, {600, 600}, 100))
      defaults += Has(control.options, Option::Default) ? 1 : 0;
    EXPECT_LE(defaults, shape->form == Form::Page ? 0 : 1) << shape->title;
  }
}

TEST(Shapes, TheMainWindowNamesItsTreeAndItsListForAScreenReader) {
  for (const PlacedControl& control : LayOut(MainWindowShape(), {900, 600}, 100)) {
    if (control.kind == Kind::Tree || control.kind == Kind::ItemList) {
      EXPECT_FALSE(control.text.empty()) << control.id;
    }
  }
}

}  // namespace
}  // namespace varlo::test
