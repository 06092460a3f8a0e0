#include "shell/tabs/inventory_layout.h"

#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/control_ids.h"

namespace varlo {
namespace {

using namespace control::inventory;

struct Page {
  Size size;  // in pixels of an ordinary screen
  int scale;  // in percent
};

constexpr Page kPages[] = {{kSmallestInventoryPage, 100},
                           {{600, 600}, 100},
                           {{431, 481}, 100},
                           {{1801, 1300}, 100},
                           {{600, 600}, 150},
                           {kSmallestInventoryPage, 150},
                           {kSmallestInventoryPage, 125},
                           {{600, 600}, 175},
                           {kSmallestInventoryPage, 200},
                           {{1234, 777}, 200},
                           {{997, 1999}, 100}};

Size pixelsOf(const Page& page) { return {page.size.width * page.scale / 100, page.size.height * page.scale / 100}; }

std::map<ControlId, Rectangle> shownOn(const Page& page) {
  std::map<ControlId, Rectangle> places;
  for (const Placement& placement : layOutInventoryPage(pixelsOf(page), page.scale)) {
    if (placement.shown) places[placement.control] = placement.place;
  }
  return places;
}

int right(const Rectangle& place) { return place.left + place.width; }
int bottom(const Rectangle& place) { return place.top + place.height; }

bool overlap(const Rectangle& a, const Rectangle& b) {
  return a.left < right(b) && b.left < right(a) && a.top < bottom(b) && b.top < bottom(a);
}

std::string said(const Page& page) {
  return std::to_string(page.size.width) + "x" + std::to_string(page.size.height) + " at " +
         std::to_string(page.scale);
}

TEST(InventoryLayout, PlacesEachFieldWithItsLabelAndEachButtonOnce) {
  std::set<ControlId> expected{kKeywordManager, kChooseImage, kShowImage, kChooseImageLink,
                               kShowImageLink,  kPreview,     kBuild};
  for (ControlId field = kTitle; field <= kDescription; ++field) {
    expected.insert(field);
    expected.insert(field + 50);
  }
  const std::vector<Placement> placements = layOutInventoryPage({600, 600}, 100);
  std::set<ControlId> placed;
  for (const Placement& placement : placements) placed.insert(placement.control);
  EXPECT_EQ(placed, expected);
  EXPECT_EQ(placements.size(), expected.size());
}

TEST(InventoryLayout, NothingOverlaps) {
  for (const Page& page : kPages) {
    const auto places = shownOn(page);
    for (const auto& [control, place] : places) {
      for (const auto& [other, otherPlace] : places) {
        EXPECT_TRUE(control == other || !overlap(place, otherPlace))
            << control << " and " << other << " on " << said(page);
      }
    }
  }
}

TEST(InventoryLayout, NothingLeavesThePage) {
  for (const Page& page : kPages) {
    const Size size = pixelsOf(page);
    for (const auto& [control, place] : shownOn(page)) {
      EXPECT_GE(place.left, 0) << control << " on " << said(page);
      EXPECT_GE(place.top, 0) << control << " on " << said(page);
      EXPECT_LE(right(place), size.width) << control << " on " << said(page);
      EXPECT_LE(bottom(place), size.height) << control << " on " << said(page);
    }
  }
}

TEST(InventoryLayout, EachFieldHasRoomForSomeLetters) {
  for (const Page& page : kPages) {
    const auto places = shownOn(page);
    for (ControlId field = kTitle; field <= kDescription; ++field) {
      EXPECT_GE(places.at(field).width * 100, 54 * page.scale) << field << " on " << said(page);
      EXPECT_GE(places.at(field).height * 100, 22 * page.scale - 100) << field << " on " << said(page);
    }
    EXPECT_GE(places.at(kDescription).height * 100, 64 * page.scale) << said(page);
  }
}

TEST(InventoryLayout, LabelsStandLeftOfTheirFieldsAndOnTheirLine) {
  for (const Page& page : kPages) {
    const auto places = shownOn(page);
    for (ControlId field = kTitle; field < kDescription; ++field) {
      const Rectangle& label = places.at(field + kLabelOffset);
      EXPECT_LE(right(label), places.at(field).left) << field;
      EXPECT_GE(label.top, places.at(field).top) << field;
      EXPECT_LE(bottom(label), bottom(places.at(field))) << field;
    }
  }
}

TEST(InventoryLayout, FieldsFormColumns) {
  for (const Page& page : kPages) {
    const auto places = shownOn(page);
    for (const ControlId field :
         {kPageTitle, kFileName, kMetaKeywords, kMetaDescription, kImage, kImageLink, kTemplate, kCost, kFreight}) {
      EXPECT_EQ(places.at(field).left, places.at(kTitle).left) << field << " on " << said(page);
    }
    for (const ControlId field : {kWeight, kTax}) {
      EXPECT_EQ(places.at(field).left, places.at(kProductCode).left) << field << " on " << said(page);
    }
    for (const ControlId label : {kLabel1 + 1, kLabel1 + 3, kLabel1 + 5}) {
      EXPECT_EQ(places.at(label + kLabelOffset).left, places.at(kProductCode + kLabelOffset).left) << said(page);
    }
    for (const ControlId field :
         {kPageTitle, kProductCode, kMetaDescription, kTemplate, kWeight, kTax, kValue1 + 1}) {
      EXPECT_EQ(right(places.at(field)), right(places.at(kDescription))) << field << " on " << said(page);
    }
  }
}

TEST(InventoryLayout, FieldsFollowEachOtherInReadingOrder) {
  std::vector<ControlId> order{kTitle,           kPageTitle, kFileName,  kProductCode, kMetaKeywords,
                               kMetaDescription, kImage,     kImageLink, kTemplate,    kCost,
                               kWeight,          kFreight,   kTax};
  for (int pair = 0; pair < 6; ++pair) {
    order.push_back(kLabel1 + pair);
    order.push_back(kValue1 + pair);
  }
  order.push_back(kDescription);
  const auto places = shownOn(kPages[1]);
  for (std::size_t i = 1; i < order.size(); ++i) {
    const Rectangle& before = places.at(order[i - 1]);
    const Rectangle& after = places.at(order[i]);
    EXPECT_TRUE(after.top > before.top || (after.top == before.top && after.left > before.left)) << order[i];
  }
}

TEST(InventoryLayout, TheDescriptionTakesTheHeightThatTheOthersLeave) {
  const auto low = shownOn({{600, 500}, 100});
  const auto high = shownOn({{600, 900}, 100});
  EXPECT_EQ(high.at(kDescription).height - low.at(kDescription).height, 400);
  EXPECT_EQ(high.at(kDescription).top, low.at(kDescription).top);
  EXPECT_EQ(high.at(kTax), low.at(kTax));
}

TEST(InventoryLayout, TheBuildButtonIsHiddenBehindPreview) {
  for (const Placement& placement : layOutInventoryPage({600, 600}, 100)) {
    EXPECT_EQ(placement.shown, placement.control != kBuild) << placement.control;
  }
}

TEST(InventoryLayout, OnAPageThatIsTooSmallNothingHasANegativeSize) {
  for (const Size size : {Size{0, 0}, Size{50, 50}, Size{200, 300}, Size{-5, -5}}) {
    for (const Placement& placement : layOutInventoryPage(size, 150)) {
      EXPECT_GE(placement.place.width, 0) << placement.control;
      EXPECT_GE(placement.place.height, 0) << placement.control;
    }
  }
}

}  // namespace
}  // namespace varlo
