// The program's line reader beside two others, over files of the shapes that it meets: the plainest
// reader, which asks for 256 bytes at a time, and a bare search for line ends in large blocks, which no
// reader can beat by much.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <functional>
#include <string>

#include "bench/literal_line_reader.h"
#include "bench/made_project.h"
#include "bench/work_folder.h"
#include "core/text/line_reader.h"
#include "core/text/open_file.h"
#include "posix/posix_files.h"

namespace varlo::bench {
namespace {

// What a reader saw: lines, and their bytes.
struct Seen {
  std::size_t lines = 0;
  std::size_t bytes = 0;
};
using Reading = std::function<Seen(Files& files, FileHandle file)>;

struct Reader {
  const char* name;
  Reading read;
  bool knowsTheCut;  // of long lines: a bare search for line ends counts fewer lines
};

Seen readByBlocks(Files& files, FileHandle file) {
  static std::array<char, 64 * 1024> block;
  Seen seen;
  while (const std::size_t got = files.read(file, block.data(), block.size())) {
    seen.bytes += got;
    const char* end = block.data() + got;
    for (const char* at = block.data(); at != end; ++seen.lines) {
      const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
      if (found == nullptr) break;
      at = static_cast<const char*>(found) + 1;
    }
  }
  return seen;
}

Seen readLiterally(Files& files, FileHandle file) {
  LiteralLineReader reader(files, file);
  Seen seen;
  std::string_view line;
  while (const std::size_t length = reader.read(line)) {
    ++seen.lines;
    seen.bytes += length;
  }
  return seen;
}

template <std::size_t (&kRead)(LineReader&, std::string_view&)>
Seen readLines(Files& files, FileHandle file) {
  LineReader reader(files, file);
  Seen seen;
  std::string_view line;
  while (const std::size_t length = kRead(reader, line)) {
    benchmark::DoNotOptimize(line);
    ++seen.lines;
    seen.bytes += length;
  }
  return seen;
}

Seen readFile(Files& files, const std::string& name, const Reading& reading) {
  const OpenFile file(files, files.openRead(name));
  return reading(files, file.handle());
}

void measure(benchmark::State& state, const std::string& folder, const std::string& name, const Reader& reader) {
  PosixFiles files(folder);
  const Seen expected = readFile(files, name, readLiterally);
  Seen seen;
  for (auto _ : state) seen = readFile(files, name, reader.read);
  if (seen.bytes != expected.bytes || (reader.knowsTheCut && seen.lines != expected.lines))
    state.SkipWithError("The readers disagree.");
  state.SetBytesProcessed(static_cast<std::int64_t>(seen.bytes) * static_cast<std::int64_t>(state.iterations()));
  state.counters["lines"] = static_cast<double>(seen.lines);
  state.counters["lines/s"] =
      benchmark::Counter(static_cast<double>(seen.lines), benchmark::Counter::kIsIterationInvariantRate);
}

void write(const std::string& path, std::size_t lines, const std::string& line) {
  std::ofstream out(path, std::ios::binary);
  for (std::size_t i = 0; i < lines; ++i) out << line;
}

void makeFiles(const std::string& folder) {
  WriteMadeProject({Flavour::Full, 10000}, folder, "project");
  write(folder + "/short_lines", 200000, "STATUS=0\r\n");
  write(folder + "/long_lines", 400, std::string(25000, 'x') + "\n");
  write(folder + "/no_line_end", 400, std::string(25000, 'x'));
}

void registerAll(const std::string& folder) {
  const Reader readers[] = {{"Blocks", readByBlocks, false},
                            {"LineRead", readLines<LineRead>, true},
                            {"LineReadTrimmed", readLines<LineReadTrimmed>, true},
                            {"Literal", readLiterally, true}};
  for (const std::string name : {"project", "short_lines", "long_lines", "no_line_end"}) {
    for (const Reader& reader : readers) {
      const std::string title = name + "/" + reader.name;
      benchmark::RegisterBenchmark(title.c_str(), [=](benchmark::State& state) {
        measure(state, folder, name, reader);
      })->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  try {
    const varlo::bench::WorkFolder folder("");
    varlo::bench::makeFiles(folder.path());
    varlo::bench::registerAll(folder.path());
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "primitives_bench: %s\n", error.what());
    return 1;
  }
}
