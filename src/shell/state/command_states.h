// Which menu entries, buttons and controls can be used: one function from plain facts to plain states.
#pragma once

#include <cstdint>
#include <optional>

#include "core/store/store_node.h"
#include "shell/state/focus.h"
#include "shell/state/shell.h"

namespace varlo {

// What the states depend on.
struct CommandFacts {
  bool atWork = false;  // something has the program to itself
  bool projectOpen = false;
  bool treeFilled = false;  // there is a root
  bool dirty = false;
  std::optional<NodeKind> node{};    // kind of the current node, if there is one
  std::optional<NodeKind> parent{};  // kind of its parent
  bool nodeHasImage = false;
  Tab tab = Tab::Inventory;
  FocusPlace focus = FocusPlace::Elsewhere;

  bool nodeCopied = false;
  bool textSelected = false;   // in the rich edit that has the focus
  bool textToPaste = false;    // the system's clipboard offers text
  bool regionCurrent = false;  // of the Freight tab
  bool regionCopied = false;
  bool variableCurrent = false;  // of the Variables tab
  bool variableCopied = false;
  std::optional<std::int32_t> styleType{};   // of the current style of the Layout tab, if there is one
  std::optional<std::int32_t> schemeType{};  // of the current scheme
  bool styleCopied = false;
};

// Whether each can be used. What is not here always can.
struct CommandStates {
  struct Entries {      // of the main menu
    bool free = false;  // what otherwise always can be used, and changes something
    bool save = false;
    bool needProject = false;  // Save As, Merge, Import, Credit Cards, New Category
    bool needTree = false;     // Disable, Enable, New Product, New Shelf
    bool copy = false;
    bool paste = false;
    bool remove = false;
    bool find = false;
    bool selectAll = false;
    bool preview = false;
    bool build = false;
    bool operator==(const Entries&) const = default;
  } entries;
  struct Buttons {  // right of the tree
    bool preview = false;
    bool productAndBuild = false;
    bool holders = false;  // Category, Shelf, List
    bool operator==(const Buttons&) const = default;
  } buttons;
  struct Tools {  // of the toolbar
    bool free = false;
    bool save = false;
    bool product = false;
    bool holders = false;
    bool buildAndPreview = false;
    bool operator==(const Tools&) const = default;
  } tools;
  struct Page {
    bool fields = false;
    bool ownPage = false;  // Filename and Template
    bool imageLink = false;
    bool operator==(const Page&) const = default;
  } page;
  bool operator==(const CommandStates&) const = default;
};

[[nodiscard]] CommandStates commandStates(const CommandFacts& facts);

}  // namespace varlo
