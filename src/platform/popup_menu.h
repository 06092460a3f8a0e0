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

// A line between entries: one without a label.
[[nodiscard]] inline MenuEntry MenuSeparator() { return {}; }
[[nodiscard]] inline bool IsSeparator(const MenuEntry& entry) { return entry.label.empty(); }

}  // namespace varlo
