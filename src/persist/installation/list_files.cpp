#include "persist/installation/list_files.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/store/record.h"
#include "core/text/line_reader.h"
#include "core/text/open_file.h"
#include "core/text/text_edit.h"

namespace varlo {
namespace {

// Calls `take` with each line of the file, trimmed; false, after the message, without the file.
template <typename Take>
bool readLines(Program& program, const char* path, std::string_view failure, Take take) {
  OpenFile file(program.files, program.files.openRead(path));
  if (!file.isOpen()) {
    ErrorBox(program, failure);
    return false;
  }
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  std::string_view line;
  while (LineReadTrimmed(reader, line) != 0) take(line);
  return true;
}

void addRegion(AppConfig& config, std::string_view line) {
  const std::size_t space = line.find_first_of(" \t");
  if (space == std::string_view::npos) return;
  std::string_view name = line.substr(space + 1);
  while (!name.empty() && IsSpace(name.front())) name.remove_prefix(1);
  FreightRegion* region = FreightRegionMake();
  region->code.assignLine(line.substr(0, space));
  region->name.assignLine(name);
  RecordAppend(config.regionCatalogue, config.regionCatalogueTail, region);
}

void addCard(AppConfig& config, std::string_view line) {
  if (line.empty() || line.front() == ';') return;
  CardEntry* card = CardEntryInit(nullptr);
  card->name.assignLine(line);
  RecordAppend(config.cardCatalogue, config.cardCatalogueTail, card);
}

}  // namespace

int RegionCatalogueRead(Program& program) {
  AppConfig& config = program.config;
  if (config.regionCatalogue != nullptr) return 0;
  readLines(program, "domain.dat", message::kRegionsError, [&](std::string_view line) { addRegion(config, line); });
  return config.regionCatalogue != nullptr ? 1 : 0;
}

int CardCatalogueRead(Program& program) {
  AppConfig& config = program.config;
  const CardEntry* before = config.cardCatalogueTail;
  readLines(program, "cc.dat", message::kCardsError, [&](std::string_view line) { addCard(config, line); });
  return config.cardCatalogueTail != before ? 1 : 0;
}

}  // namespace varlo
