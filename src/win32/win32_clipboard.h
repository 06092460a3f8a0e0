// The clipboard of Windows.
#pragma once

#include "platform/clipboard.h"

namespace varlo {

class Win32Clipboard : public Clipboard {
 public:
  bool putText(std::string_view text) override;
  std::string text() override;
  bool offersText() override;
};

}  // namespace varlo
