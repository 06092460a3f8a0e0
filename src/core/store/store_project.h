// StoreProject: the open project.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "core/store/freight_record.h"
#include "core/store/node_pool.h"
#include "core/text/limits.h"
#include "core/text/text.h"

namespace varlo {

struct CardEntry;
struct SchemeRecord;
struct UserVariable;

// How the owner wants the tax values of regions, products and freight to be read.
struct TaxSettings {
  std::int32_t taxEnabled = 0;
  std::int32_t taxOption = 0;  // 0 product based, 1 region based
  Text freightTaxRate;         // percentage as typed
};

// Format version that this program writes.
inline constexpr std::int32_t kFileVersion = 107001;

struct StoreProject {
  // Another number for each project that was open in this run. What has to wait for the user keeps it, and looks
  // whether the project is still the same before it puts anything back.
  std::uint32_t serial = 0;

  Text projectFile;  // full path of the .stp file; null when no project is open
  Text projectDir;   // projectFile up to its last back slash
  Text cutFile;      // what the last save could not write completely; no backup is made of it
  Text webDir;       // target of the build
  Text storeTitle;
  TaxSettings tax;
  Text orderTemplate;  // texts of order.htm and confirm.htm of the project
  Text confirmTemplate;
  Text orderMessage;
  Text confirmMessage;
  Text currency;
  std::int32_t fileVersion = 0;  // of the file read last; kFileVersion after migration
  std::int32_t templateVersionOrder = 0;
  std::int32_t templateVersionConfirm = 0;         // written, never read
  std::array<Text, kTemplateNames> templateNames;  // used lately, newest first

  NodePool nodes;
  std::int32_t nodesRead = 0;                // by the last load, and by merges since
  StoreNode* root = nullptr;                 // first top-level node; the store's home page
  StoreNode* currentNode = nullptr;          // shown in the form
  StoreNode* treeNode = nullptr;             // selected in the tree; the list shows its children
  std::unique_ptr<StoreNode> clipboardNode;  // private copy, never linked; outlives the project
  StoreNode* dragNode = nullptr;
  StoreNode* dragList = nullptr;

  FreightRegion* regions = nullptr;
  FreightRegion* regionsTail = nullptr;
  FreightRegion* currentRegion = nullptr;
  std::int32_t currentMethod = 0;                   // 0..2
  std::unique_ptr<FreightMethod> freightClipboard;  // private copy; outlives the project
  std::array<Text, kFreightMethods> methodName;

  CardEntry* acceptedCards = nullptr;
  CardEntry* currentCard = nullptr;
  UserVariable* variables = nullptr;
  UserVariable* variablesTail = nullptr;
  UserVariable* currentVariable = nullptr;
  SchemeRecord* projectScheme = nullptr;
  std::int32_t dirty = 0;
};

}  // namespace varlo
