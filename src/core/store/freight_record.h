// The freight records. One record type serves the regions of a project, the three methods of each, and
// the catalogue of known regions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/text/text.h"

namespace varlo {

struct AppConfig;

inline constexpr std::size_t kFreightMethods = 3;
inline constexpr std::size_t kFreightCells = 12;

// The delivery methods of a store that names none.
inline constexpr std::array<std::string_view, kFreightMethods> kDefaultMethodNames{
    "Economy Air (2-3 Weeks)", "Express Courier (1-3 Days)", "Surface Mail (3-6 Weeks)"};

struct FreightRecord {
  FreightRecord* next = nullptr;
  FreightRecord* prev = nullptr;
  std::array<FreightRecord*, kFreightMethods> method{};  // of a region: its own, always all three

  Text name;                              // region: shown in the region lists
  Text code;                              // region: key by which file lines find it
  Text rule;                              // method: advanced rule line
  Text regionValue;                       // region: thirteenth value of its freight lines
  std::array<Text, kFreightCells> value;  // method: values of its freight line

  std::int8_t active = 0;  // catalogue: region is in use; method: offered in its region
  std::int32_t buildMerged = 0;
  std::int32_t isCustom = 0;  // region: typed in by the user
  std::int32_t listItem = 0;
};

using FreightRegion = FreightRecord;
using FreightMethod = FreightRecord;

// A zeroed record: a new one for null, else the given one with its texts released. Methods that it
// held are not released.
FreightRecord* FreightRecordInit(FreightRecord* record);

// A new region with its three methods, all zeroed.
[[nodiscard]] FreightRegion* FreightRegionMake();

// Copies rule, regionValue, value, active and buildMerged; name, code and methods of the destination
// stay. A null source gives a zeroed record.
FreightRecord* FreightRecordCopy(FreightRecord* destination, const FreightRecord* source);

// Releases the regions from `head` along next, each with its methods.
void FreightRegionListFree(FreightRegion* head);

// Sets `active` of the catalogue's region with exactly this name to `flag`; 1 when there is one, else 0.
int RegionCatalogueMark(AppConfig& config, const char* name, int flag);

}  // namespace varlo
