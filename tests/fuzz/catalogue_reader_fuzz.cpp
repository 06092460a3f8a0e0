// Reads any bytes as scheme.dat and scheme.ini, parted at the first line "---". The list must be
// two levels deep with true links, and what SchemeCatalogueSave writes must not grow when it is read and
// written again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/program/scheme.h"
#include "core/store/string_item.h"
#include "persist/installation/scheme_catalogue.h"
#include "tests/support/test_program.h"

namespace {

using varlo::SchemeRecord;
using varlo::test::TestProgram;

void require(bool holds) {
  if (!holds) std::abort();
}

// Checks the links of a list whose first record has `before` as prev; gives its length.
std::size_t checkList(const SchemeRecord* head, const SchemeRecord* before, bool mayHoldSchemes) {
  std::size_t count = 0;
  for (; head != nullptr; head = head->next) {
    require(head->prev == before);
    require(mayHoldSchemes || head->schemes == nullptr);
    for (const varlo::StringItem* file = head->files; file != nullptr; file = file->next) {
      require(file->next == nullptr || file->next->prev == file);
    }
    checkList(head->schemes, head, false);
    before = head;
    ++count;
  }
  return count;
}

std::string savedCatalogue(TestProgram& t) {
  require(varlo::SchemeCatalogueSave(t.program) == 1);
  return t.files.content("scheme.ini").value();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t parted = input.find("\n---\n");
  TestProgram t;
  t.files.put("scheme.dat", input.substr(0, parted));
  t.files.put("scheme.ini", parted == std::string_view::npos ? "" : input.substr(parted + 5));
  varlo::SchemeCatalogueRead(t.program, "scheme.dat");
  checkList(t.config().schemeStyles, nullptr, true);
  varlo::SchemeCatalogueRead(t.program, "scheme.ini");
  checkList(t.config().schemeStyles, nullptr, true);
  for (const SchemeRecord* style = t.config().schemeStyles; style != nullptr; style = style->next) {
    for (const SchemeRecord* scheme = style->schemes; scheme != nullptr; scheme = scheme->next) {
      varlo::SchemeFindByPath(t.config(), t.config().schemeStyles, varlo::SchemePath(scheme));
      require(varlo::SchemeLocate(t.config(), t.config().schemeStyles, scheme, 0) == 1);
      require(t.config().currentScheme == scheme && t.config().currentStyle == style);
      break;  // the first of each style is enough
    }
  }

  const std::string first = savedCatalogue(t);
  TestProgram again;
  again.files.put("scheme.ini", first);
  varlo::SchemeCatalogueRead(again.program, "scheme.ini");
  require(savedCatalogue(again).size() <= first.size() + 200);
  require(t.files.openHandles() == 0 && t.screen.boxes.empty());
  return 0;
}
