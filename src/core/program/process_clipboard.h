// A clipboard within this process, where the machine offers none.
#pragma once

#include "platform/clipboard.h"

namespace varlo {

class ProcessClipboard : public Clipboard {
 public:
  bool putText(std::string_view text) override {
    text_ = text;
    return true;
  }
  std::string text() override { return text_; }
  bool offersText() override { return !text_.empty(); }

 private:
  std::string text_;
};

}  // namespace varlo
