#include "win32/win32_clipboard.h"

#include <windows.h>

#include <cstring>

namespace varlo {
namespace {

// Holds the clipboard open while it lives.
class OpenClipboardScope {
 public:
  OpenClipboardScope() : open_(::OpenClipboard(nullptr) != 0) {}
  ~OpenClipboardScope() {
    if (open_) ::CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
  [[nodiscard]] bool isOpen() const { return open_; }

 private:
  bool open_;
};

}  // namespace

bool Win32Clipboard::putText(std::string_view text) {
  const OpenClipboardScope clipboard;
  if (!clipboard.isOpen() || ::EmptyClipboard() == 0) return false;
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
  if (memory == nullptr) return false;
  auto* bytes = static_cast<char*>(::GlobalLock(memory));
  std::memcpy(bytes, text.data(), text.size());
  bytes[text.size()] = '\0';
  ::GlobalUnlock(memory);
  if (::SetClipboardData(CF_TEXT, memory) != nullptr) return true;
  ::GlobalFree(memory);
  return false;
}

std::string Win32Clipboard::text() {
  const OpenClipboardScope clipboard;
  const HANDLE memory = clipboard.isOpen() ? ::GetClipboardData(CF_TEXT) : nullptr;
  const auto* bytes = memory == nullptr ? nullptr : static_cast<const char*>(::GlobalLock(memory));
  if (bytes == nullptr) return {};
  std::string text(bytes);
  ::GlobalUnlock(memory);
  return text;
}

bool Win32Clipboard::offersText() { return ::IsClipboardFormatAvailable(CF_OEMTEXT) != 0; }

}  // namespace varlo
