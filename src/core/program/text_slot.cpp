#include "core/program/text_slot.h"

#include <cstring>

#include "core/program/program.h"
#include "core/text/limits.h"
#include "core/text/line_reader.h"
#include "core/text/memory.h"
#include "core/text/open_file.h"

namespace varlo {

bool TextSlot::prepare() {
  if (memory_ != nullptr) return true;
  memory_ = static_cast<char*>(MemResize(nullptr, kSlotStart));
  if (memory_ == nullptr) return false;
  std::memset(memory_, 0, kSlotStart + 1);
  capacity_ = kSlotStart;
  return true;
}

bool TextSlot::append(std::string_view line) {
  while (length_ + line.size() + kSlotReserve > capacity_) {
    auto* grown = static_cast<char*>(MemResize(memory_, capacity_ + kSlotGrowth));
    if (grown == nullptr) return false;
    memory_ = grown;
    capacity_ += kSlotGrowth;
  }
  std::memcpy(memory_ + length_, line.data(), line.size());
  length_ += line.size();
  memory_[length_] = '\0';
  return true;
}

bool TextSlot::hold(std::string_view text) {
  if (!prepare()) return false;
  rewind();
  return append(text);
}

void TextSlot::release() {
  MemFree(memory_);
  memory_ = nullptr;
  capacity_ = 0;
  length_ = 0;
}

int FileReadToSlot(Program& program, int slot, std::string_view path, bool skipComments) {
  TextSlot& target = program.slots[static_cast<std::size_t>(slot)];
  if (!target.prepare()) return 0;
  target.rewind();
  OpenFile file(program.files, program.files.openRead(path));
  if (!file.isOpen()) return 0;
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  std::string_view line;
  while (LineRead(reader, line) != 0) {
    if (skipComments && line.starts_with(';')) continue;
    if (!target.append(line)) return 0;
  }
  return 1;
}

}  // namespace varlo
