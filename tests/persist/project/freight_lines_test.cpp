#include "persist/project/freight_lines.h"

#include <gtest/gtest.h>

#include "core/store/record.h"
#include "tests/support/project_text.h"

namespace varlo {
namespace {

using namespace test;

class FreightLines : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void addToCatalogue(const char* code, const char* name) {
    FreightRegion* region = FreightRegionMake();
    region->code.assign(code);
    region->name.assign(name);
    RecordAppend(t.config().regionCatalogue, t.config().regionCatalogueTail, region);
  }
  const FreightMethod& method(std::size_t index) { return *project.regions->method[index]; }
};

TEST_F(FreightLines, AFullLineFillsTwelveValuesRegionValueAndFlag) {
  LoadCurrent(t, "$AU1,1,2,3,4,5,6,7,8,9,10,11,12,*,|0\n");
  const FreightRegion& region = *project.regions;
  EXPECT_STREQ(region.code.get(), "AU");
  EXPECT_STREQ(region.name.get(), "AU");
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(method(1).value[i].view(), std::to_string(i + 1));
  EXPECT_STREQ(region.regionValue.get(), "*");
  EXPECT_EQ(method(1).active, 0);
  EXPECT_TRUE(method(0).value[0].isNull());
}

TEST_F(FreightLines, AShortLineSetsTwoValuesLeavesTenNullAndIsActive) {
  LoadCurrent(t, "$AU0,1,2\n");
  EXPECT_STREQ(method(0).value[0].get(), "1");
  EXPECT_STREQ(method(0).value[1].get(), "2");
  for (std::size_t i = 2; i < 12; ++i) EXPECT_TRUE(method(0).value[i].isNull());
  EXPECT_EQ(method(0).active, 1);
  EXPECT_TRUE(project.regions->regionValue.isNull());
}

TEST_F(FreightLines, CodesAreOneRegionWhateverTheirCase) {
  LoadCurrent(t, "$AU0,1,|1\n$au1,2,|1\n");
  EXPECT_EQ(project.regions->next, nullptr);
  EXPECT_STREQ(project.regions->code.get(), "AU");
  EXPECT_STREQ(method(1).value[0].get(), "2");
}

TEST_F(FreightLines, TheCatalogueGivesCodeAndName) {
  addToCatalogue("AU", "Australia");
  LoadCurrent(t, "$au0,1,|1\n$zz0,1,|1\n");
  EXPECT_STREQ(project.regions->code.get(), "AU");
  EXPECT_STREQ(project.regions->name.get(), "Australia");
  EXPECT_EQ(project.regions->active, 0);
  EXPECT_STREQ(project.regions->next->code.get(), "zz");
  EXPECT_STREQ(project.regions->next->name.get(), "zz");
}

TEST_F(FreightLines, EmptyValuesAreStoredAsEmpty) {
  LoadCurrent(t, "$AU0,,2,,,,,,,,,,,,|1\n");
  EXPECT_STREQ(method(0).value[0].get(), "");
  EXPECT_STREQ(method(0).value[11].get(), "");
  EXPECT_STREQ(project.regions->regionValue.get(), "");
}

TEST_F(FreightLines, TheLastRegionValueWins) {
  LoadCurrent(t, "$AU0,,,,,,,,,,,,,10,|1\n$AU1,,,,,,,,,,,,,20,|1\n");
  EXPECT_STREQ(project.regions->regionValue.get(), "20");
}

TEST_F(FreightLines, CellsThatASecondLineDoesNotReachKeepWhatTheyHad) {
  LoadCurrent(t, "$AU0,1,2,3\n$AU0,9\n");
  EXPECT_STREQ(method(0).value[0].get(), "9");
  EXPECT_STREQ(method(0).value[1].get(), "2");
}

TEST_F(FreightLines, LinesWithoutCommaCodeOrUsableDigitAreIgnored) {
  LoadCurrent(t, "$AU0\n$,1\n$AU3,1\n$AU9,1\n");
  EXPECT_EQ(project.regions, nullptr);
}

TEST_F(FreightLines, ANonDigitInPlaceOfTheMethodReadsAsZero) {
  LoadCurrent(t, "$AUx,7\n");
  EXPECT_STREQ(project.regions->code.get(), "AU");
  EXPECT_STREQ(method(0).value[0].get(), "7");
}

TEST_F(FreightLines, ADigitAloneIsARegionWithAnEmptyCode) {
  LoadCurrent(t, "$1,7\n");
  EXPECT_STREQ(project.regions->code.get(), "");
  EXPECT_STREQ(method(1).value[0].get(), "7");
}

TEST_F(FreightLines, TheFlagGoesIntoASignedByteAndTheLineIsCutAtTheFirstBar) {
  LoadCurrent(t, "$AU0,1|300,2,|0\n");
  EXPECT_EQ(method(0).active, 44);
  EXPECT_STREQ(method(0).value[0].get(), "1");
  EXPECT_TRUE(method(0).value[1].isNull());
}

TEST_F(FreightLines, AFurtherReaderFindsTheRegionsThatAreThere) {
  LoadCurrent(t, "$AU0,1,|1\n");
  FreightLineReader reader(t.program, false);
  EXPECT_EQ(reader.read("$au2,5,6"), project.regions);
  EXPECT_STREQ(method(2).value[0].get(), "5");
}

TEST_F(FreightLines, WithoutRegionValueTheThirteenthIsNotRead) {
  FreightLineReader reader(t.program, false);
  const FreightRegion* region = reader.read("$AU0,1,2,3,4,5,6,7,8,9,10,11,12,13,|1");
  EXPECT_STREQ(region->method[0]->value[11].get(), "12");
  EXPECT_TRUE(region->regionValue.isNull());
}

}  // namespace
}  // namespace varlo
