// Reading a project from a text, and saving it to one.
#pragma once

#include <string>
#include <string_view>

#include "core/text/line_reader.h"
#include "core/text/open_file.h"
#include "persist/project/project_load.h"
#include "persist/project/project_parse.h"
#include "persist/project/project_save.h"
#include "tests/support/test_program.h"

namespace varlo::test {

inline constexpr const char* kProjectPath = "C:\\Varlo\\Projects\\Shop\\Shop.stp";

// Opens a project with this text, as the program does.
inline int LoadText(TestProgram& t, std::string_view text) {
  t.files.put(kProjectPath, text);
  t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
  t.project().projectFile.assign(kProjectPath);
  return ProjectLoad(t.program);
}

// The same with the version line of a current project in front, so that nothing migrates.
inline int LoadCurrent(TestProgram& t, std::string_view text) {
  return LoadText(t, std::string("VERSION=107001\n").append(text));
}

// Parses a text into the open project; gives the head of the list read.
inline StoreNode* ParseText(TestProgram& t, std::string_view text, StoreNode* parent, bool merging) {
  t.files.put("parse.stp", text);
  OpenFile file(t.files, t.files.openRead("parse.stp"));
  LineReader reader(t.files, file.handle());
  return ProjectParse(t.program, reader, parent, nullptr, merging);
}

// Saves the open project and gives the text of its file, whether or not the save succeeds.
inline std::string SaveText(TestProgram& t) {
  t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
  t.project().projectFile.assign(kProjectPath);
  static_cast<void>(ProjectSave(t.program));
  return t.files.content(kProjectPath).value_or("(no file)");
}

}  // namespace varlo::test
