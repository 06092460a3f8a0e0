#include "commerce/freight/region_lists.h"

#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/freight/freight_rows.h"
#include "core/store/record.h"
#include "persist/life/project_life.h"
#include "persist/project/project_save.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class RegionLists : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  FreightRegion* known(const char* code, const char* name) {
    FreightRegion* region = FreightRegionMake();
    region->code.assign(code);
    region->name.assign(name);
    RecordAppend(t.config().regionCatalogue, t.config().regionCatalogueTail, region);
    return region;
  }
  std::vector<std::string> offered() { return names(OfferedRegions(t.config())); }
  // The store's regions, after a look at every link.
  std::vector<std::string> stores() {
    const FreightRegion* before = nullptr;
    for (const FreightRegion* region = project.regions; region != nullptr; region = region->next) {
      EXPECT_EQ(region->prev, before);
      before = region;
    }
    EXPECT_EQ(project.regionsTail, before);
    return names(StoreRegions(project));
  }
  static std::vector<std::string> names(const std::vector<FreightRegion*>& regions) {
    std::vector<std::string> names;
    for (const FreightRegion* region : regions) names.emplace_back(region->name.view());
    return names;
  }
  static std::string offers(const FreightRegion& region) {
    std::string text;
    for (const FreightMethod* table : region.method) text += std::to_string(table->active);
    return text;
  }
  void takeAll() { RegionsTake(t.program, OfferedRegions(t.config())); }
  void removeAll() { RegionsRemove(t.program, StoreRegions(project)); }
};

TEST_F(RegionLists, TakingARegionCopiesItAndMarksTheCatalogue) {
  FreightRegion* au = known("AU", "Australia");
  known("NZ", "New Zealand");
  RegionsTake(t.program, std::vector{au});
  EXPECT_THAT(offered(), ElementsAre("New Zealand"));
  EXPECT_THAT(stores(), ElementsAre("Australia"));
  EXPECT_NE(project.regions, au);
  EXPECT_EQ(project.regions->code.view(), "AU");
  EXPECT_EQ(project.regions->isCustom, 0);
}

TEST_F(RegionLists, ATakenRegionIsOfferedByTheCurrentMethodAlone) {
  FreightRegion* au = known("AU", "Australia");
  project.currentMethod = 1;
  RegionsTake(t.program, std::vector{au});
  EXPECT_EQ(offers(*project.regions), "010");
}

TEST_F(RegionLists, ARegionInUseIsSkipped) {
  FreightRegion* au = known("AU", "Australia");
  RegionsTake(t.program, std::vector{au, au});
  RegionsTake(t.program, std::vector{au});
  EXPECT_THAT(stores(), ElementsAre("Australia"));
}

TEST_F(RegionLists, RegionsComeInTheOrderOfTheSelection) {
  FreightRegion* au = known("AU", "Australia");
  FreightRegion* nz = known("NZ", "New Zealand");
  FreightRegion* us = known("US", "United States");
  RegionsTake(t.program, std::vector{us, au});
  RegionsTake(t.program, std::vector{nz});
  EXPECT_THAT(stores(), ElementsAre("United States", "Australia", "New Zealand"));
}

TEST_F(RegionLists, ARemovedRegionIsOfferedAgainInItsOldPlace) {
  for (const char* name : {"Australia", "New Zealand", "United States"}) known(name, name);
  takeAll();
  EXPECT_THAT(offered(), IsEmpty());
  RegionsRemove(t.program, std::vector{project.regions->next});
  EXPECT_THAT(offered(), ElementsAre("New Zealand"));
  EXPECT_THAT(stores(), ElementsAre("Australia", "United States"));
  removeAll();
  EXPECT_THAT(offered(), ElementsAre("Australia", "New Zealand", "United States"));
  EXPECT_THAT(stores(), IsEmpty());
}

TEST_F(RegionLists, ATypedRegionHasItsNameAsCodeAndIsOfferedByEveryMethod) {
  RegionTakeTyped(t.program, "Mars");
  EXPECT_EQ(project.regions->name.view(), "Mars");
  EXPECT_EQ(project.regions->code.view(), "Mars");
  EXPECT_EQ(project.regions->isCustom, 1);
  EXPECT_EQ(offers(*project.regions), "111");
}

TEST_F(RegionLists, ATypedRegionMayBeAddedTwice) {
  const std::string name(300, 'x');
  RegionTakeTyped(t.program, name);
  RegionTakeTyped(t.program, name);
  EXPECT_THAT(stores(), ElementsAre(name, name));
}

TEST_F(RegionLists, RemovingATypedRegionLeavesTheCatalogueAsItIs) {
  FreightRegion* au = known("AU", "Australia");
  RegionsTake(t.program, std::vector{au});
  RegionTakeTyped(t.program, "Australia");
  RegionsRemove(t.program, std::vector{project.regionsTail});
  EXPECT_EQ(au->active, 1);
  EXPECT_THAT(stores(), ElementsAre("Australia"));
}

TEST_F(RegionLists, ARegionIsGivenBackToTheFirstEntryOfItsName) {
  FreightRegion* first = known("A1", "Twin");
  FreightRegion* second = known("A2", "Twin");
  RegionsTake(t.program, std::vector{first, second});
  RegionsRemove(t.program, std::vector{project.regionsTail});
  EXPECT_EQ(first->active, 0);
  EXPECT_EQ(second->active, 1);
}

TEST_F(RegionLists, TheNextRegionElseThePreviousBecomesCurrent) {
  for (const char* code : {"A", "B", "C"}) AddRegion(project, code);
  project.currentRegion = project.regions->next;
  RegionsRemove(t.program, std::vector{project.currentRegion});
  EXPECT_EQ(project.currentRegion->name.view(), "C");
  RegionsRemove(t.program, std::vector{project.currentRegion});
  EXPECT_EQ(project.currentRegion->name.view(), "A");
  RegionsRemove(t.program, std::vector{project.currentRegion});
  EXPECT_EQ(project.currentRegion, nullptr);
  EXPECT_THAT(stores(), IsEmpty());
}

TEST_F(RegionLists, RemovingAnotherRegionKeepsTheCurrentOne) {
  FreightRegion* a = AddRegion(project, "A");
  FreightRegion* b = AddRegion(project, "B");
  project.currentRegion = b;
  RegionsRemove(t.program, std::vector{a});
  EXPECT_EQ(project.currentRegion, b);
}

TEST_F(RegionLists, AnOpenFreightTabIsToldOfEachMove) {
  FreightRegion* au = known("AU", "Australia");
  RegionsTake(t.program, std::vector{au});
  RegionTakeTyped(t.program, "Mars");
  removeAll();
  EXPECT_EQ(std::count(t.view.calls.begin(), t.view.calls.end(), "loadFreightList"), 3);
}

TEST_F(RegionLists, MovesMarkNothingAsChanged) {
  known("AU", "Australia");
  takeAll();
  RegionTakeTyped(t.program, "Mars");
  removeAll();
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(RegionLists, ReadingAProjectMarksNothingSoItsRegionsAreOfferedAgain) {
  known("AU", "Australia");
  t.files.put("Projects\\Shop\\Shop.stp", "VERSION=107001\nNODE0=Home\n$AU0,5,,,,,,,,,,,,,|1\n");
  ASSERT_EQ(ProjectOpenPath(t.program, "C:\\Varlo\\Projects\\Shop\\Shop.stp", false), 1);
  ASSERT_THAT(stores(), ElementsAre("Australia"));
  EXPECT_THAT(offered(), ElementsAre("Australia"));
  takeAll();
  EXPECT_THAT(stores(), ElementsAre("Australia", "Australia"));
  EXPECT_THAT(offered(), IsEmpty());
  ASSERT_EQ(ProjectSave(t.program), 1);
  const std::string saved = *t.files.content("Projects\\Shop\\Shop.stp");
  const std::size_t first = saved.find("$AU0,");
  EXPECT_NE(saved.find("$AU0,", first + 1), std::string::npos);
}

// Links, marks and lists agree whatever is moved.
TEST_F(RegionLists, RandomMovesKeepListsAndMarksInStep) {
  std::mt19937 random(3);
  for (int i = 0; i < 20; ++i) known(std::to_string(i).c_str(), std::to_string(i).c_str());
  for (int step = 0; step < 2000; ++step) {
    const bool take = random() % 2 == 0;
    std::vector<FreightRegion*> picked = take ? OfferedRegions(t.config()) : StoreRegions(project);
    std::erase_if(picked, [&](const FreightRegion*) { return random() % 3 != 0; });
    take ? RegionsTake(t.program, picked) : RegionsRemove(t.program, picked);
    EXPECT_EQ(offered().size() + stores().size(), 20U);
  }
}

}  // namespace
}  // namespace varlo
