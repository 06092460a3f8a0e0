#include "win32/main_window.h"

#include <memory>

#include "platform/main_window.h"
#include "win32/dialog_host.h"
#include "win32/dialog_template.h"
#include "win32/resource_ids.h"
#include "win32/win32_main_window.h"

namespace varlo {
namespace {

// One run of the window.
struct Run {
  MainWindowLogic& logic;
  const std::function<void(HWND)>& created;
  std::unique_ptr<Win32MainWindow> window;
};

INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    Run& run = *reinterpret_cast<Run*>(lParam);
    run.created(window);
    run.window = std::make_unique<Win32MainWindow>(window, run.logic);
    ::SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(run.window.get()));
    run.window->open();
    // By itself it would come up once nothing waits, and so behind a box of the first command.
    ::ShowWindow(window, SW_SHOW);
    return TRUE;
  }
  auto* self = reinterpret_cast<Win32MainWindow*>(::GetWindowLongPtrA(window, DWLP_USER));
  if (self == nullptr) return FALSE;
  if (message == WM_NCDESTROY) ::SetWindowLongPtrA(window, DWLP_USER, 0);
  return self->handle(message, wParam, lParam);
}

}  // namespace

bool RunMainWindow(MainWindowLogic& logic, const std::function<void(HWND)>& created) {
  LoadControlClasses();
  Run run{.logic = logic, .created = created, .window = nullptr};
  const DialogTemplate window(logic.shape(), RESOURCE_MAIN_MENU);
  const INT_PTR result = ::DialogBoxIndirectParamA(::GetModuleHandleA(nullptr), window.get(), nullptr, procedure,
                                                   reinterpret_cast<LPARAM>(&run));
  return result == 1;
}

}  // namespace varlo
