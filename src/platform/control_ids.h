// The numbers of dialogs and their controls, shared by the logic and by the window's resources.
#pragma once

#include "platform/dialog.h"

namespace varlo {

namespace dialog {

inline constexpr int kPreferences = 1000;
inline constexpr int kSaveAs = 1100;
inline constexpr int kRestore = 1200;
inline constexpr int kStoreBuild = 1300;
inline constexpr int kFirstBuild = 1400;

}  // namespace dialog

namespace control {

inline constexpr ControlId kOk = 1;
inline constexpr ControlId kCancel = 2;
inline constexpr ControlId kHelp = 9;

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

}  // namespace control
}  // namespace varlo
