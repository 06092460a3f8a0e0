#include "win32/control_notice.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace varlo {
namespace {

struct CodeMeaning {
  ControlKind kind;
  int code;
  Notice notice;
};

constexpr std::array kMeanings{
    CodeMeaning{ControlKind::Edit, EN_CHANGE, Notice::Changed},
    CodeMeaning{ControlKind::Edit, EN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::Edit, EN_KILLFOCUS, Notice::LostFocus},
    CodeMeaning{ControlKind::RichEdit, EN_CHANGE, Notice::Changed},
    CodeMeaning{ControlKind::RichEdit, EN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::RichEdit, EN_KILLFOCUS, Notice::LostFocus},
    CodeMeaning{ControlKind::ComboBox, CBN_EDITCHANGE, Notice::Changed},
    CodeMeaning{ControlKind::ComboBox, CBN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::ComboBox, CBN_KILLFOCUS, Notice::LostFocus},
    CodeMeaning{ControlKind::ComboBox, CBN_SELCHANGE, Notice::RowSelected},
    CodeMeaning{ControlKind::ListBox, LBN_SELCHANGE, Notice::RowSelected},
    CodeMeaning{ControlKind::ListBox, LBN_DBLCLK, Notice::DoubleClicked},
    CodeMeaning{ControlKind::ListBox, LBN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::ListBox, LBN_KILLFOCUS, Notice::LostFocus},
    CodeMeaning{ControlKind::Button, BN_CLICKED, Notice::Clicked},
    CodeMeaning{ControlKind::Button, BN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::Button, BN_KILLFOCUS, Notice::LostFocus},
};

bool selectionChanged(const NMHDR& header) {
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  return (change.uChanged & LVIF_STATE) != 0 && ((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0;
}

}  // namespace

Notice NoticeOfCommand(ControlKind kind, int code) {
  const auto found = std::find_if(kMeanings.begin(), kMeanings.end(), [&](const CodeMeaning& meaning) {
    return meaning.kind == kind && meaning.code == code;
  });
  return found == kMeanings.end() ? Notice::Other : found->notice;
}

std::optional<Notice> NoticeOfList(const NMHDR& header) {
  switch (header.code) {
    case LVN_ITEMCHANGED:
      if (selectionChanged(header)) return Notice::RowSelected;
      return std::nullopt;
    case LVN_ODSTATECHANGED:
      return Notice::RowSelected;
    case NM_CLICK:
      return Notice::Clicked;
    case NM_DBLCLK:
      return Notice::DoubleClicked;
    case NM_SETFOCUS:
      return Notice::GotFocus;
    case NM_KILLFOCUS:
      return Notice::LostFocus;
    default:
      return std::nullopt;
  }
}

}  // namespace varlo
