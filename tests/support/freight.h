// Making freight tables for tests.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "core/store/record.h"
#include "core/store/store_project.h"

namespace varlo::test {

// A region at the end of the store's list, served by no method.
inline FreightRegion* AddRegion(StoreProject& project, const char* code) {
  FreightRegion* region = FreightRegionMake();
  region->code.assign(code);
  region->name.assign(code);
  RecordAppend(project.regions, project.regionsTail, region);
  return region;
}

// Serves the region by a method, with these cells filled.
inline void Serve(FreightRegion* region, std::size_t slot,
                  std::initializer_list<std::pair<std::size_t, const char*>> cells = {}) {
  FreightMethod& table = *region->method[slot];
  table.active = 1;
  for (const auto& [cell, cost] : cells) table.value[cell].assign(cost);
}

}  // namespace varlo::test
