// Reads any bytes as config.ini, then as server.ini over it. What ConfigSave writes must read back as the
// same settings, and write the same bytes again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "persist/installation/config_file.h"
#include "persist/installation/scheme_catalogue.h"
#include "tests/support/test_program.h"

namespace {

using varlo::test::TestProgram;

void require(bool holds) {
  if (!holds) std::abort();
}

std::string savedConfig(TestProgram& t) {
  require(varlo::ConfigSave(t.program) == 1);
  return t.files.content("config.ini").value();
}

// A value that would read as another key, or is cut or trimmed, does not come back as it went.
bool survivesItsFile(const std::string& saved, const TestProgram& t) {
  const auto& config = t.program.config;
  for (const varlo::Text* text :
       {&config.browser, &config.proxy, &config.orderServer, &config.accountId, &config.lastDir[0],
        &config.lastDir[1], &config.lastDir[2], &config.lastDir[3], &t.program.project.projectFile}) {
    const std::string_view value = text->view();
    if (value.find('=') != std::string_view::npos || value.size() > 3000) return false;
  }
  return saved.find('\0') == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  TestProgram t;
  t.files.put("config.ini", input);
  t.files.put("server.ini", input);
  require(varlo::ConfigRead(t.program, "config.ini") == 1);
  require(varlo::ConfigRead(t.program, "gone.ini") == 0);
  if (t.files.content("server.ini")) varlo::ConfigRead(t.program, "server.ini");
  require(t.config().currentStyle == t.config().schemeStyles || !t.files.content("config.ini"));
  const std::string saved = savedConfig(t);
  require(t.files.openHandles() == 0 && t.screen.boxes.empty());
  if (!survivesItsFile(saved, t)) return 0;

  TestProgram again;
  again.files.put("config.ini", saved);
  varlo::ConfigRead(again.program, "config.ini");
  require(savedConfig(again) == saved);
  return 0;
}
