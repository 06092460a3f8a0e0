// FileNameSet: a small compressed trie of file names. Names are stored as they are and found without
// regard to case: that is how "A.HTM" is seen to be "a.htm" again.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace varlo {

struct FileNameSetNode {
  std::string text;                    // part of the key on this edge
  FileNameSetNode* sibling = nullptr;  // next node on this level
  FileNameSetNode* child = nullptr;    // first node below
  std::uintptr_t value = 0;            // not 0 when a key ends here
};

// The set owns its nodes; `root` is null when it is empty.
struct FileNameSet {
  FileNameSetNode* root = nullptr;
  std::deque<FileNameSetNode> nodes;
};

// Adds a key; comparing with case. Gives the node that holds its end; a key that is there keeps its
// value. Null for a null key.
FileNameSetNode* FileNameSetAdd(FileNameSet& set, const char* key, std::uintptr_t value);

// The value of the first key found equal, ignoring case; 0 for none and for a null key.
[[nodiscard]] std::uintptr_t FileNameSetFind(const FileNameSet& set, const char* key);

// Empties the set.
void FileNameSetFree(FileNameSet& set);

}  // namespace varlo
