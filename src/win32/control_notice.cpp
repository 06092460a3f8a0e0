#include "win32/control_notice.h"

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
    CodeMeaning{ControlKind::ComboBox, CBN_SELCHANGE, Notice::SelectionChanged},
    CodeMeaning{ControlKind::ComboBox, CBN_DROPDOWN, Notice::Clicked},
    CodeMeaning{ControlKind::ComboBox, CBN_CLOSEUP, Notice::Clicked},
    CodeMeaning{ControlKind::ListBox, LBN_SELCHANGE, Notice::SelectionChanged},
    CodeMeaning{ControlKind::ListBox, LBN_DBLCLK, Notice::DoubleClicked},
    CodeMeaning{ControlKind::ListBox, LBN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::ListBox, LBN_KILLFOCUS, Notice::LostFocus},
    CodeMeaning{ControlKind::Button, BN_CLICKED, Notice::Clicked},
    CodeMeaning{ControlKind::Button, BN_SETFOCUS, Notice::GotFocus},
    CodeMeaning{ControlKind::Button, BN_KILLFOCUS, Notice::LostFocus},
};

}  // namespace

std::optional<Notice> NoticeOfCommand(ControlKind kind, int code) {
  const auto found = std::find_if(kMeanings.begin(), kMeanings.end(), [&](const CodeMeaning& meaning) {
    return meaning.kind == kind && meaning.code == code;
  });
  if (found == kMeanings.end()) return std::nullopt;
  return found->notice;
}

}  // namespace varlo
