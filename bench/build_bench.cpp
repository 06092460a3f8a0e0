// How long a whole build takes: the process of varlo-cli from its start to its end, beside a copy of the
// site that it made. It prints tables; README.md says how to read them.
//
//   build_bench [FOLDER [PRODUCTS...]]    works in a new folder inside FOLDER, by default on the memory file
//                                         system, with stores of 1,000, 10,000 and 100,000 products
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/child_process.h"
#include "bench/made_project.h"
#include "bench/made_templates.h"
#include "bench/stopwatch.h"
#include "bench/work_folder.h"

namespace varlo::bench {
namespace {

namespace fs = std::filesystem;

constexpr double kMiB = 1024 * 1024;
constexpr double kMemoryBase = 6;
constexpr double kMemoryFactor = 1.5;

void put(const fs::path& path, const std::string& text) {
  fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("A file could not be written.");
}

// An installation with what a build reads, and a store in it.
void makeInstallation(const fs::path& folder, std::size_t products) {
  put(folder / "config.ini", "varlo=orders.example\nid=ab-cdefg\n");
  put(folder / "domain.dat", "AU Australia\n");
  put(folder / "cc.dat", "Store Card\n");
  put(folder / "template" / "trolley.dat", "<BODY BGCOLOR=$BGCOLOR TEXT=$TEXT_COLOR>\n");
  put(folder / "template" / "register.dat", "<SCRIPT>var server='$VARLO_SERVER', freight='$FREIGHT';</SCRIPT>\n");
  for (const char* name : {"h1", "h2", "h3", "f", "g", "o", "a", "add", "remove", "back"}) {
    put(folder / "img" / (std::string(name) + ".gif"), std::string(400, 'g'));
  }
  WriteMadeProject({.products = products, .pictures = "http://pictures.example/"}, folder.string(), "shop.stp");
  WriteMadeTemplates(folder.string());
}

// The least cost of each kind over some runs.
class LeastCost {
 public:
  void add(const ProgramCost& cost) {
    seconds_.add(cost.seconds);
    wall_.add(cost.wall);
    peak_ = std::max(peak_, cost.peakBytes);
  }
  [[nodiscard]] double seconds() const { return seconds_.seconds(); }
  [[nodiscard]] double wall() const { return wall_.seconds(); }
  [[nodiscard]] double peakMiB() const { return static_cast<double>(peak_) / kMiB; }

 private:
  BestTime seconds_;
  BestTime wall_;
  std::size_t peak_ = 0;
};

void measure(const fs::path& folder, std::size_t products) {
  makeInstallation(folder, products);
  const std::string web = (folder / "web").string();
  const std::string copy = (folder / "copy").string();
  const std::vector<std::string> build{VARLO_CLI, "--install", folder.string(), "build", "shop.stp", "--to", web};
  LeastCost fresh;
  LeastCost again;
  LeastCost copied;
  const int rounds = products > 20000 ? 3 : 9;
  for (int i = 0; i < rounds; ++i) {
    fs::remove_all(web);
    fresh.add(RunProgram(build));
    again.add(RunProgram(build));
    fs::remove_all(copy);
    copied.add(RunProgram({"cp", "-r", web, copy}));
  }
  const double allowed = kMemoryBase + kMemoryFactor * static_cast<double>(fs::file_size(folder / "shop.stp")) / kMiB;
  std::printf("| %zu | %.1f | %.1f | %.1f | %.2f | %.2f | %.2f | %.1f | %.1f |\n", products, fresh.seconds() * 1e3,
              again.seconds() * 1e3, copied.seconds() * 1e3, fresh.seconds() / copied.seconds(),
              fresh.wall() / copied.wall(), again.seconds() / fresh.seconds(), fresh.peakMiB(), allowed);
  std::fflush(stdout);
  fs::remove_all(folder);
}

void run(const std::string& parent, const std::vector<std::size_t>& sizes) {
  const WorkFolder work(parent);
  std::printf(
      "| products | new ms | again ms | cp -r ms | new/cp | on the clock | again/new | peak MiB | allowed |\n"
      "|---|---|---|---|---|---|---|---|---|\n");
  for (const std::size_t products : sizes) measure(fs::path(work.path()) / "install", products);
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  try {
    std::vector<std::size_t> sizes;
    for (int i = 2; i < argc; ++i) sizes.push_back(static_cast<std::size_t>(std::strtoull(argv[i], nullptr, 10)));
    if (sizes.empty()) sizes = {1000, 10000, 100000};
    varlo::bench::run(argc > 1 ? argv[1] : "", sizes);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "build_bench: %s\n", error.what());
    return 1;
  }
}
