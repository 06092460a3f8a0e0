// A program that answers conversations (DDE), in a thread of the test: it stands in for a browser that runs.
#pragma once

#include <windows.h>

#include <ddeml.h>

#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace varlo::test {

class DdeServer {
 public:
  // Answers to `service`, on the topics that browsers know.
  explicit DdeServer(const std::string& service);
  ~DdeServer();
  DdeServer(const DdeServer&) = delete;
  DdeServer& operator=(const DdeServer&) = delete;

  // What was asked so far, as "topic: item".
  std::vector<std::string> requests();

 private:
  static HDDEDATA CALLBACK answer(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item, HDDEDATA data,
                                  ULONG_PTR first, ULONG_PTR second);
  [[nodiscard]] std::string textOf(HSZ handle) const;

  static DdeServer* running_;
  DWORD instance_ = 0;
  DWORD threadId_ = 0;
  std::mutex mutex_;
  std::vector<std::string> requests_;
  std::thread thread_;
};

}  // namespace varlo::test
