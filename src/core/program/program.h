// Program: the whole state, and the machine it runs on. There is one in the program; it is still
// handed to every function, so that a test makes its own.
#pragma once

#include <array>

#include "core/program/text_slot.h"
#include "core/program/view.h"
#include "core/store/app_config.h"
#include "core/store/store_project.h"
#include "core/text/limits.h"
#include "core/text/line_buffer.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/screen.h"

namespace varlo {

struct Program {
  Program(Files& theFiles, Clock& theClock, Screen& theScreen, Clipboard& theClipboard, View& theView)
      : files(theFiles), clock(theClock), screen(theScreen), clipboard(theClipboard), view(theView) {}
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Files& files;
  Clock& clock;
  Screen& screen;
  Clipboard& clipboard;
  View& view;

  AppConfig config;
  StoreProject project;
  std::array<TextSlot, kTextSlots> slots;
  LineBuffer lineBuffer;  // the text last read from a field, or the line last read from a file
  bool waitCursorShown = false;
  bool atWork = false;  // raised by Work
};

// Sets `dirty` and refreshes the enabled state of the commands.
void SetDirty(Program& program, int flag);

// Shows a message under the title "Error" with one OK button.
void ErrorBox(Program& program, std::string_view text);

// Show the wait cursor and put the ordinary one back. While it is shown a further call does nothing
// and gives 0.
int WaitCursorOn(Program& program);
int WaitCursorOff(Program& program);

// Puts a text on the clipboard; 1 done, 0 failed.
int ClipboardPutText(Program& program, std::string_view text);

}  // namespace varlo
