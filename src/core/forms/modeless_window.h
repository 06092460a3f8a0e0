// ModelessWindow: a window that stays open beside the main window, of which there is one at a time.
#pragma once

#include <memory>
#include <utility>

#include "platform/dialog.h"
#include "platform/screen.h"

namespace varlo {

// What the logic of such a window adds: it knows its window while that is open. An override of the two calls these.
class ModelessLogic : public DialogLogic {
 public:
  void opened(Dialog& dialog) override { window_ = &dialog; }
  void closed() override { window_ = nullptr; }
  [[nodiscard]] Dialog* window() const { return window_; }

 private:
  Dialog* window_ = nullptr;
};

template <typename Logic>
class ModelessWindow {
 public:
  // Brings the window to the front, or opens it with a new logic made of `arguments`. False when it can't be shown.
  template <typename... Arguments>
  bool open(Screen& screen, Arguments&&... arguments) {
    if (isOpen()) {
      logic_->window()->bringToFront();
      return true;
    }
    logic_ = std::make_shared<Logic>(std::forward<Arguments>(arguments)...);
    return screen.openDialog(logic_) != nullptr;
  }
  [[nodiscard]] bool isOpen() const { return logic_ != nullptr && logic_->window() != nullptr; }
  // The logic of the window that is open, else null.
  [[nodiscard]] Logic* logic() const { return isOpen() ? logic_.get() : nullptr; }
  // Its window, else null.
  [[nodiscard]] Dialog* window() const { return isOpen() ? logic_->window() : nullptr; }
  void close() {
    if (isOpen()) logic_->window()->end(0);
  }

 private:
  std::shared_ptr<Logic> logic_;
};

}  // namespace varlo
