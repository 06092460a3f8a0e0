#include "win32/dialog_controls.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "win32/resource_ids.h"
#include "win32/screen_scale.h"
#include "win32/window_text.h"

namespace varlo {
namespace {

struct ControlClass {
  Kind kind;
  const char* name;
  DWORD style;
  DWORD extendedStyle;
};

constexpr DWORD kList = LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS | WS_TABSTOP;
constexpr DWORD kTree = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_TABSTOP;
constexpr DWORD kCombo = CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP;
constexpr DWORD kRich =
    ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | ES_NOHIDESEL | WS_VSCROLL | WS_BORDER | WS_TABSTOP;
constexpr DWORD kListBox = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP;

constexpr ControlClass kClasses[] = {
    {Kind::Text, "STATIC", 0, 0},
    {Kind::Edit, "EDIT", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {Kind::Lines, "EDIT", ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {Kind::RichEdit, "RICHEDIT", kRich, 0},
    {Kind::Combo, "COMBOBOX", CBS_DROPDOWN | kCombo, 0},
    {Kind::DropList, "COMBOBOX", CBS_DROPDOWNLIST | kCombo, 0},
    {Kind::Check, "BUTTON", BS_AUTOCHECKBOX | BS_NOTIFY | WS_TABSTOP, 0},
    {Kind::Radio, "BUTTON", BS_AUTORADIOBUTTON | BS_NOTIFY | WS_TABSTOP, 0},
    {Kind::Button, "BUTTON", BS_NOTIFY | WS_TABSTOP, 0},
    {Kind::Group, "BUTTON", BS_GROUPBOX, 0},
    {Kind::ListBox, "LISTBOX", kListBox, WS_EX_CLIENTEDGE},
    {Kind::List, WC_LISTVIEWA, kList, WS_EX_CLIENTEDGE},
    {Kind::Progress, PROGRESS_CLASSA, WS_BORDER, 0},
    {Kind::Picture, "STATIC", SS_OWNERDRAW, WS_EX_STATICEDGE},
    {Kind::Swatch, "BUTTON", BS_OWNERDRAW | BS_NOTIFY | WS_TABSTOP, 0},
    {Kind::StatusBar, STATUSCLASSNAMEA, SBARS_SIZEGRIP, 0},
    {Kind::Rule, "STATIC", SS_ETCHEDHORZ, 0},
    {Kind::Icon, "STATIC", SS_ICON, 0},
    {Kind::Tree, WC_TREEVIEWA, kTree | WS_BORDER, 0},
    {Kind::ItemList, WC_LISTVIEWA, (kList & ~DWORD{LVS_OWNERDATA}) | WS_BORDER, 0},
    {Kind::Tabs, WC_TABCONTROLA, WS_TABSTOP | WS_CLIPSIBLINGS, 0},
};

struct OptionStyle {
  Kind kind;
  Option option;
  DWORD style;
};

constexpr OptionStyle kOptionStyles[] = {
    {Kind::Text, Option::RightLabel, SS_RIGHT},
    {Kind::Text, Option::CentredText, SS_CENTER},
    {Kind::Text, Option::Plain, SS_NOPREFIX | SS_ENDELLIPSIS},
    {Kind::Edit, Option::ReadOnly, ES_READONLY},
    {Kind::Lines, Option::ReadOnly, ES_READONLY},
    {Kind::RichEdit, Option::ReadOnly, ES_READONLY},
    {Kind::Lines, Option::Returns, ES_WANTRETURN},
    {Kind::List, Option::FixedHeadings, LVS_NOSORTHEADER},
    {Kind::Combo, Option::SortedRows, CBS_SORT},
    {Kind::DropList, Option::SortedRows, CBS_SORT},
    {Kind::ListBox, Option::SortedRows, LBS_SORT},
    {Kind::Button, Option::Default, BS_DEFPUSHBUTTON},
};

const ControlClass& classOf(Kind kind) {
  const auto* found = std::find_if(std::begin(kClasses), std::end(kClasses),
                                   [kind](const ControlClass& each) { return each.kind == kind; });
  return found == std::end(kClasses) ? kClasses[0] : *found;
}

DWORD styleOf(const PlacedControl& control) {
  DWORD style = WS_CHILD | classOf(control.kind).style;
  if (!Has(control.options, Option::Hidden)) style |= WS_VISIBLE;
  if (control.kind == Kind::List && !Has(control.options, Option::ManyRows)) style |= LVS_SINGLESEL;
  const bool isTick = control.kind == Kind::Check || control.kind == Kind::Radio;
  if (isTick && control.cell != nullptr && control.cell->lines > 1) style |= BS_MULTILINE | BS_TOP;
  for (const OptionStyle& each : kOptionStyles) {
    if (each.kind == control.kind && Has(control.options, each.option)) style |= each.style;
  }
  return style;
}

// What a control is made with as its text: its own, or for a screen reader that of an unseen label.
std::string_view textOf(const PlacedControl& control) {
  const bool isOwn = control.kind == Kind::Text || control.kind == Kind::Check || control.kind == Kind::Radio ||
                     control.kind == Kind::Button || control.kind == Kind::Group || control.part == Part::SmallButton;
  const bool unseen = control.cell != nullptr && control.cell->labelWidth == kLabelUnseen;
  const bool named =
      unseen && (control.kind == Kind::List || control.kind == Kind::Tree || control.kind == Kind::ItemList ||
                 control.kind == Kind::Progress || control.kind == Kind::ListBox);
  return isOwn || named ? control.text : std::string_view();
}

// By itself a text of several lines that gets the focus by a key is selected as a whole, and the next key wipes it.
LRESULT CALLBACK keepCaret(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  const LRESULT result = ::DefSubclassProc(control, message, wParam, lParam);
  return message == WM_GETDLGCODE ? result & ~LRESULT{DLGC_HASSETSEL} : result;
}

HWND makeControl(HWND window, const PlacedControl& control, bool beginsGroup) {
  const ControlClass& kind = classOf(control.kind);
  const DWORD style = styleOf(control) | (beginsGroup ? DWORD{WS_GROUP} : DWORD{0});
  const HWND made = ::CreateWindowExA(
      kind.extendedStyle, kind.name, std::string(textOf(control)).c_str(), style, 0, 0, 0, 0, window,
      reinterpret_cast<HMENU>(INT_PTR{control.id == 0 ? -1 : control.id}), ::GetModuleHandleA(nullptr), nullptr);
  ::SendMessageA(made, WM_SETFONT, static_cast<WPARAM>(::SendMessageA(window, WM_GETFONT, 0, 0)), FALSE);
  if (control.kind == Kind::Lines || control.kind == Kind::RichEdit) ::SetWindowSubclass(made, keepCaret, 2, 0);
  if (control.kind == Kind::Icon) {
    const HICON icon = ::LoadIconA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(RESOURCE_PROGRAM_ICON));
    ::SendMessageA(made, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
  }
  return made;
}

// Arrow keys go round in a group: the radio buttons of one choice, or the buttons beside each other.
Kind groupOf(Kind kind) { return kind == Kind::Radio || kind == Kind::Button ? kind : Kind::None; }
bool beginsGroup(Kind before, Kind kind) { return groupOf(before) != groupOf(kind); }

// The height of a combo box is that of its field with the list dropped down.
int heightOf(const PlacedControl& control, HWND window) {
  constexpr int kRowsShown = 12;
  if (control.kind != Kind::Combo && control.kind != Kind::DropList) return control.place.height;
  return control.place.height + kRowsShown * static_cast<int>(::SendMessageA(window, CB_GETITEMHEIGHT, 0, 0));
}

Size clientSize(HWND window) {
  RECT client{};
  ::GetClientRect(window, &client);
  return {client.right, client.bottom};
}

}  // namespace

DialogControls::~DialogControls() { lists_.clear(); }

void DialogControls::clear() {
  for (auto& [id, list] : lists_) retired_.push_back(std::move(list));
  lists_.clear();
  for (const Made& made : made_) ::DestroyWindow(made.window);
  made_.clear();
  scrolled_ = 0;
}

void DialogControls::make(HWND window, const DialogShape& shape, DialogLogic* logic, const RowList::Teller& teller) {
  clear();
  window_ = window;
  shape_ = &shape;
  Kind before = Kind::None;
  for (const PlacedControl& control : LayOut(shape, clientSize(window), ScaledPixels(100))) {
    const HWND made = makeControl(window, control, beginsGroup(before, control.kind));
    before = control.kind;
    made_.push_back({control, made});
    if (control.kind == Kind::List && logic != nullptr) {
      lists_[control.id] =
          std::make_unique<RowList>(made, control.id, Has(control.options, Option::Marks), *logic, teller);
    }
  }
}

void DialogControls::layOut() {
  if (shape_ == nullptr || shape_->form == Form::Main || laying_) return;
  laying_ = true;
  Size size = clientSize(window_);
  int needed = LaidOutHeight(*shape_, size.width, ScaledPixels(100));
  if (shape_->form == Form::Page) {
    setScrollRange(needed, size.height);
    size = clientSize(window_);  // narrower with a scroll bar
    needed = LaidOutHeight(*shape_, size.width, ScaledPixels(100));
    setScrollRange(needed, size.height);
    size.height = std::max(size.height, needed);
  }
  const std::vector<PlacedControl> controls = LayOut(*shape_, size, ScaledPixels(100));
  HDWP moves = ::BeginDeferWindowPos(static_cast<int>(controls.size()));
  for (std::size_t i = 0; i < controls.size() && i < made_.size(); ++i) {
    made_[i].control.place = controls[i].place;
    if (made_[i].control.kind == Kind::StatusBar) {
      ::SendMessageA(made_[i].window, WM_SIZE, 0, 0);
      continue;
    }
    const Rectangle& place = controls[i].place;
    if (moves == nullptr) break;
    moves = ::DeferWindowPos(moves, made_[i].window, nullptr, place.left, place.top - scrolled_, place.width,
                             heightOf(controls[i], made_[i].window), SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (moves != nullptr) ::EndDeferWindowPos(moves);
  laying_ = false;
}

void DialogControls::setScrollRange(int height, int visible) {
  scrolled_ = std::clamp(scrolled_, 0, std::max(height - visible, 0));
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = height - 1;
  info.nPage = static_cast<UINT>(std::max(visible, 0));
  info.nPos = scrolled_;
  const bool wanted = height > visible;
  const bool shown = (::GetWindowLongPtrA(window_, GWL_STYLE) & WS_VSCROLL) != 0;
  if (wanted) ::SetScrollInfo(window_, SB_VERT, &info, TRUE);
  if (wanted != shown) ::ShowScrollBar(window_, SB_VERT, wanted ? TRUE : FALSE);
}

void DialogControls::scrollTo(int position) {
  const int before = scrolled_;
  scrolled_ = std::max(position, 0);
  layOut();
  if (scrolled_ != before) ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void DialogControls::scroll(int code) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(window_, SB_VERT, &info);
  const int page = static_cast<int>(info.nPage);
  switch (code) {
    case SB_LINEUP:
      return scrollLines(-1);
    case SB_LINEDOWN:
      return scrollLines(1);
    case SB_PAGEUP:
      return scrollTo(scrolled_ - page);
    case SB_PAGEDOWN:
      return scrollTo(scrolled_ + page);
    case SB_THUMBTRACK:
      return scrollTo(info.nTrackPos);
    default:
      return;
  }
}

void DialogControls::scrollLines(int lines) { scrollTo(scrolled_ + lines * ScaledPixels(26)); }

void DialogControls::reveal(HWND control) {
  const auto found = std::find_if(made_.begin(), made_.end(), [control](const Made& made) {
    return made.window == control || ::IsChild(made.window, control) != FALSE;
  });
  if (found == made_.end()) return;
  const Rectangle& place = found->control.place;
  const int height = clientSize(window_).height;
  const int margin = ScaledPixels(8);
  if (place.top - margin < scrolled_) {
    scrollTo(place.top - margin);
  } else if (place.top + place.height + margin > scrolled_ + height) {
    scrollTo(std::min(place.top - margin, place.top + place.height + margin - height));
  }
}

RowList* DialogControls::list(ControlId control) const {
  const auto found = lists_.find(control);
  return found == lists_.end() ? nullptr : found->second.get();
}

RowList* DialogControls::listOf(HWND control) const {
  for (const auto& [id, list] : lists_) {
    if (list->window() == control) return list.get();
  }
  return nullptr;
}

Kind DialogControls::kindOf(ControlId control) const {
  const auto found = std::find_if(made_.begin(), made_.end(),
                                  [control](const Made& made) { return control != 0 && made.control.id == control; });
  return found == made_.end() ? Kind::None : found->control.kind;
}

std::vector<ControlId> DialogControls::choiceOf(ControlId radio) const {
  std::vector<ControlId> choice;
  bool found = false;
  for (const Made& made : made_) {
    if (made.control.kind != Kind::Radio) {
      if (found) break;
      choice.clear();
      continue;
    }
    choice.push_back(made.control.id);
    found = found || made.control.id == radio;
  }
  return choice;
}

}  // namespace varlo
