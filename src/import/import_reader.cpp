#include "import/import_reader.h"

#include <cstring>
#include <memory>

#include "core/program/program.h"
#include "core/text/limits.h"
#include "core/text/open_file.h"
#include "import/delimiter_candidates.h"

namespace varlo {
namespace {

// This many rows show what the delimiter is.
constexpr std::size_t kRowsToCount = 10;

class BlockReader {
 public:
  explicit BlockReader(ImportRows& rows) : rows_(rows) {}

  void read(Files& files, FileHandle file) {
    while (const std::size_t size = files.read(file, buffer_.get() + tail_, kImportBlock)) takeBlock(size);
  }

  [[nodiscard]] const DelimiterCandidates& candidates() const { return candidates_; }

 private:
  // Deliberate: the text ends at the size of what was read, though the tail of the block before stands in front of
  // it. So as many bytes as that tail has are lost, and of a tail that is longer than the block the rest is.
  void takeBlock(std::size_t size) {
    std::string_view text(buffer_.get(), size);
    text = text.substr(0, text.find('\0'));
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
      takeLine(text.substr(0, end));
      text.remove_prefix(end + 1);
    }
    tail_ = text.size();
    std::memmove(buffer_.get(), text.data(), tail_);
  }

  void takeLine(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) return;
    if (rows_.size() < kRowsToCount) candidates_.addLine(line);
    rows_.emplace_back().text.assignLine(line);
  }

  ImportRows& rows_;
  DelimiterCandidates candidates_;
  // A tail is never longer than a block, and a block is read behind it.
  std::unique_ptr<char[]> buffer_ = std::make_unique<char[]>(2 * kImportBlock);
  std::size_t tail_ = 0;
};

}  // namespace

int ReadImportFile(Program& program, std::string_view path, ImportRows& rows, char& fieldDelimiter) {
  ReleaseRows(rows);
  WaitCursorOn(program);
  const OpenFile file(program.files, program.files.openRead(path));
  if (file.isOpen()) {
    BlockReader reader(rows);
    reader.read(program.files, file.handle());
    fieldDelimiter = reader.candidates().choose(fieldDelimiter);
  }
  WaitCursorOff(program);
  return static_cast<int>(rows.size());
}

void ReleaseRows(ImportRows& rows) { ImportRows().swap(rows); }

}  // namespace varlo
