// The first sight of the program, in installations that lack something.

#include <fstream>
#include <thread>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"

namespace varlo::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Start : public DesktopTest {
 protected:
  void writeSettings(const std::string& lines) const {
    std::ofstream(installation_.folder() / "config.ini", std::ios::binary) << lines;
  }
  // Where there is nothing to open the program begins with the wizard.
  void leaveWizard() {
    const HWND wizard = WaitForBox("Store Wizard");
    ASSERT_NE(wizard, nullptr);
    program().settle();
    TakePicture(wizard, "wizard_welcome");
    ::PostMessageA(wizard, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitFor([] { return !BoxIsOpen("Store Wizard"); }));
    program().settle();
  }
  // What a start without a project shows: an empty tree, and a form that can't be filled in.
  void expectNoProject() {
    EXPECT_EQ(TextOf(window()), "Varlo PRO");
    EXPECT_THAT(LabelsBelow(tree(), nullptr), IsEmpty());
    EXPECT_THAT(CellsOf(list(), 0), IsEmpty());
    for (ControlId field = inventory::kTitle; field <= inventory::kDescription; ++field) {
      EXPECT_EQ(formText(field), "") << field;
      EXPECT_EQ(::IsWindowEnabled(program().field(field)), FALSE) << field;
    }
    for (const ControlId button : {main_window::kPreview, main_window::kProduct, main_window::kCategory,
                                   main_window::kShelf, main_window::kList}) {
      EXPECT_EQ(::IsWindowEnabled(program().control(button)), FALSE) << button;
    }
    for (const Command grey :
         {Command::Save, Command::SaveAs, Command::Merge, Command::Copy, Command::Paste, Command::Delete,
          Command::Disable, Command::NewCategory, Command::NewProduct, Command::PreviewPage, Command::BuildStore}) {
      EXPECT_FALSE(isEnabled(grey)) << static_cast<int>(grey);
    }
    for (const Command on : {Command::NewStore, Command::OpenStore, Command::RestoreBackup, Command::Upgrade,
                             Command::Quit, Command::Preferences}) {
      EXPECT_TRUE(isEnabled(on)) << static_cast<int>(on);
    }
  }
};

TEST_F(Start, WithoutSettingsShowsNoProjectAndWritesThemAtItsEnd) {
  fs::remove(installation_.folder() / "config.ini");
  start();
  leaveWizard();
  expectNoProject();
  EXPECT_FALSE(BoxIsOpen("Upgrade Error")) << "The shipped server counts.";
  TakePicture(window(), "first_start");
  stop();
  EXPECT_THAT(BytesOf(installation_.folder() / "config.ini"), HasSubstr("varlo=orders.varlo.example\n"));
}

TEST_F(Start, WithAServerAndNoProjectCanOpenOne) {
  writeSettings("varlo=orders.example\r\n");
  start();
  leaveWizard();
  expectNoProject();
  program().post(Command::OpenStore);
  const HWND chooser = WaitForBox("Open Project");
  ASSERT_NE(chooser, nullptr);
  program().settle();
  ::SetDlgItemTextA(chooser, 0x47C, (installation_.demo() / "Demo.stp").make_preferred().string().c_str());
  AnswerBox(program(), chooser, IDOK);
  EXPECT_EQ(TextOf(window()), "Varlo PRO - Demo");
  EXPECT_EQ(formTitle(), "Home");
  EXPECT_TRUE(isEnabled(Command::BuildStore));
}

// The box stands before the window does, so somebody else has to answer it.
TEST_F(Start, TellsThatTheProjectOfTheSettingsIsGone) {
  const std::string gone = (installation_.folder() / "Projects" / "Gone" / "Gone.stp").make_preferred().string();
  writeSettings("file=" + gone + "\r\nvarlo=orders.example\r\n");
  std::string told;
  std::thread person([&told] {
    UseOwnDesktop();
    const HWND box = WaitForBox("Error");
    if (box == nullptr) return;
    told = BoxText(box);
    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
  });
  start();
  person.join();
  EXPECT_EQ(told, "S103: Unable to read project file '" + gone + "'");
  EXPECT_FALSE(BoxIsOpen("Error")) << "One message is enough.";
  leaveWizard();
  expectNoProject();
}

TEST_F(Start, WithoutAServerRunsTheUpgrade) {
  std::ofstream(installation_.folder() / "server.ini", std::ios::binary);
  writeSettings("file=" + (installation_.demo() / "Demo.stp").make_preferred().string() + "\r\n");
  start();
  const HWND box = WaitForBox("Upgrade Error");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(BoxText(box), "Unable to execute Upgrade Wizard 'upgrade.exe'");
  TakePicture(box, "upgrade_error");
  AnswerBox(program(), box, IDOK);
  EXPECT_EQ(formTitle(), "Home") << "The program goes on.";
}

}  // namespace
}  // namespace varlo::test
