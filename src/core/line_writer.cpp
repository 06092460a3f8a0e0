#include "core/line_writer.h"

namespace varlo {

void LineWriter::flush() {
  if (file_ != kNoFile && used_ > 0) files_.write(file_, buffer_.get(), used_);
  used_ = 0;
}

}  // namespace varlo
