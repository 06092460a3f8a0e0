// The numbers of dialogs and their controls, shared by the logic and by the window's resources.
#pragma once

#include "platform/dialog.h"

namespace varlo {

namespace dialog {

inline constexpr int kPreferences = 1000;
inline constexpr int kSaveAs = 1100;
inline constexpr int kRestore = 1200;

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

}  // namespace control
}  // namespace varlo
