// A screen that records what it is shown and answers as told.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/screen.h"

namespace varlo::test {

struct ShownBox {
  std::string text;
  std::string title;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  bool operator==(const ShownBox&) const = default;
};

class FakeScreen : public Screen {
 public:
  FakeScreen();
  ~FakeScreen() override;

  std::vector<ShownBox> boxes;     // in the order in which they were shown
  std::deque<Answer> answers;      // for the boxes to come; without one it is Ok or No
  std::vector<std::string> tasks;  // texts of the task dialogs
  std::vector<int> taskCounts;     // counts shown in them
  std::vector<bool> waitCursor;    // changes of the wait cursor
  int inputDrops = 0;              // times that waiting input was forgotten
  std::vector<FileChooserRequest> fileRequests;
  std::deque<std::string> files;  // to be chosen; without one the chooser is cancelled
  std::vector<std::string> folderTitles;
  std::deque<std::string> folders;  // to be chosen; without one the chooser is cancelled
  std::vector<std::uint32_t> colourStarts;
  std::deque<std::uint32_t> colours;  // to be chosen; without one the chooser is cancelled
  std::function<void(CustomColours&)> onColours;
  std::vector<Command> posted;  // commands that were queued
  std::vector<int> dialogs;     // numbers of the dialogs that were run or opened
  // Plays the user of a modal dialog; without it the dialog is cancelled at once.
  std::function<int(DialogLogic& logic)> onDialog;
  // Makes the window of a modeless dialog; without it none can be opened.
  std::function<Dialog*(const std::shared_ptr<DialogLogic>& logic)> onOpenDialog;
  std::vector<PopupMenu> menus;                     // that were shown
  std::deque<Command> chosenFromMenus;              // without one the menu is left
  std::function<Command(const PopupMenu&)> onMenu;  // plays the user of menus instead
  std::function<void()> whileWaiting;               // happens while a box, a chooser or a dialog waits

  Answer messageBox(const MessageBoxRequest& request) override {
    boxes.push_back({std::string(request.text), std::string(request.title), request.buttons, request.icon});
    wait();
    if (answers.empty()) return request.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  int runTask(std::string_view title, std::string_view text, const std::function<int()>& task) override {
    tasks.push_back(std::string(title).append(": ").append(text));
    return task();
  }
  void showTaskCount(int count) override { taskCounts.push_back(count); }
  void dropWaitingInput() override { ++inputDrops; }
  void setWaitCursor(bool on) override { waitCursor.push_back(on); }
  std::optional<std::string> chooseFile(const FileChooserRequest& request) override {
    fileRequests.push_back(request);
    wait();
    return takeFirst(files);
  }
  std::optional<std::string> chooseFolder(std::string_view title) override {
    folderTitles.emplace_back(title);
    wait();
    return takeFirst(folders);
  }
  std::optional<std::uint32_t> chooseColour(std::uint32_t start, CustomColours& custom) override {
    colourStarts.push_back(start);
    wait();
    if (onColours) onColours(custom);
    return takeFirst(colours);
  }
  int runDialog(DialogLogic& logic) override {
    dialogs.push_back(logic.shape().id);
    wait();
    return onDialog ? onDialog(logic) : 0;
  }
  Dialog* openDialog(std::shared_ptr<DialogLogic> logic) override {
    dialogs.push_back(logic->shape().id);
    return onOpenDialog ? onOpenDialog(logic) : nullptr;
  }
  Command popupMenu(const PopupMenu& menu) override {
    menus.push_back(menu);
    if (onMenu) return onMenu(menu);
    return takeFirst(chosenFromMenus).value_or(Command::None);
  }
  void postCommand(Command command) override { posted.push_back(command); }

 private:
  void wait() const {
    if (whileWaiting) whileWaiting();
  }
  template <typename Value>
  static std::optional<Value> takeFirst(std::deque<Value>& values) {
    if (values.empty()) return std::nullopt;
    Value first = values.front();
    values.pop_front();
    return first;
  }
};

}  // namespace varlo::test
