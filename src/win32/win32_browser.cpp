#include "win32/win32_browser.h"

#include <ddeml.h>
#include <shellapi.h>

#include <array>

#include "win32/others_disabled.h"

namespace varlo {
namespace {

// A client that is called back about nothing.
HDDEDATA CALLBACK nothing(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) { return nullptr; }

// A text as DDE knows it. One of more than 255 characters has no handle, and what is asked with it fails.
class DdeText {
 public:
  DdeText(DWORD instance, const std::string& text)
      : instance_(instance), handle_(::DdeCreateStringHandleA(instance, text.c_str(), CP_WINANSI)) {}
  ~DdeText() {
    if (handle_ != nullptr) ::DdeFreeStringHandle(instance_, handle_);
  }
  DdeText(const DdeText&) = delete;
  DdeText& operator=(const DdeText&) = delete;
  [[nodiscard]] HSZ get() const { return handle_; }

 private:
  DWORD instance_;
  HSZ handle_;
};

class DdeConversation : public Conversation {
 public:
  DdeConversation(DWORD instance, HCONV conversation) : instance_(instance), conversation_(conversation) {}
  ~DdeConversation() override { ::DdeDisconnect(conversation_); }
  DdeConversation(const DdeConversation&) = delete;
  DdeConversation& operator=(const DdeConversation&) = delete;

  // Messages are run while the answer is waited for; the program stands still all the same.
  void request(const std::string& item, int milliseconds) override {
    const OthersDisabled windows(nullptr);
    const DdeText name(instance_, item);
    const HDDEDATA answer = ::DdeClientTransaction(nullptr, 0, conversation_, name.get(), CF_TEXT, XTYP_REQUEST,
                                                   static_cast<DWORD>(milliseconds), nullptr);
    if (answer != nullptr) ::DdeFreeDataHandle(answer);
  }

 private:
  DWORD instance_;
  HCONV conversation_;
};

}  // namespace

std::unique_ptr<Conversation> Win32Browser::connect(const std::string& service, const std::string& topic) {
  if (instance_ == 0 && ::DdeInitializeA(&instance_, nothing, APPCMD_CLIENTONLY, 0) != DMLERR_NO_ERROR) {
    instance_ = 0;
    return nullptr;
  }
  const DdeText serviceName(instance_, service);
  const DdeText topicName(instance_, topic);
  const HCONV conversation = ::DdeConnect(instance_, serviceName.get(), topicName.get(), nullptr);
  if (conversation == nullptr) return nullptr;
  return std::make_unique<DdeConversation>(instance_, conversation);
}

// What ShellExecute gives is a number in the guise of a handle; below 32 it is an error.
bool Win32Browser::start(const std::string& program, const std::string& argument) {
  const char* opened = program.empty() ? argument.c_str() : program.c_str();
  const char* given = program.empty() ? nullptr : argument.c_str();
  const HINSTANCE result = ::ShellExecuteA(owner_, "Open", opened, given, nullptr, SW_RESTORE);
  return reinterpret_cast<INT_PTR>(result) >= 32;
}

std::optional<std::string> Win32Browser::classesValue(const std::string& key) {
  HKEY opened = nullptr;
  if (::RegOpenKeyExA(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  std::array<char, 80> name{};
  std::array<char, 256> data{};
  auto nameSize = static_cast<DWORD>(name.size());
  auto dataSize = static_cast<DWORD>(data.size());
  const LSTATUS result = ::RegEnumValueA(opened, 0, name.data(), &nameSize, nullptr, nullptr,
                                         reinterpret_cast<BYTE*>(data.data()), &dataSize);
  ::RegCloseKey(opened);
  if (result != ERROR_SUCCESS) return std::nullopt;
  // The stored text has its final zero among its bytes, or lacks it.
  const std::string value(data.data(), dataSize);
  return value.substr(0, value.find('\0'));
}

}  // namespace varlo
