// The project that the reliability tests save: large enough for several writes, with ten backups.
#pragma once

#include <string>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/record.h"
#include "persist/life/project_life.h"
#include "tests/support/tree.h"

namespace varlo::test {

// The text of the shop in a state, as its file and its backups hold it.
inline std::string ShopText(const std::string& state) {
  std::string text = "TIME=1\nVERSION=107001\nOWNER=Varlo PRO\nNODE0=Home " + state + "\nSTATUS=0\nMOD=0\n#BRANCH\n";
  for (int i = 0; i < 400; ++i) {
    text += "NODE1=Product " + std::to_string(i) + "\nSTATUS=0\nMOD=0\nDESC=" + std::string(300, 'd') + "\nCOST=5\n";
  }
  return text + "#EOB\nVAR=$A|1\nOMESSAGE=\nCMESSAGE=\nVO=0\nVC=0\nTAXD=0\nTAXO=0\nCURR=$\nCC=1:" + state + "\n";
}

// What a user does before a save: the tree changes, and the layout has a scheme of the user's own.
inline void ChangeShop(Program& program) {
  program.project.root->title.assign("Home changed");
  SchemeRecord* style = SchemeInit(nullptr);
  style->name.assign("Mine");
  style->type = kSchemeOwn;
  SchemeRecord* last = RecordLast(program.config.schemeStyles);
  RecordAppend(program.config.schemeStyles, last, style);
}

}  // namespace varlo::test
