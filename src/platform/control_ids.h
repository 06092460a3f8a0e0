// The numbers of dialogs and their controls, shared by the logic and by the window's resources.
#pragma once

#include "platform/dialog.h"

namespace varlo {

namespace dialog {

inline constexpr int kMain = 900;
inline constexpr int kPreferences = 1000;
inline constexpr int kSaveAs = 1100;
inline constexpr int kRestore = 1200;
inline constexpr int kStoreBuild = 1300;
inline constexpr int kFirstBuild = 1400;

// The pages of the tabs.
inline constexpr int kInventoryPage = 2000;
inline constexpr int kTemplatePage = 2100;
inline constexpr int kFreightPage = 2200;
inline constexpr int kOrderFormPage = 2300;
inline constexpr int kConfirmationPage = 2400;
inline constexpr int kLayoutPage = 2500;
inline constexpr int kVariablesPage = 2600;

}  // namespace dialog

namespace control {

inline constexpr ControlId kOk = 1;
inline constexpr ControlId kCancel = 2;
inline constexpr ControlId kHelp = 9;

namespace main {
inline constexpr ControlId kTree = 901;
inline constexpr ControlId kItemList = 902;
inline constexpr ControlId kTabs = 903;
inline constexpr ControlId kStatusBar = 904;
inline constexpr ControlId kToolbar = 905;
inline constexpr ControlId kPreview = 911;
inline constexpr ControlId kProduct = 912;
inline constexpr ControlId kCategory = 913;
inline constexpr ControlId kShelf = 914;
inline constexpr ControlId kList = 915;
inline constexpr ControlId kBuild = 916;
}  // namespace main

namespace preferences {
inline constexpr ControlId kBrowser = 1001;
inline constexpr ControlId kProxy = 1002;
inline constexpr ControlId kPort = 1003;
inline constexpr ControlId kServer = 1004;
inline constexpr ControlId kBrowseServers = 1005;
inline constexpr ControlId kWebDirectory = 1006;
inline constexpr ControlId kDirectoryLink = 1007;
}  // namespace preferences

namespace save_as {
inline constexpr ControlId kName = 1101;
inline constexpr ControlId kBrowse = 1102;
}  // namespace save_as

namespace restore {
inline constexpr ControlId kList = 1201;
}  // namespace restore

namespace store_build {
inline constexpr ControlId kBuild = kOk;
inline constexpr ControlId kDirectory = 1301;
inline constexpr ControlId kBrowse = 1302;
inline constexpr ControlId kTitle = 1303;
inline constexpr ControlId kLog = 1304;
inline constexpr ControlId kProgress = 1305;
inline constexpr ControlId kLabel = 1306;
}  // namespace store_build

namespace first_build {
inline constexpr ControlId kDirectory = 1401;
inline constexpr ControlId kTitle = 1402;
}  // namespace first_build

// A label has the number of its field and 50 more. The six custom fields follow each other.
namespace inventory {
inline constexpr ControlId kTitle = 2001;
inline constexpr ControlId kPageTitle = 2002;
inline constexpr ControlId kFileName = 2003;
inline constexpr ControlId kProductCode = 2004;
inline constexpr ControlId kMetaKeywords = 2005;
inline constexpr ControlId kMetaDescription = 2006;
inline constexpr ControlId kImage = 2007;
inline constexpr ControlId kImageLink = 2008;
inline constexpr ControlId kTemplate = 2009;
inline constexpr ControlId kCost = 2010;
inline constexpr ControlId kWeight = 2011;
inline constexpr ControlId kFreight = 2012;
inline constexpr ControlId kTax = 2013;
inline constexpr ControlId kLabel1 = 2014;
inline constexpr ControlId kValue1 = 2020;
inline constexpr ControlId kDescription = 2026;
inline constexpr ControlId kKeywordManager = 2031;
inline constexpr ControlId kChooseImage = 2032;
inline constexpr ControlId kShowImage = 2033;
inline constexpr ControlId kChooseImageLink = 2034;
inline constexpr ControlId kShowImageLink = 2035;
inline constexpr ControlId kPreview = 2036;
inline constexpr ControlId kBuild = 2037;
}  // namespace inventory

}  // namespace control
}  // namespace varlo
