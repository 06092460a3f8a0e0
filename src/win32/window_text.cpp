#include "win32/window_text.h"

#include <commctrl.h>

#include <array>
#include <utility>

namespace varlo {

std::string WindowText(HWND window) {
  std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)), '\0');
  if (text.empty()) return text;
  text.resize(static_cast<std::size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

ControlKind KindOf(HWND control) {
  static constexpr std::array<std::pair<const char*, ControlKind>, 6> kClasses{
      {{"Edit", ControlKind::Edit},
       {"RICHEDIT", ControlKind::RichEdit},
       {"ComboBox", ControlKind::ComboBox},
       {"ListBox", ControlKind::ListBox},
       {"Button", ControlKind::Button},
       {WC_LISTVIEWA, ControlKind::Columns}}};
  std::array<char, 64> name{};
  ::GetClassNameA(control, name.data(), static_cast<int>(name.size()));
  for (const auto& [className, kind] : kClasses) {
    if (::lstrcmpiA(name.data(), className) == 0) return kind;
  }
  return ControlKind::Other;
}

}  // namespace varlo
