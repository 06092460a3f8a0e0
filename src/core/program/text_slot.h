// TextSlot: a numbered holder of whole-file text.
#pragma once

#include <cstddef>
#include <string_view>

namespace varlo {

class LineReader;
struct Program;

// The numbers are fixed: a slot keeps its former text when its file is missing.
inline constexpr int kSlotTemplate = 0;  // template shown in the template tab
inline constexpr int kSlotTrolley = 3;   // cart templates, read once a run
inline constexpr int kSlotRegister = 4;
inline constexpr int kSlotOrderForm = 6;
inline constexpr int kSlotConfirmation = 7;

class TextSlot {
 public:
  TextSlot() = default;
  TextSlot(const TextSlot&) = delete;
  TextSlot& operator=(const TextSlot&) = delete;
  ~TextSlot() { release(); }

  // Whether the slot was ever filled.
  [[nodiscard]] bool hasMemory() const { return memory_ != nullptr; }
  // The text, up to its first NUL.
  [[nodiscard]] const char* text() const { return memory_ == nullptr ? "" : memory_; }
  [[nodiscard]] std::size_t length() const { return length_; }
  [[nodiscard]] std::size_t capacity() const { return capacity_; }

  // Makes room if there is none yet; the text is empty then.
  bool prepare();
  // Sets the length to 0; the bytes stay, so a slot that gets no line shows its former text.
  void rewind() { length_ = 0; }
  // Appends a line and a NUL; false when memory runs out.
  bool append(std::string_view line);
  // Holds exactly `text`, which has no NUL; false when memory runs out.
  bool hold(std::string_view text);
  // Gives the memory back.
  void release();

 private:
  char* memory_ = nullptr;
  std::size_t capacity_ = 0;
  std::size_t length_ = 0;
};

// Reads a whole file into a slot, line by line; with `skipComments` without the lines that start with
// ";". Gives 1, or 0 for a file that can't be opened or memory that runs out; the former text stays in
// the slot when no line comes.
int FileReadToSlot(Program& program, int slot, std::string_view path, bool skipComments);

}  // namespace varlo
