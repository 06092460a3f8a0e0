// Reads any bytes as domain.dat, cc.dat and version.ini, and its lines as names for the file name set.
// Every region has a code without white space and all three methods, every card a name, and of names in one
// case only those that were added are found.
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>

#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/text/text_edit.h"
#include "persist/installation/list_files.h"
#include "persist/installation/scheme_catalogue.h"
#include "persist/project/file_name_set.h"
#include "tests/support/test_program.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void checkRegions(const varlo::AppConfig& config, int result) {
  require((config.regionCatalogue != nullptr) == (result == 1));
  const varlo::FreightRegion* before = nullptr;
  for (const varlo::FreightRegion* region = config.regionCatalogue; region != nullptr; region = region->next) {
    require(region->prev == before);
    require(region->code.view().find_first_of(" \t") == std::string_view::npos);
    for (const varlo::FreightMethod* method : region->method) require(method != nullptr);
    before = region;
  }
  require(before == config.regionCatalogueTail);
}

void checkCards(const varlo::AppConfig& config) {
  const varlo::CardEntry* before = nullptr;
  for (const varlo::CardEntry* card = config.cardCatalogue; card != nullptr; card = card->next) {
    require(card->prev == before && card->name.isSet() && !card->name.view().starts_with(';'));
    before = card;
  }
  require(before == config.cardCatalogueTail);
}

// Among names of one case only those that were added are found. One that was added may be missed: a name
// that ends where two longer ones part finds a node there, and leaves it without a value.
void checkNames(std::string_view input) {
  varlo::FileNameSet set;
  std::set<std::string> added;
  for (std::size_t at = 0; at < input.size();) {
    const std::size_t end = std::min(input.find('\n', at), input.size());
    std::string name(input.substr(at, end - at));
    name.resize(std::min(name.find('\0'), name.size()));
    varlo::TextLower(name);
    at = end + 1;
    require(varlo::FileNameSetFind(set, name.c_str()) == 0 || added.contains(name));
    require(varlo::FileNameSetAdd(set, name.c_str(), 1) != nullptr);
    added.insert(name);
  }
  varlo::FileNameSetFree(set);
  require(varlo::FileNameSetFind(set, "a") == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  varlo::test::TestProgram t;
  for (const char* name : {"domain.dat", "cc.dat", "version.ini"}) t.files.put(name, input);
  checkRegions(t.config(), varlo::RegionCatalogueRead(t.program));
  require(varlo::RegionCatalogueRead(t.program) == 0 || t.config().regionCatalogue == nullptr);
  varlo::CardCatalogueRead(t.program);
  checkCards(t.config());
  require(varlo::TemplateVersionsRead(t.program) == 1);
  checkNames(input);
  require(t.files.openHandles() == 0 && t.screen.boxes.empty());
  return 0;
}
