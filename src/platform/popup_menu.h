// A popup menu, built fresh each time it is shown.
#pragma once

#include <string>
#include <vector>

#include "platform/command.h"

namespace varlo {

struct MenuEntry {
  std::string label;  // with "&" before its mnemonic
  Command command = Command::None;
  bool enabled = true;
  std::vector<MenuEntry> entries{};  // of a submenu, which sends no command itself
};

using PopupMenu = std::vector<MenuEntry>;

}  // namespace varlo
