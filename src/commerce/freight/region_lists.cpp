#include "commerce/freight/region_lists.h"

#include "commerce/freight/freight_rows.h"
#include "core/program/program.h"
#include "core/store/record.h"

namespace varlo {
namespace {

FreightRegion& append(StoreProject& project, std::string_view name, std::string_view code) {
  FreightRegion* region = FreightRegionMake();
  region->name.assign(name);
  region->code.assign(code);
  RecordAppend(project.regions, project.regionsTail, region);
  return *region;
}

void unlink(StoreProject& project, const FreightRegion& region) {
  (region.prev == nullptr ? project.regions : region.prev->next) = region.next;
  (region.next == nullptr ? project.regionsTail : region.next->prev) = region.prev;
}

void remove(Program& program, FreightRegion* region) {
  StoreProject& project = program.project;
  if (region->isCustom == 0) RegionCatalogueMark(program.config, region->name.get(), 0);
  if (project.currentRegion == region) {
    project.currentRegion = region->next != nullptr ? region->next : region->prev;
  }
  unlink(project, *region);
  region->next = nullptr;
  FreightRegionListFree(region);
}

}  // namespace

std::vector<FreightRegion*> OfferedRegions(const AppConfig& config) {
  std::vector<FreightRegion*> offered;
  for (FreightRegion* region = config.regionCatalogue; region != nullptr; region = region->next) {
    if (region->active == 0) offered.push_back(region);
  }
  return offered;
}

void RegionsTake(Program& program, std::span<FreightRegion* const> catalogue) {
  for (FreightRegion* known : catalogue) {
    if (known->active != 0) continue;
    const FreightRegion& region = append(program.project, known->name.view(), known->code.view());
    FreightMethod* table = CurrentTable(program.project, region);
    if (table != nullptr) table->active = 1;
    known->active = 1;
  }
  program.view.loadFreightList();
}

void RegionTakeTyped(Program& program, std::string_view name) {
  FreightRegion& region = append(program.project, name, name);
  region.isCustom = 1;
  for (FreightMethod* table : region.method) table->active = 1;
  program.view.loadFreightList();
}

// An open Freight tab must not show what is gone.
void RegionsRemove(Program& program, std::span<FreightRegion* const> regions) {
  for (FreightRegion* region : regions) remove(program, region);
  program.view.loadFreightList();
}

}  // namespace varlo
