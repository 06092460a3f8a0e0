// Moving delivery regions between the catalogue of the installation and the store.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/store/freight_record.h"

namespace varlo {

struct AppConfig;
struct Program;

// The regions of the catalogue that are not in use, in its order. Deliberate: reading a project marks none, so
// those that it has are offered again, and taking one gives a second region with the same code.
[[nodiscard]] std::vector<FreightRegion*> OfferedRegions(const AppConfig& config);

// Puts copies of these regions of the catalogue at the end of the store's list, offered by the current method
// alone, and marks them as in use. One that is in use already is skipped.
void RegionsTake(Program& program, std::span<FreightRegion* const> catalogue);

// The same with a region that the user typed in, offered by every method; its name is its code. It may be there
// already.
void RegionTakeTyped(Program& program, std::string_view name);

// Takes these regions out of the store and releases them, with their tables. One of the catalogue is given back
// to its first entry of that name. When the current region goes, the next one, else the previous, becomes
// current.
void RegionsRemove(Program& program, std::span<FreightRegion* const> regions);

}  // namespace varlo
