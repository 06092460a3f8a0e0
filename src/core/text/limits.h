// The sizes that are behaviour: files and stores rely on what happens at each of them. Every other
// size in the program grows as needed.
#pragma once

#include <cstddef>

namespace varlo {

// Room of the line buffer: what is asked of LineRead everywhere, and the longest text that is fetched
// from an edit field or goes into EscapeLines.
inline constexpr std::size_t kLineBuffer = 20000;

// The text of a field of a page is cut here when it is read, with no message: one byte of the buffer ends it.
inline constexpr std::size_t kFieldText = kLineBuffer - 1;

// Lines come in blocks of this size, so a line is cut at the greatest multiple that fits the buffer.
inline constexpr std::size_t kReadBlock = 256;

// A longer line is cut here; the rest comes as the next line, with no marker.
inline constexpr std::size_t kLineCut = kLineBuffer / kReadBlock * kReadBlock;
static_assert(kLineCut == 19968);

// A formatted piece of a file is cut here and loses what stood behind, its line end included.
inline constexpr std::size_t kWrittenLine = 3095;

// Longest text of a message box, a title or a status line; texts of the message table fit.
inline constexpr std::size_t kMessageText = 4048;

// The value of a variable is cut here on reading, before its line ends are put back.
inline constexpr std::size_t kVariableValue = 4048;

// Templates that a project remembers; further TPL= lines are dropped.
inline constexpr std::size_t kTemplateNames = 20;

// A shelf block of this size or more is not taken: the text that was composed last stands in for it.
inline constexpr std::size_t kShelfBlock = 20000;

// A delimited text file is read in blocks of this size. The end of each is taken at the size that was read, also
// where the unfinished line of the block before stands in front of it.
inline constexpr std::size_t kImportBlock = kLineBuffer - 1;

// Whole-file texts, and how their memory grows.
inline constexpr std::size_t kTextSlots = 20;
inline constexpr std::size_t kSlotStart = 5000;
inline constexpr std::size_t kSlotGrowth = 40000;
inline constexpr std::size_t kSlotReserve = 10;

}  // namespace varlo
