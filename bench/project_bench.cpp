// How fast the program loads and saves projects, and how much memory it takes, each beside the least that
// the machine has to do for it: reading the file once with a search for its line ends, and writing the
// same bytes. It prints tables; README.md says how to read them.
//
//   project_bench [FOLDER]    works in a new folder inside FOLDER, by default on the memory file system
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/bench_program.h"
#include "bench/child_process.h"
#include "bench/made_project.h"
#include "bench/stopwatch.h"
#include "bench/work_folder.h"
#include "core/text/open_file.h"

namespace varlo::bench {
namespace {

constexpr std::size_t kBlock = 64 * 1024;
constexpr const char* kProjectName = "shop.stp";
constexpr const char* kCopyName = "copy.stp";

constexpr double kLoadTarget = 5;
constexpr double kSaveTarget = 3;
constexpr double kMemoryTargetBase = 6.0 * 1024 * 1024;
constexpr double kMemoryTargetFactor = 1.5;

// One project, and how often it is measured: often enough for a steady best time.
struct Case {
  MadeProject project;
  int repeats;
  int firstLoads;
};

constexpr Case kCases[] = {
    {{Flavour::Full, 1000}, 200, 80},   {{Flavour::Full, 10000}, 40, 20},   {{Flavour::Full, 100000}, 10, 8},
    {{Flavour::Sparse, 1000}, 400, 80}, {{Flavour::Sparse, 10000}, 80, 30}, {{Flavour::Sparse, 100000}, 20, 10},
};

// Best times in seconds.
struct Times {
  double read = 0;
  double load = 0;
  double write = 0;
  double save = 0;
};

struct Measured {
  Case of;
  std::string folder;
  std::size_t bytes = 0;
  Times again{};  // the program has the project open already, and its memory at hand
  Times first{};  // the first load of a process
  std::size_t peakBytes = 0;
};

// Reads the file once in blocks and counts its lines.
std::size_t readLines(Files& files, std::string_view path, char* block) {
  OpenFile file(files, files.openRead(path));
  if (!file.isOpen()) throw std::runtime_error("The project is not there.");
  std::size_t lines = 0;
  while (const std::size_t got = files.read(file.handle(), block, kBlock)) {
    const char* end = block + got;
    for (const char* at = block; at != end; ++lines) {
      const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
      if (found == nullptr) break;
      at = static_cast<const char*>(found) + 1;
    }
  }
  return lines;
}

void writeBlocks(Files& files, std::string_view path, std::string_view text) {
  OpenFile file(files, files.create(path));
  if (!file.isOpen()) throw std::runtime_error("The copy can't be written.");
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    const std::string_view block = text.substr(at, kBlock);
    if (files.write(file.handle(), block.data(), block.size()) != block.size()) {
      throw std::runtime_error("The copy can't be written.");
    }
  }
}

std::string contentOf(Files& files, std::string_view path, std::size_t size) {
  OpenFile file(files, files.openRead(path));
  std::string text(size + 1, '\0');
  std::size_t used = 0;
  while (const std::size_t got = files.read(file.handle(), text.data() + used, text.size() - used)) used += got;
  text.resize(used);
  return text;
}

void requireNodes(BenchProgram& bench, const MadeProject& project) {
  if (bench.program().project.nodes.size() != project.nodes()) throw std::runtime_error("Nodes are missing.");
}

// The four runs one after the other, so that a slow moment of the machine hits them alike.
Times measureAgain(const Measured& measured) {
  BenchProgram bench(measured.folder, kProjectName);
  const auto block = std::make_unique_for_overwrite<char[]>(kBlock);
  const std::string text = contentOf(bench.files(), kProjectName, measured.bytes);
  std::size_t lines = 0;
  BestTime read;
  BestTime load;
  BestTime write;
  BestTime save;
  bench.load();
  for (int i = 0; i < measured.of.repeats; ++i) {
    read.add(SecondsOf([&] { lines += readLines(bench.files(), kProjectName, block.get()); }));
    load.add(SecondsOf([&] { bench.load(); }));
    write.add(SecondsOf([&] { writeBlocks(bench.files(), kCopyName, text); }));
    save.add(SecondsOf([&] { bench.save(); }));
  }
  requireNodes(bench, measured.of.project);
  if (lines == 0 || contentOf(bench.files(), kProjectName, text.size()) != text) {
    throw std::runtime_error("The saved project is not the one that was loaded.");
  }
  return {.read = read.seconds(), .load = load.seconds(), .write = write.seconds(), .save = save.seconds()};
}

double firstRead(const Measured& measured) {
  PosixFiles files(measured.folder);
  const auto block = std::make_unique_for_overwrite<char[]>(kBlock);
  std::size_t lines = 0;
  const double seconds = SecondsOf([&] { lines = readLines(files, kProjectName, block.get()); });
  if (lines == 0) throw std::runtime_error("The project is empty.");
  return seconds;
}

double firstLoad(const Measured& measured) {
  BenchProgram bench(measured.folder, kProjectName);
  const double seconds = SecondsOf([&] { bench.load(); });
  requireNodes(bench, measured.of.project);
  return seconds;
}

// Each in a new process, where neither its code nor its memory was touched before.
Times measureFirst(const Measured& measured) {
  BestTime read;
  BestTime load;
  for (int i = 0; i < measured.of.firstLoads; ++i) {
    read.add(RunInChild([&] { return firstRead(measured); }).result);
    load.add(RunInChild([&] { return firstLoad(measured); }).result);
  }
  return {.read = read.seconds(), .load = load.seconds(), .write = 0, .save = 0};
}

// The peak of a process that starts the program, loads the project and saves it.
std::size_t measurePeak(const Measured& measured) {
  return RunInChild([&] {
           BenchProgram bench(measured.folder, kProjectName);
           bench.load();
           bench.save();
           return bench.program().project.nodes.size();
         })
      .peakBytes;
}

// This process only hands out the work: whatever it touched itself, its children would start with.
Measured measure(const Case& of, const std::string& parent) {
  Measured measured{.of = of, .folder = parent + "/shop"};
  WriteMadeProject(of.project, measured.folder, kProjectName);
  measured.bytes = std::filesystem::file_size(measured.folder + "/" + kProjectName);
  measured.peakBytes = measurePeak(measured);
  measured.first = measureFirst(measured);
  measured.again = RunInChild([&] { return measureAgain(measured); }).result;
  std::filesystem::remove_all(measured.folder);
  return measured;
}

constexpr double kMebi = 1024.0 * 1024.0;

double megabytesPerSecond(const Measured& of, double seconds) {
  return static_cast<double>(of.bytes) / seconds / 1e6;
}
double perProduct(const Measured& of, double seconds) {
  return seconds * 1e9 / static_cast<double>(of.of.project.products);
}

void printName(const Measured& of) {
  std::printf("%-7s %8zu %8.2f", of.of.project.flavour == Flavour::Full ? "full" : "sparse", of.of.project.products,
              static_cast<double>(of.bytes) / kMebi);
}

// A row of a time beside the least time for the same bytes.
void printTimes(const Measured& of, double least, double seconds, double target) {
  const double ratio = seconds / least;
  printName(of);
  std::printf("  %9.3f %7.0f  %9.3f %7.0f %8.0f  %6.2f  %s\n", least * 1e3, megabytesPerSecond(of, least),
              seconds * 1e3, megabytesPerSecond(of, seconds), perProduct(of, seconds), ratio,
              ratio <= target ? "yes" : "NO");
}

void printHead(const char* title, const char* least, const char* run, double target) {
  std::printf("\n%s (target: at most %.0f times)\n", title, target);
  std::printf("%-7s %8s %8s  %9s %7s  %9s %7s %8s  %6s  met\n", "project", "products", "MiB", least, "MB/s", run,
              "MB/s", "ns/prod.", "ratio");
}

void printLinearity(const std::vector<Measured>& all) {
  std::printf("\nTime per product, relative to 1,000 products\n");
  std::printf("%-7s %8s %8s  %10s %10s %10s\n", "project", "products", "MiB", "first load", "load again", "save");
  const Measured* base = nullptr;
  for (const Measured& of : all) {
    if (of.of.project.products == 1000) base = &of;
    if (base == nullptr) continue;
    const auto relative = [&](double Times::*time, const Times Measured::*times) {
      return perProduct(of, of.*times.*time) / perProduct(*base, base->*times.*time);
    };
    printName(of);
    std::printf("  %10.2f %10.2f %10.2f\n", relative(&Times::load, &Measured::first),
                relative(&Times::load, &Measured::again), relative(&Times::save, &Measured::again));
  }
}

void printMemory(const std::vector<Measured>& all) {
  std::printf("\nPeak memory of start, load and save (target: at most 6 MiB + 1.5 times the file)\n");
  std::printf("%-7s %8s %8s  %9s %9s %9s  %10s  met\n", "project", "products", "MiB", "peak MiB", "allowed", "margin",
              "bytes/prod.");
  for (const Measured& of : all) {
    const double peak = static_cast<double>(of.peakBytes);
    const double allowed = kMemoryTargetBase + kMemoryTargetFactor * static_cast<double>(of.bytes);
    printName(of);
    std::printf("  %9.2f %9.2f %9.2f  %11.0f  %s\n", peak / kMebi, allowed / kMebi, (allowed - peak) / kMebi,
                peak / static_cast<double>(of.of.project.products), peak <= allowed ? "yes" : "NO");
  }
}

void run(const std::string& parent) {
  const WorkFolder folder(parent);
  std::vector<Measured> all;
  for (const Case& one : kCases) all.push_back(measure(one, folder.path()));

  printHead("First load of a process", "read ms", "load ms", kLoadTarget);
  for (const Measured& of : all) printTimes(of, of.first.read, of.first.load, kLoadTarget);
  printHead("Load again, in place of the open project", "read ms", "load ms", kLoadTarget);
  for (const Measured& of : all) printTimes(of, of.again.read, of.again.load, kLoadTarget);
  printHead("Save", "write ms", "save ms", kSaveTarget);
  for (const Measured& of : all) printTimes(of, of.again.write, of.again.save, kSaveTarget);
  printLinearity(all);
  printMemory(all);
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  try {
    varlo::bench::run(argc > 1 ? argv[1] : "");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "project_bench: %s\n", error.what());
    return 1;
  }
}
