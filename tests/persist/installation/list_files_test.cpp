#include "persist/installation/list_files.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

const ShownBox kRegionsBox{"ERROR W106: Unable to Load Domains List 'domain.dat'", "Error"};
const ShownBox kCardsBox{"ERROR W107: Unable to open credit card list file 'cc.dat'", "Error"};

class RegionCatalogueReadTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  int read(std::string_view text) {
    t.files.put("domain.dat", text);
    return RegionCatalogueRead(t.program);
  }
  // "code:name" of each region.
  [[nodiscard]] std::vector<std::string> regions() const {
    std::vector<std::string> all;
    for (const FreightRegion* region = config.regionCatalogue; region != nullptr; region = region->next) {
      all.push_back(std::string(region->code.view()).append(":").append(region->name.view()));
    }
    return all;
  }
};

TEST_F(RegionCatalogueReadTest, TakesALineForARegionInTheOrderOfTheFile) {
  EXPECT_EQ(read("US United States\nAU Australia\nAU-VIC Victoria\n"), 1);
  EXPECT_THAT(regions(), ElementsAre("US:United States", "AU:Australia", "AU-VIC:Victoria"));
}

TEST_F(RegionCatalogueReadTest, LinksTheRegionsBothWays) {
  read("A a\nB b\nC c\n");
  const FreightRegion* first = config.regionCatalogue;
  ASSERT_NE(first, nullptr);
  const FreightRegion* second = first->next;
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(first->prev, nullptr);
  EXPECT_EQ(second->prev, first);
  EXPECT_EQ(config.regionCatalogueTail, second->next);
  ASSERT_NE(config.regionCatalogueTail, nullptr);
  EXPECT_EQ(config.regionCatalogueTail->prev, second);
  EXPECT_EQ(config.regionCatalogueTail->next, nullptr);
}

TEST_F(RegionCatalogueReadTest, MakesTheThreeMethodsOfEachRegion) {
  read("A a\nB b\n");
  for (const FreightRegion* region = config.regionCatalogue; region != nullptr; region = region->next) {
    EXPECT_EQ(region->active, 0);
    EXPECT_EQ(region->isCustom, 0);
    EXPECT_TRUE(region->regionValue.isNull());
    for (const FreightMethod* method : region->method) {
      ASSERT_NE(method, nullptr);
      EXPECT_EQ(method->active, 0);
      EXPECT_TRUE(method->rule.isNull());
      for (const Text& value : method->value) EXPECT_TRUE(value.isNull());
    }
    EXPECT_NE(region->method[0], region->method[1]);
    EXPECT_NE(region->method[1], region->method[2]);
    EXPECT_NE(region->method[0], region->method[2]);
  }
}

TEST_F(RegionCatalogueReadTest, TwoBlanksGiveTheNameWithoutBlanksInFront) {
  read("AU  Australia\n");
  EXPECT_THAT(regions(), ElementsAre("AU:Australia"));
}

TEST_F(RegionCatalogueReadTest, TheCodeEndsAtTheFirstBlankOrTab) {
  read("AU\tAustralia\nNZ \t New Zealand\nUK\t United\tKingdom\n");
  EXPECT_THAT(regions(), ElementsAre("AU:Australia", "NZ:New Zealand", "UK:United\tKingdom"));
}

TEST_F(RegionCatalogueReadTest, ALineOfOneWordIsSkipped) {
  EXPECT_EQ(read("AU\nNZ New Zealand\nUS"), 1);
  EXPECT_THAT(regions(), ElementsAre("NZ:New Zealand"));
}

TEST_F(RegionCatalogueReadTest, BlanksAtTheEndDoNotMakeAName) {
  EXPECT_EQ(read("AU   \r\n"), 0);
  EXPECT_THAT(regions(), IsEmpty());
}

TEST_F(RegionCatalogueReadTest, ALineThatBeginsWithABlankHasAnEmptyCode) {
  read(" AU Australia\n");
  EXPECT_THAT(regions(), ElementsAre(":AU Australia"));
}

TEST_F(RegionCatalogueReadTest, EmptyLinesAreSkipped) {
  read("\nAU Australia\n\r\n\n");
  EXPECT_THAT(regions(), ElementsAre("AU:Australia"));
}

TEST_F(RegionCatalogueReadTest, ThereAreNoCommentLines) {
  read("; a comment\n");
  EXPECT_THAT(regions(), ElementsAre(";:a comment"));
}

TEST_F(RegionCatalogueReadTest, TrimsTheLineEndAndTakesALastLineWithoutOne) {
  read("AU Australia  \r\nNZ New Zealand");
  EXPECT_THAT(regions(), ElementsAre("AU:Australia", "NZ:New Zealand"));
}

TEST_F(RegionCatalogueReadTest, WithoutARegionTheResultIsZeroAndThereIsNoMessage) {
  EXPECT_EQ(read(""), 0);
  EXPECT_EQ(read("word\n"), 0);
  EXPECT_EQ(config.regionCatalogue, nullptr);
  EXPECT_EQ(config.regionCatalogueTail, nullptr);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(RegionCatalogueReadTest, AMissingFileIsToldAndLeavesTheCatalogueEmpty) {
  EXPECT_EQ(RegionCatalogueRead(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kRegionsBox));
  EXPECT_EQ(config.regionCatalogue, nullptr);
}

TEST_F(RegionCatalogueReadTest, ASecondCallChangesNothing) {
  read("AU Australia\n");
  const FreightRegion* first = config.regionCatalogue;
  EXPECT_EQ(read("NZ New Zealand\n"), 0);
  EXPECT_EQ(config.regionCatalogue, first);
  EXPECT_THAT(regions(), ElementsAre("AU:Australia"));
}

TEST_F(RegionCatalogueReadTest, ASecondCallDoesNotMissTheFile) {
  read("AU Australia\n");
  t.files.remove("domain.dat");
  EXPECT_EQ(RegionCatalogueRead(t.program), 0);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(RegionCatalogueReadTest, ClosesItsFile) {
  read("AU Australia\n");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

class CardCatalogueReadTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  int read(std::string_view text) {
    t.files.put("cc.dat", text);
    return CardCatalogueRead(t.program);
  }
  [[nodiscard]] std::vector<std::string> cards() const {
    std::vector<std::string> all;
    for (const CardEntry* card = config.cardCatalogue; card != nullptr; card = card->next) {
      all.emplace_back(card->name.view());
    }
    return all;
  }
};

TEST_F(CardCatalogueReadTest, TakesALineForACardInTheOrderOfTheFile) {
  EXPECT_EQ(read("Visa\nMaster Card\nAmex"), 1);
  EXPECT_THAT(cards(), ElementsAre("Visa", "Master Card", "Amex"));
}

TEST_F(CardCatalogueReadTest, ACardIsNeitherCustomNorSelected) {
  read("Visa\n");
  ASSERT_NE(config.cardCatalogue, nullptr);
  EXPECT_EQ(config.cardCatalogue->custom, 0);
  EXPECT_EQ(config.cardCatalogue->selected, 0);
}

TEST_F(CardCatalogueReadTest, LinksTheCardsBothWays) {
  read("A\nB\n");
  const CardEntry* first = config.cardCatalogue;
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->prev, nullptr);
  EXPECT_EQ(config.cardCatalogueTail, first->next);
  ASSERT_NE(config.cardCatalogueTail, nullptr);
  EXPECT_EQ(config.cardCatalogueTail->prev, first);
  EXPECT_EQ(config.cardCatalogueTail->next, nullptr);
}

TEST_F(CardCatalogueReadTest, ASemicolonInTheFirstColumnMakesAComment) {
  EXPECT_EQ(read("; Visa\n;\nAmex;\n"), 1);
  EXPECT_THAT(cards(), ElementsAre("Amex;"));
}

TEST_F(CardCatalogueReadTest, WithABlankInFrontOfTheSemicolonItIsACard) {
  read(" ; Visa\n");
  EXPECT_THAT(cards(), ElementsAre(" ; Visa"));
}

TEST_F(CardCatalogueReadTest, EmptyLinesAreSkipped) {
  read("\n   \r\nVisa\n\n");
  EXPECT_THAT(cards(), ElementsAre("Visa"));
}

TEST_F(CardCatalogueReadTest, TrimsTheEndOfALine) {
  read("  Visa  \r\n");
  EXPECT_THAT(cards(), ElementsAre("  Visa"));
}

TEST_F(CardCatalogueReadTest, WithoutACardTheResultIsZeroAndThereIsNoMessage) {
  EXPECT_EQ(read("; nothing\n"), 0);
  EXPECT_EQ(config.cardCatalogue, nullptr);
  EXPECT_EQ(config.cardCatalogueTail, nullptr);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(CardCatalogueReadTest, AMissingFileIsToldAndLeavesTheCatalogueEmpty) {
  EXPECT_EQ(CardCatalogueRead(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kCardsBox));
  EXPECT_EQ(config.cardCatalogue, nullptr);
}

TEST_F(CardCatalogueReadTest, ClosesItsFile) {
  read("Visa\n");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

}  // namespace
}  // namespace varlo
