#include "win32/task_dialog.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varlo {
namespace {

constexpr UINT kRunTask = WM_APP;

struct Task {
  std::string title;
  std::string text;
  const std::function<int(HWND)>& run;
  int result = 0;
};

// A dialog template in memory: words, with every item aligned to four bytes.
class Template {
 public:
  Template(short width, short height, WORD controls) {
    DLGTEMPLATE header{};
    header.style = WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_MODALFRAME | DS_CENTER | DS_SETFONT;
    header.cdit = controls;
    header.cx = width;
    header.cy = height;
    append(header);
    for (int i = 0; i < 3; ++i) words_.push_back(0);  // no menu, the ordinary class, no title yet
    words_.push_back(8);
    appendText(L"MS Shell Dlg");
  }
  void addLabel(int id, short x, short y, short width, short height, DWORD style) {
    if (words_.size() % 2 != 0) words_.push_back(0);
    DLGITEMTEMPLATE item{};
    item.style = WS_CHILD | WS_VISIBLE | style;
    item.x = x;
    item.y = y;
    item.cx = width;
    item.cy = height;
    item.id = static_cast<WORD>(id);
    append(item);
    constexpr WORD kStaticClass = 0x0082;
    for (const WORD word : {WORD{0xFFFF}, kStaticClass, WORD{0}, WORD{0}}) words_.push_back(word);
  }
  [[nodiscard]] const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  template <typename Record>
  void append(const Record& record) {
    static_assert(sizeof(Record) % sizeof(WORD) == 0);
    const auto* words = reinterpret_cast<const WORD*>(&record);
    words_.insert(words_.end(), words, words + sizeof(Record) / sizeof(WORD));
  }
  void appendText(const wchar_t* text) {
    do {
      words_.push_back(static_cast<WORD>(*text));
    } while (*text++ != 0);
  }

  std::vector<WORD> words_;
};

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM /*wParam*/, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    ::SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    const auto& task = *reinterpret_cast<const Task*>(lParam);
    ::SetWindowTextA(dialog, task.title.c_str());
    ::SetDlgItemTextA(dialog, kTaskText, task.text.c_str());
    ::PostMessageA(dialog, kRunTask, 0, 0);
    return TRUE;
  }
  if (message != kRunTask) return FALSE;
  ::UpdateWindow(dialog);
  auto& task = *reinterpret_cast<Task*>(::GetWindowLongPtrA(dialog, DWLP_USER));
  task.result = task.run(dialog);
  ::EndDialog(dialog, 1);
  return TRUE;
}

}  // namespace

int RunTaskDialog(HWND owner, std::string_view title, std::string_view text, const std::function<int(HWND)>& run) {
  Task task{.title = std::string(title), .text = std::string(text), .run = run};
  Template dialog(200, 44, 2);
  dialog.addLabel(kTaskText, 8, 8, 184, 10, SS_LEFT | SS_NOPREFIX);
  dialog.addLabel(kTaskCount, 8, 24, 184, 10, SS_LEFT);
  const INT_PTR ended = ::DialogBoxIndirectParamA(::GetModuleHandleA(nullptr), dialog.get(), owner, procedure,
                                                  reinterpret_cast<LPARAM>(&task));
  return ended == 1 ? task.result : run(nullptr);
}

void ShowTaskDialogCount(HWND dialog, int count) {
  ::SetDlgItemInt(dialog, kTaskCount, static_cast<UINT>(count), TRUE);
  ::UpdateWindow(::GetDlgItem(dialog, kTaskCount));
}

}  // namespace varlo
