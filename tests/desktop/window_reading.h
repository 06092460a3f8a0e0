// What a person reads in a window.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace varlo::test {

std::string TextOf(HWND window);

// The tree control: items, by the path of their labels from the top.
using TreePath = std::vector<std::string>;
HTREEITEM FindItem(HWND tree, const TreePath& path);
std::string LabelOf(HWND tree, HTREEITEM item);
std::vector<std::string> LabelsBelow(HWND tree, HTREEITEM parent);
int IconOf(HWND tree, HTREEITEM item);

// The item list.
std::vector<std::string> CellsOf(HWND list, int column);
std::string CellOf(HWND list, int row, int column);
std::vector<int> SelectedRows(HWND list);
int RowIcon(HWND list, int row);

// Entries of the menu bar and of popup menus.
bool EntryEnabled(HWND window, UINT command);
bool EntryChecked(HWND window, UINT command);

// Takes a picture of a window with all in it, as a BMP file. With VARLO_SCREENSHOTS set, into that folder;
// nothing otherwise.
void TakePicture(HWND window, const std::string& name);

}  // namespace varlo::test
