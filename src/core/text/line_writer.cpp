#include "core/text/line_writer.h"

namespace varlo {

void LineWriter::flush() {
  const auto used = static_cast<std::size_t>(at_ - buffer_.get());
  if (file_ != kNoFile && used > 0 && files_.write(file_, buffer_.get(), used) != used) lost_ = true;
  at_ = buffer_.get();
}

}  // namespace varlo
