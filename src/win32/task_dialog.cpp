#include "win32/task_dialog.h"

namespace varlo {
namespace {

using namespace task;

constexpr Row kRows[] = {
    {{{.id = kText, .kind = Kind::Text, .options = Option::Plain}}},
    {{{.id = kCount, .kind = Kind::Text}}, 4},
};

}  // namespace

constinit const DialogShape TaskDialog::kShape{.id = kWindow, .size = {300, 68}, .rows = kRows};

void TaskDialog::opened(Dialog& dialog) {
  window_ = &dialog;
  dialog.setTitle(title_);
  dialog.setText(kText, text_);
  dialog.post(kWindow);
}

void TaskDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.notice != Notice::Posted) return;
  dialog.repaint(kText);
  dialog.repaint(kCount);
  hasRun_ = true;
  result_ = run_();
  dialog.end(1);
}

void TaskDialog::showCount(int count) {
  if (window_ == nullptr) return;
  window_->setText(kCount, std::to_string(count));
  window_->repaint(kCount);
}

}  // namespace varlo
