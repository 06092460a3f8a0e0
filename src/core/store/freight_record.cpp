#include "core/store/freight_record.h"

#include "core/store/app_config.h"
#include "core/store/record.h"

namespace varlo {

FreightRecord* FreightRecordInit(FreightRecord* record) { return RecordInit(record); }

FreightRegion* FreightRegionMake() {
  FreightRegion* region = FreightRecordInit(nullptr);
  for (FreightMethod*& method : region->method) method = FreightRecordInit(nullptr);
  return region;
}

FreightRecord* FreightRecordCopy(FreightRecord* destination, const FreightRecord* source) {
  if (destination == nullptr) destination = FreightRecordInit(nullptr);
  if (source == nullptr) return FreightRecordInit(destination);
  destination->rule = source->rule;
  destination->regionValue = source->regionValue;
  destination->value = source->value;
  destination->active = source->active;
  destination->buildMerged = source->buildMerged;
  return destination;
}

void FreightRegionListFree(FreightRegion* head) {
  RecordListFree(head, [](FreightRegion& region) {
    for (FreightMethod* method : region.method) delete method;
  });
}

int RegionCatalogueMark(AppConfig& config, const char* name, int flag) {
  if (name == nullptr) return 0;
  for (FreightRegion* region = config.regionCatalogue; region != nullptr; region = region->next) {
    if (region->name.view() != name) continue;
    region->active = static_cast<std::int8_t>(flag);
    return 1;
  }
  return 0;
}

}  // namespace varlo
