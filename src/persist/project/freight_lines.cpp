#include "persist/project/freight_lines.h"

#include "core/program/program.h"
#include "core/store/record.h"
#include "core/text/number_text.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"

namespace varlo {
namespace {

std::string folded(std::string_view code) {
  std::string key(code);
  TextLower(key);
  return key;
}

// The next value of a freight line: what stands between the first comma of `rest` and the one behind,
// or the end. Moves `rest` on to that comma; false when there is no comma.
bool nextValue(std::string_view& rest, std::string_view& value) {
  const std::size_t comma = rest.find(',');
  if (comma == std::string_view::npos) return false;
  rest.remove_prefix(comma + 1);
  value = rest.substr(0, rest.find(','));
  rest.remove_prefix(value.size());
  return true;
}

// The cells of the method that the line reaches; the others keep what they had.
void readValues(std::string_view rest, FreightMethod& method, Text* regionValue) {
  std::string_view value;
  for (Text& cell : method.value) {
    if (!nextValue(rest, value)) return;
    cell.assignLine(value);
  }
  if (regionValue != nullptr && nextValue(rest, value)) regionValue->assignLine(value);
}

// Splits "index,text"; null when there is no comma or no such index.
bool splitIndexed(std::string_view value, std::size_t& index, std::string_view& text) {
  const std::size_t comma = value.find(',');
  const std::int32_t number = LeadingInt(value);
  if (comma == std::string_view::npos || number < 0 || number >= static_cast<std::int32_t>(kFreightMethods)) {
    return false;
  }
  index = static_cast<std::size_t>(number);
  text = value.substr(comma + 1);
  return true;
}

}  // namespace

void FreightLineReader::addAll(Index& index, FreightRegion* head) {
  for (; head != nullptr; head = head->next) index.try_emplace(folded(head->code.view()), head);
}

void FreightLineReader::indexOnce() {
  if (indexed_) return;
  indexed_ = true;
  addAll(regions_, program_.project.regions);
  addAll(catalogue_, program_.config.regionCatalogue);
}

FreightRegion* FreightLineReader::findOrMake(std::string_view code) {
  indexOnce();
  FreightRegion*& region = regions_[folded(code)];
  if (region == nullptr) {
    region = FreightRegionMake();
    RecordAppend(program_.project.regions, program_.project.regionsTail, region);
  }
  return region;
}

void FreightLineReader::nameFromCatalogue(FreightRegion& region, std::string_view code) const {
  const auto known = catalogue_.find(folded(code));
  if (known != catalogue_.end()) {
    region.name = known->second->name;
    region.code = known->second->code;
    region.active = 0;
  }
  if (!region.name.isSet()) {
    region.code.assignLine(code);
    region.name.assignLine(code);
  }
}

FreightRegion* FreightLineReader::read(std::string_view line) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos || comma < 2) return nullptr;
  const std::int32_t index = LeadingInt(line.substr(comma - 1, 1));
  if (index >= static_cast<std::int32_t>(kFreightMethods)) return nullptr;
  const std::string_view code = line.substr(1, comma - 2);

  FreightRegion* region = findOrMake(code);
  nameFromCatalogue(*region, code);
  FreightMethod* method = region->method[static_cast<std::size_t>(index)];
  if (method == nullptr) return region;

  const std::size_t bar = line.find('|');
  method->active = 1;
  if (bar != std::string_view::npos) method->active = static_cast<std::int8_t>(LeadingInt(line.substr(bar + 1)));
  readValues(line.substr(0, bar), *method, withRegionValue_ ? &region->regionValue : nullptr);
  return region;
}

void ReadFreightRule(FreightRegion* region, std::string_view value) {
  std::size_t index = 0;
  std::string_view rule;
  if (region == nullptr || !splitIndexed(value, index, rule)) return;
  if (region->method[index] != nullptr) region->method[index]->rule.assignLine(rule);
}

void ReadMethodName(Program& program, std::string_view value) {
  std::size_t index = 0;
  std::string_view name;
  if (splitIndexed(value, index, name)) program.project.methodName[index].assignLine(name);
}

}  // namespace varlo
