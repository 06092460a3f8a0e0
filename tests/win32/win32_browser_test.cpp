#include "win32/win32_browser.h"

#include <windows.h>

#include <ddeml.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varlo {
namespace {

using testing::ElementsAre;

// A browser that takes conversations, in a thread of its own, and keeps what it is asked.
class Server {
 public:
  Server() : thread_([this] { serve(); }) {
    while (!ready_) ::Sleep(1);
  }
  ~Server() {
    ::PostThreadMessageA(threadId_, WM_QUIT, 0, 0);
    thread_.join();
  }
  std::vector<std::string> told() {
    const std::lock_guard lock(mutex_);
    return told_;
  }

 private:
  void serve() {
    current = this;
    threadId_ = ::GetCurrentThreadId();
    ::DdeInitializeA(&instance_, called, APPCLASS_STANDARD, 0);
    const HSZ name = ::DdeCreateStringHandleA(instance_, "VarloTestBrowser", CP_WINANSI);
    ::DdeNameService(instance_, name, nullptr, DNS_REGISTER);
    ready_ = true;
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) ::DispatchMessageA(&message);
    ::DdeNameService(instance_, nullptr, nullptr, DNS_UNREGISTER);
    ::DdeFreeStringHandle(instance_, name);
    ::DdeUninitialize(instance_);
  }
  std::string text(HSZ handle) const {
    std::string result(256, '\0');
    result.resize(::DdeQueryStringA(instance_, handle, result.data(), 256, CP_WINANSI));
    return result;
  }
  HDDEDATA answer(UINT type, HSZ first, HSZ second) {
    const std::lock_guard lock(mutex_);
    switch (type) {
      case XTYP_CONNECT:
        told_.push_back("connect " + text(first));
        return reinterpret_cast<HDDEDATA>(static_cast<INT_PTR>(text(first) != "Refused"));
      case XTYP_REQUEST:
        told_.push_back("request " + text(second));
        return nullptr;
      case XTYP_DISCONNECT:
        told_.emplace_back("disconnect");
        return nullptr;
      default:
        return nullptr;
    }
  }
  static HDDEDATA CALLBACK called(UINT type, UINT, HCONV, HSZ first, HSZ second, HDDEDATA, ULONG_PTR, ULONG_PTR) {
    return current->answer(type, first, second);
  }

  inline static Server* current = nullptr;
  std::atomic<bool> ready_ = false;
  DWORD threadId_ = 0;
  DWORD instance_ = 0;
  std::mutex mutex_;
  std::vector<std::string> told_;
  std::thread thread_;
};

TEST(Win32Browser, AsksARunningBrowserAndLeavesIt) {
  Server server;
  Win32Browser browser;
  {
    const auto conversation = browser.connect("VarloTestBrowser", "WWW_OpenURL");
    ASSERT_NE(conversation, nullptr);
    conversation->request("\"http://a.example/?x=1\",,0xFFFFFFFF", 10000);
  }
  for (int i = 0; i < 100 && server.told().size() < 3; ++i) ::Sleep(10);
  EXPECT_THAT(server.told(),
              ElementsAre("connect WWW_OpenURL", "request \"http://a.example/?x=1\",,0xFFFFFFFF", "disconnect"));
}

TEST(Win32Browser, GetsNoConversationWhereNobodyAnswersOrTheTopicIsRefused) {
  Server server;
  Win32Browser browser;
  EXPECT_EQ(browser.connect("VarloNoSuchBrowser", "WWW_Activate"), nullptr);
  EXPECT_EQ(browser.connect("VarloTestBrowser", "Refused"), nullptr);
}

TEST(Win32Browser, RequestThatIsTooLongForDdeIsNoError) {
  Server server;
  Win32Browser browser;
  const auto conversation = browser.connect("VarloTestBrowser", "WWW_OpenURL");
  ASSERT_NE(conversation, nullptr);
  conversation->request(std::string(300, 'x'), 1000);
}

TEST(Win32Browser, CannotStartWhatIsNotThere) {
  Win32Browser browser;
  EXPECT_FALSE(browser.start("c:\\none\\none.exe", "x"));
}

// A key below the classes, for the life of a test.
class ClassesKey {
 public:
  explicit ClassesKey(const char* name) : name_(name) {
    ::RegCreateKeyExA(HKEY_CLASSES_ROOT, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
  }
  ~ClassesKey() {
    ::RegCloseKey(key_);
    ::RegDeleteKeyA(HKEY_CLASSES_ROOT, name_);
  }
  ClassesKey(const ClassesKey&) = delete;
  ClassesKey& operator=(const ClassesKey&) = delete;
  void set(const char* value, const std::string& data) const {
    ::RegSetValueExA(key_, value, 0, REG_SZ, reinterpret_cast<const BYTE*>(data.c_str()),
                     static_cast<DWORD>(data.size() + 1));
  }

 private:
  const char* name_;
  HKEY key_ = nullptr;
};

TEST(Win32Browser, ReadsTheFirstValueOfAKey) {
  const ClassesKey outer("varlo_test");
  const ClassesKey key("varlo_test\\DefaultIcon");
  Win32Browser browser;
  EXPECT_EQ(browser.classesValue("varlo_test\\DefaultIcon"), std::nullopt);
  key.set(nullptr, "c:\\b\\browser.exe,1");
  EXPECT_EQ(browser.classesValue("varlo_test\\DefaultIcon"), "c:\\b\\browser.exe,1");
}

TEST(Win32Browser, ReadsDataOfUpTo256BytesOnly) {
  const ClassesKey key("varlo_test_long");
  Win32Browser browser;
  key.set(nullptr, std::string(255, 'x'));
  EXPECT_EQ(browser.classesValue("varlo_test_long"), std::string(255, 'x'));
  key.set(nullptr, std::string(300, 'x'));
  EXPECT_EQ(browser.classesValue("varlo_test_long"), std::nullopt);
}

TEST(Win32Browser, KnowsNothingOfAKeyThatIsNotThere) {
  Win32Browser browser;
  EXPECT_EQ(browser.classesValue("varlo_no_such_key\\DefaultIcon"), std::nullopt);
}

}  // namespace
}  // namespace varlo
