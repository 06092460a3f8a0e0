#include "commerce/tax/tax_settings.h"

#include <gtest/gtest.h>

#include "core/store/record.h"

namespace varlo {
namespace {

// Regions with the values "*", "10", "" and absent.
class NormalizeRegionTaxTest : public testing::Test {
 protected:
  FreightRegion* regions = nullptr;
  FreightRegion* tail = nullptr;

  void SetUp() override {
    for (const char* value : {"*", "10", ""}) add()->regionValue.assign(value);
    add();
  }
  void TearDown() override { FreightRegionListFree(regions); }
  FreightRegion* add() {
    RecordAppend(regions, tail, FreightRegionMake());
    return tail;
  }
  std::string values() {
    std::string text;
    for (const FreightRegion* region = regions; region != nullptr; region = region->next) {
      text += region->regionValue.isNull() ? "-" : "[" + std::string(region->regionValue.view()) + "]";
    }
    return text;
  }
};

TEST_F(NormalizeRegionTaxTest, WithTaxOffEveryValueGoes) {
  NormalizeRegionTax(regions, 0, kTaxByRegion);
  EXPECT_EQ(values(), "----");
}

TEST_F(NormalizeRegionTaxTest, RegionBasedRemovesTheMarksAndKeepsRates) {
  NormalizeRegionTax(regions, 1, kTaxByRegion);
  EXPECT_EQ(values(), "-[10][]-");
}

TEST_F(NormalizeRegionTaxTest, ProductBasedKeepsOnlyTheMarks) {
  NormalizeRegionTax(regions, 1, kTaxByProduct);
  EXPECT_EQ(values(), "[*]---");
}

TEST_F(NormalizeRegionTaxTest, ChangingTheMethodAndBackRemovesBoth) {
  NormalizeRegionTax(regions, 1, kTaxByProduct);
  NormalizeRegionTax(regions, 1, kTaxByRegion);
  EXPECT_EQ(values(), "----");
}

TEST_F(NormalizeRegionTaxTest, AMarkIsExactlyOneStar) {
  regions->regionValue.assign("**");
  NormalizeRegionTax(regions, 1, kTaxByRegion);
  EXPECT_EQ(values(), "[**][10][]-");
}

}  // namespace
}  // namespace varlo
