#include "tests/desktop/dde_server.h"

#include <array>
#include <atomic>

#include "tests/desktop/desktop_program.h"

namespace varlo::test {

DdeServer* DdeServer::running_ = nullptr;

DdeServer::DdeServer(const std::string& service) {
  UseOwnDesktop();
  running_ = this;
  std::atomic<bool> ready = false;
  thread_ = std::thread([this, &ready, service] {
    UseOwnDesktop();
    threadId_ = ::GetCurrentThreadId();
    ::DdeInitializeA(&instance_, answer, APPCLASS_STANDARD, 0);
    const HSZ name = ::DdeCreateStringHandleA(instance_, service.c_str(), CP_WINANSI);
    ::DdeNameService(instance_, name, nullptr, DNS_REGISTER);
    ready = true;
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) ::DispatchMessageA(&message);
    ::DdeFreeStringHandle(instance_, name);
    ::DdeUninitialize(instance_);
  });
  WaitFor([&] { return ready.load(); });
}

DdeServer::~DdeServer() {
  ::PostThreadMessageA(threadId_, WM_QUIT, 0, 0);
  thread_.join();
  running_ = nullptr;
}

std::vector<std::string> DdeServer::requests() {
  const std::lock_guard<std::mutex> lock(mutex_);
  return requests_;
}

std::string DdeServer::textOf(HSZ handle) const {
  std::array<char, 300> text{};
  ::DdeQueryStringA(instance_, handle, text.data(), static_cast<DWORD>(text.size()), CP_WINANSI);
  return text.data();
}

HDDEDATA CALLBACK DdeServer::answer(UINT type, UINT /*format*/, HCONV /*conversation*/, HSZ topic, HSZ item,
                                    HDDEDATA /*data*/, ULONG_PTR /*first*/, ULONG_PTR /*second*/) {
  if (running_ == nullptr) return nullptr;
  if (type == XTYP_CONNECT) {
    const std::string name = running_->textOf(topic);
    const bool known = name == "WWW_Activate" || name == "WWW_OpenURL";
    return known ? reinterpret_cast<HDDEDATA>(TRUE) : nullptr;
  }
  if (type == XTYP_REQUEST) {
    const std::lock_guard<std::mutex> lock(running_->mutex_);
    running_->requests_.push_back(running_->textOf(topic) + ": " + running_->textOf(item));
  }
  return nullptr;
}

}  // namespace varlo::test
