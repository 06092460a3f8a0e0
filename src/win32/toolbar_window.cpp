#include "win32/toolbar_window.h"

#include <vector>

#include "platform/main_window.h"
#include "win32/resource_ids.h"
#include "win32/screen_scale.h"

namespace varlo {
namespace {

constexpr int kImageSize = 16;
constexpr COLORREF kTransparent = RGB(255, 0, 255);

HIMAGELIST loadImages(const ScaledResource& strip) {
  return ::ImageList_LoadImageA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(static_cast<WORD>(strip.id)),
                                kImageSize * strip.percent / 100, 1, kTransparent, IMAGE_BITMAP, LR_CREATEDIBSECTION);
}

TBBUTTON toolButton(const ToolbarButton& button) {
  TBBUTTON tool{};
  if (button.command == Command::None) {
    tool.fsStyle = BTNS_SEP;
    return tool;
  }
  tool.iBitmap = button.image;
  tool.idCommand = static_cast<int>(button.command);
  tool.fsState = TBSTATE_ENABLED;
  tool.fsStyle = BTNS_BUTTON;
  return tool;
}

// The toolbar goes with its images.
LRESULT CALLBACK freeImages(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR images) {
  const LRESULT result = ::DefSubclassProc(toolbar, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    ::RemoveWindowSubclass(toolbar, freeImages, id);
    ::ImageList_Destroy(reinterpret_cast<HIMAGELIST>(images));
  }
  return result;
}

}  // namespace

HIMAGELIST LoadItemImages() {
  return loadImages(ChooseScaledResource(RESOURCE_ITEM_IMAGES, RESOURCE_ITEM_IMAGES_150, RESOURCE_ITEM_IMAGES_200));
}

HWND CreateToolbarWindow(HWND parent, std::span<const ToolbarButton> buttons) {
  constexpr DWORD kStyle =
      WS_CHILD | TBSTYLE_TOOLTIPS | TBSTYLE_FLAT | CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER;
  const HWND toolbar = ::CreateWindowExA(0, TOOLBARCLASSNAMEA, "Toolbar", kStyle, 0, 0, 0, 0, parent,
                                         reinterpret_cast<HMENU>(INT_PTR{main_window::kToolbar}),
                                         ::GetModuleHandleA(nullptr), nullptr);
  if (toolbar == nullptr) return nullptr;
  ::SendMessageA(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  const HIMAGELIST images = loadImages(
      ChooseScaledResource(RESOURCE_TOOLBAR_IMAGES, RESOURCE_TOOLBAR_IMAGES_150, RESOURCE_TOOLBAR_IMAGES_200));
  ::SendMessageA(toolbar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
  ::SetWindowSubclass(toolbar, freeImages, 1, reinterpret_cast<DWORD_PTR>(images));
  std::vector<TBBUTTON> tools;
  for (const ToolbarButton& button : buttons) tools.push_back(toolButton(button));
  ::SendMessageA(toolbar, TB_ADDBUTTONSA, tools.size(), reinterpret_cast<LPARAM>(tools.data()));
  return toolbar;
}

}  // namespace varlo
