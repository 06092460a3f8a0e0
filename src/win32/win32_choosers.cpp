// The common dialogs of Windows, as the screen offers them.

#include <windows.h>

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "win32/others_disabled.h"
#include "win32/win32_screen.h"

namespace varlo {

// The program's relative names depend on the working folder, so the chooser must not change it.
std::optional<std::string> Win32Screen::chooseFile(const FileChooserRequest& request) {
  std::array<char, 4 * MAX_PATH> path{};
  const std::string title(request.title);
  const std::string extension(request.extension);
  std::string filter(request.filter);
  std::replace(filter.begin(), filter.end(), '$', '\0');
  OPENFILENAMEA chooser{};
  chooser.lStructSize = sizeof chooser;
  chooser.hwndOwner = boxOwner();
  const OthersDisabled others(chooser.hwndOwner);
  chooser.lpstrFilter = filter.c_str();
  chooser.lpstrFile = path.data();
  chooser.nMaxFile = static_cast<DWORD>(path.size());
  chooser.lpstrInitialDir = request.folder.c_str();
  chooser.lpstrTitle = title.c_str();
  chooser.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  chooser.Flags = OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_EXPLORER;
  if (request.mustExist) chooser.Flags |= OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST;
  if (::GetOpenFileNameA(&chooser) == 0) return std::nullopt;
  return std::string(path.data());
}

std::optional<std::string> Win32Screen::chooseFolder(std::string_view title) {
  const std::string shownTitle(title);
  std::array<char, MAX_PATH> path{};
  BROWSEINFOA chooser{};
  chooser.hwndOwner = boxOwner();
  const OthersDisabled others(chooser.hwndOwner);
  chooser.lpszTitle = shownTitle.c_str();
  chooser.ulFlags = BIF_RETURNONLYFSDIRS;
  const PIDLIST_ABSOLUTE chosen = ::SHBrowseForFolderA(&chooser);
  if (chosen == nullptr) return std::nullopt;
  const bool hasPath = ::SHGetPathFromIDListA(chosen, path.data()) != FALSE;
  ::CoTaskMemFree(chosen);
  if (!hasPath) return std::nullopt;
  return std::string(path.data());
}

std::optional<std::uint32_t> Win32Screen::chooseColour(std::uint32_t start, CustomColours& custom) {
  std::array<COLORREF, 16> colours{};
  static_assert(sizeof colours == sizeof custom);
  std::memcpy(colours.data(), custom.data(), sizeof custom);
  CHOOSECOLORA chooser{};
  chooser.lStructSize = sizeof chooser;
  chooser.hwndOwner = boxOwner();
  const OthersDisabled others(chooser.hwndOwner);
  chooser.rgbResult = start;
  chooser.lpCustColors = colours.data();
  chooser.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
  const bool chosen = ::ChooseColorA(&chooser) != 0;
  std::memcpy(custom.data(), colours.data(), sizeof custom);
  if (!chosen) return std::nullopt;
  return chooser.rgbResult;
}

}  // namespace varlo
