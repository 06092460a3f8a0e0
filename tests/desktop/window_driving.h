// What a person does with mouse and keyboard.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace varlo::test {

class DesktopProgram;

// Keys go to where the focus is.
void PressKey(const DesktopProgram& program, WORD key);
void PressWith(const DesktopProgram& program, WORD modifier, WORD key);
void TypeText(const DesktopProgram& program, const std::string& text);

// Points are on the screen.
POINT CentreOfItem(HWND tree, HTREEITEM item);
POINT CentreOfRow(HWND list, int row);
POINT CentreOf(HWND window);
void Click(const DesktopProgram& program, POINT point);
void ClickWith(const DesktopProgram& program, WORD modifier, POINT point);
void DoubleClick(const DesktopProgram& program, POINT point);
void RightClick(const DesktopProgram& program, POINT point);
// `beforeRelease` runs while the button is still held.
void Drag(const DesktopProgram& program, POINT from, POINT to, const std::function<void()>& beforeRelease = {});
void MoveMouse(const DesktopProgram& program, POINT point);

// Waits for a dialog or message box with this title; null when none comes.
HWND WaitForBox(const std::string& title);
bool BoxIsOpen(const std::string& title);
// The text of a message box.
std::string BoxText(HWND box);
void AnswerBox(const DesktopProgram& program, HWND box, int button);
void PressButton(const DesktopProgram& program, HWND dialog, int button);

// The popup menu that is open.
struct PopupEntry {
  std::string label;
  bool enabled = true;
  bool operator==(const PopupEntry&) const = default;
};
HWND WaitForPopup();
std::vector<PopupEntry> EntriesOf(HWND popup);
void ChooseEntry(const DesktopProgram& program, HWND popup, int index);
void LeavePopup(const DesktopProgram& program, HWND popup);

}  // namespace varlo::test
