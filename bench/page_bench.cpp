// How fast pages are made, beside the least that the machine has to do for them: reading the template for
// each page and writing the same bytes. It prints tables; README.md says how to read them.
//
//   page_bench [FOLDER]    works in new folders inside FOLDER, by default on the memory file system
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "bench/bench_program.h"
#include "bench/child_process.h"
#include "bench/made_project.h"
#include "bench/made_templates.h"
#include "bench/stopwatch.h"
#include "bench/work_folder.h"
#include "core/program/scheme.h"
#include "core/tree/store_tree.h"
#include "generator/pages/page_builder.h"
#include "generator/pages/page_walk.h"
#include "generator/state/generator.h"
#include "generator/template/fill_plan.h"
#include "generator/template/prepared_text.h"
#include "generator/template/quick_page.h"
#include "generator/template/substitute_item.h"
#include "persist/installation/scheme_catalogue.h"

namespace {
std::atomic<std::size_t> allocations{0};
}

void* operator new(std::size_t size) {
  ++allocations;
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace varlo::bench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kProjectName = "shop.stp";
constexpr std::string_view kOutside = "http://pictures.example/";
constexpr int kWalkRepeats = 15;

// A store on disk, opened, with a scheme and a web folder.
class Store {
 public:
  Store(const std::string& folder, const std::string& web) : folder_(folder), bench_(folder, kProjectName) {
    bench_.load();
    Program& program = bench_.program();
    scheme_ = SchemeInit(nullptr);
    SchemeDefaults(*scheme_);
    program.project.projectScheme = scheme_;
    program.project.webDir.assign(std::string_view(bench_.files().nameOf(web)));
    program.config.orderServer.assign("orders.example");
    program.config.accountId.assign("ab-cdefg");
  }
  ~Store() { SchemeListFree(bench_.program(), scheme_); }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  void walk() {
    Generator generator(bench_.program());
    if (BuildSiblings(generator, bench_.program().project.root) != 1 || generator.log.errorCount > 0) {
      throw std::runtime_error("The walk had errors.");
    }
  }
  [[nodiscard]] Program& program() { return bench_.program(); }

 private:
  std::string folder_;
  BenchProgram bench_;
  Scheme* scheme_;
};

void makeStore(const std::string& folder, std::size_t products, std::size_t inCategory) {
  fs::create_directories(folder);
  WriteMadeProject({.products = products, .inCategory = inCategory, .pictures = kOutside}, folder, kProjectName);
  WriteMadeTemplates(folder);
}

struct Page {
  std::string path;  // in the folder of the copy
  std::string text;
};

std::vector<Page> pagesOf(const std::string& web, const std::string& copy) {
  std::vector<Page> pages;
  for (const auto& entry : fs::directory_iterator(web)) {
    Page page{copy + "/" + entry.path().filename().string(), std::string(entry.file_size(), '\0')};
    const int file = ::open(entry.path().c_str(), O_RDONLY);
    if (::read(file, page.text.data(), page.text.size()) != static_cast<ssize_t>(page.text.size())) {
      throw std::runtime_error("A page can't be read.");
    }
    ::close(file);
    pages.push_back(std::move(page));
  }
  return pages;
}

// The least: the template read and the page written, with nothing in between.
void writePlainly(const std::vector<Page>& pages, const std::string& templatePath) {
  std::vector<char> buffer(64 * 1024);
  for (const Page& page : pages) {
    const int from = ::open(templatePath.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t got = ::read(from, buffer.data(), buffer.size());
    ::close(from);
    const int to = ::open(page.path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (got <= 0 || ::write(to, page.text.data(), page.text.size()) != static_cast<ssize_t>(page.text.size())) {
      throw std::runtime_error("A page can't be written.");
    }
    ::close(to);
  }
}

void emptyFolder(const std::string& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
}

struct WalkResult {
  std::size_t pages = 0;
  std::size_t bytes = 0;
  double walk = 0;
  double again = 0;  // over the site that is there
  double plain = 0;
  double allocations = 0;  // for each page
};

WalkResult measureWalk(const std::string& folder) {
  const std::string web = folder + "/web";
  const std::string copy = folder + "/copy";
  Store store(folder, web);
  emptyFolder(web);
  store.walk();
  const std::vector<Page> pages = pagesOf(web, copy);
  WalkResult result;
  result.pages = pages.size();
  for (const Page& page : pages) result.bytes += page.text.size();
  BestTime walk;
  BestTime again;
  BestTime plain;
  for (int i = 0; i < kWalkRepeats; ++i) {
    emptyFolder(web);
    const std::size_t before = allocations;
    walk.add(SecondsOf([&] { store.walk(); }));
    result.allocations = static_cast<double>(allocations - before) / static_cast<double>(result.pages);
    again.add(SecondsOf([&] { store.walk(); }));
    emptyFolder(copy);
    plain.add(SecondsOf([&] { writePlainly(pages, folder + "/template/product.htm"); }));
  }
  result.walk = walk.seconds();
  result.again = again.seconds();
  result.plain = plain.seconds();
  emptyFolder(copy);
  return result;
}

void printWalk(const char* name, const WalkResult& result) {
  const auto pages = static_cast<double>(result.pages);
  std::printf("| %s | %zu | %.1f | %.0f | %.0f | %.2f | %.2f | %.2f | %.1f |\n", name, result.pages,
              static_cast<double>(result.bytes) / pages / 1000, pages / result.walk,
              static_cast<double>(result.bytes) / result.walk / 1e6, result.walk / pages * 1e6,
              result.plain / result.walk, result.again / result.walk, result.allocations);
  std::fflush(stdout);
}

// One page over and over, without its file: the steps one by one beside the quick way.
void measurePass(const std::string& folder) {
  Store store(folder, folder + "/web");
  Program& program = store.program();
  Generator generator(program);
  ItemValues values(generator);
  StoreNode* item = program.project.root->child->child->child;
  const std::string source = MadePageTemplate();
  const FillPlan plan(program.project.variables);
  const PreparedText prepared(plan, source);
  QuickPage quick(values);
  constexpr int kRounds = 2000;
  BestTime plainTime;
  BestTime quickTime;
  std::string text;
  std::string same;
  for (int round = 0; round < kRounds; ++round) {
    plainTime.add(SecondsOf([&] {
      text = source;
      SubstituteItem(values, text, *item, *item);
    }));
    quickTime.add(SecondsOf([&] {
      same.clear();
      if (!quick.appendItem(plan, prepared, *item, *item, same)) throw std::runtime_error("Not the quick way.");
    }));
  }
  if (text != same) throw std::runtime_error("The two ways differ.");
  std::printf("\nSubstituteItem on %zu bytes with %zu places: %.2f us step by step, %.2f us the quick way\n\n",
              source.size(), prepared.begins.size() - 2, plainTime.seconds() * 1e6, quickTime.seconds() * 1e6);
}

// One page of each kind over and over: its template read, its file written.
void measurePages(const std::string& folder) {
  Store store(folder, folder + "/web");
  emptyFolder(folder + "/web");
  Program& program = store.program();
  Generator generator(program);
  StoreNode* category = program.project.root->child->child;
  std::printf("| page | KB | us |\n|---|---|---|\n");
  for (StoreNode* node : {category->child, category, program.project.root->child}) {
    BestTime time;
    PageBuilder builder(generator);
    for (int round = 0; round < 500; ++round) {
      time.add(SecondsOf([&] { builder.build(node); }));
    }
    const std::string file = folder + "/web/" + node->fileName.get();
    std::printf("| %s | %.1f | %.1f |\n", node->title.get(), static_cast<double>(fs::file_size(file)) / 1000,
                time.seconds() * 1e6);
  }
  std::printf("\n");
}

void run(const std::string& parent) {
  const WorkFolder work(parent);
  const auto folderOf = [&work](std::size_t products) { return work.path() + "/" + std::to_string(products); };
  for (const std::size_t products : {std::size_t{1000}, std::size_t{10000}})
    makeStore(folderOf(products), products, 50);
  makeStore(work.path() + "/wide", 1000, 1000);
  measurePass(folderOf(1000));
  measurePages(folderOf(1000));
  std::printf(
      "| store | pages | KB/page | pages/s | MB/s | us/page | plain/walk | again/new | allocations/page |\n"
      "|---|---|---|---|---|---|---|---|---|\n");
  printWalk("1,000", measureWalk(folderOf(1000)));
  printWalk("10,000", measureWalk(folderOf(10000)));
  printWalk("1,000 in one category", measureWalk(work.path() + "/wide"));
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  try {
    varlo::bench::run(argc > 1 ? argv[1] : "");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "page_bench: %s\n", error.what());
    return 1;
  }
}
