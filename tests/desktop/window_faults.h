// What a person would find wrong with a window.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace varlo::test {

// What is wrong with a dialog or page, in words: controls that leave it, texts that are cut off, mnemonics that two
// share, fields without a label, controls that can't be reached by key.
std::vector<std::string> FaultsOf(HWND dialog);

}  // namespace varlo::test
