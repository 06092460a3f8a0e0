#include "win32/dialog_template.h"

namespace varlo {
namespace {

DWORD styleOf(const DialogShape& shape) {
  switch (shape.form) {
    case Form::Modal:
      return WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU |
             (shape.resizable ? WS_THICKFRAME : DWORD{DS_MODALFRAME});
    case Form::Modeless:
      return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX |
             (shape.resizable ? DWORD{WS_THICKFRAME | WS_MAXIMIZEBOX} : DWORD{0});
    case Form::Page:
      return DS_CONTROL | WS_CHILD | WS_CLIPSIBLINGS;
    case Form::Main:
      return DS_CENTER | WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
  }
  return WS_POPUP;
}

}  // namespace

DialogTemplate::DialogTemplate(const DialogShape& shape, WORD menu) {
  constexpr WORD kVersion = 1;
  constexpr WORD kExtended = 0xFFFF;
  words_ = {kVersion, kExtended};
  append(0);  // no help number
  append(0);  // no further style
  append(DS_SHELLFONT | styleOf(shape));
  for (int i = 0; i < 5; ++i) words_.push_back(0);  // no controls, and a place and size that the host sets
  if (menu != 0) words_.push_back(0xFFFF);
  words_.push_back(menu);
  words_.push_back(0);  // the ordinary class
  appendText(shape.title);
  for (const WORD word : {WORD{8}, WORD{FW_NORMAL}, WORD{DEFAULT_CHARSET << 8}}) words_.push_back(word);
  appendText("MS Shell Dlg");
}

void DialogTemplate::append(DWORD value) {
  words_.push_back(LOWORD(value));
  words_.push_back(HIWORD(value));
}

// Titles and fonts in the program are plain ASCII, which is the same in both character sets.
void DialogTemplate::appendText(std::string_view text) {
  for (const char letter : text) words_.push_back(static_cast<unsigned char>(letter));
  words_.push_back(0);
}

}  // namespace varlo
