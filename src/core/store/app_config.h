// AppConfig: what belongs to the installation and outlives a project.
#pragma once

#include <array>
#include <cstdint>

#include "core/text/text.h"

namespace varlo {

struct CardEntry;
struct FreightRecord;
struct SchemeRecord;

// Bits of viewFlags.
inline constexpr std::int32_t kViewToolbar = 1;
inline constexpr std::int32_t kViewButtons = 2;

struct AppConfig {
  Text browser;          // program that shows pages
  Text browserNetscape;  // found by detection, offered in the preferences
  Text browserExplorer;
  Text proxy;
  std::int32_t proxyPort = 0;
  Text orderServer;
  Text accountId;               // the owner's account at the order server
  std::array<Text, 4> lastDir;  // last directories of file choosers
  std::int32_t newWindow = 0;
  std::int32_t lowerCaseLinks = 1;
  std::int32_t viewFlags = kViewToolbar | kViewButtons;
  std::int32_t directoryLink = 1;
  std::int32_t display = 31;  // kept for the file, nothing reads it
  std::int32_t control = 0;   // kept for the file, nothing reads it
  std::int32_t helpAtStart = 1;
  std::int32_t uid = 0;  // number of the node made last

  SchemeRecord* schemeStyles = nullptr;
  SchemeRecord* currentStyle = nullptr;
  SchemeRecord* currentScheme = nullptr;
  // Where the catalogue files go on: behind this record, which is a style or a scheme.
  SchemeRecord* insertAfter = nullptr;
  bool insertAfterIsScheme = false;

  CardEntry* cardCatalogue = nullptr;
  CardEntry* cardCatalogueTail = nullptr;
  FreightRecord* regionCatalogue = nullptr;
  FreightRecord* regionCatalogueTail = nullptr;

  std::int32_t templateVersionOrder = 0;
  std::int32_t templateVersionConfirm = 0;
  Text schemeTemplateSet;
  std::int32_t firstRun = 0;
};

}  // namespace varlo
