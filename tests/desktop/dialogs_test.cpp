// The dialogs of the File and Options menus, by their real windows and the choosers of the system.

#include <algorithm>
#include <sstream>
#include <thread>

#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/window_faults.h"

namespace varlo::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// The edit field of a file chooser for the name.
constexpr int kChooserName = 0x47C;

const char* const kSaveQuestion = "Varlo PRO - Save Store Confirmation";

class Dialogs : public DesktopTest {
 protected:
  [[nodiscard]] fs::path bookshop() const {
    return installation_.folder() / "Projects" / "Bookshop" / "Bookshop.stp";
  }
  [[nodiscard]] fs::path demoFile() const { return installation_.demo() / "Demo.stp"; }
  [[nodiscard]] std::string title() const { return TextOf(window()); }

  HWND open(Command command, const std::string& title) {
    program().post(command);
    const HWND dialog = WaitForBox(title);
    program().settle();
    return dialog;
  }
  // Names a file in the chooser with this title.
  void choose(const std::string& title, fs::path file, const std::string& picture = {}) {
    const HWND chooser = WaitForBox(title);
    ASSERT_NE(chooser, nullptr) << title;
    program().settle();
    ::SetDlgItemTextA(chooser, kChooserName, file.make_preferred().string().c_str());
    if (!picture.empty()) TakePicture(chooser, picture);
    AnswerBox(program(), chooser, IDOK);
  }
  // Expects a message box with this text, and answers it.
  void answer(const std::string& title, const std::string& text, int button) {
    const HWND box = WaitForBox(title);
    ASSERT_NE(box, nullptr) << text;
    EXPECT_EQ(BoxText(box), text);
    AnswerBox(program(), box, button);
  }
  [[nodiscard]] static bool isOn(HWND dialog, int control) {
    return ::IsWindowEnabled(::GetDlgItem(dialog, control)) != FALSE;
  }
  // Types into a field of a dialog, over what stands there.
  void typeOver(HWND dialog, int field, const std::string& text) {
    Click(program(), CentreOf(::GetDlgItem(dialog, field)));
    PressKey(program(), VK_HOME);
    PressWith(program(), VK_SHIFT, VK_END);
    TypeText(program(), text);
  }
};

TEST_F(Dialogs, OpenStoreShowsTheProjectThatIsChosen) {
  start();
  pick(kAssam);
  program().post(Command::OpenStore);
  choose("Open Project", bookshop(), "open_store");
  EXPECT_EQ(title(), "Varlo PRO - Bookshop");
  EXPECT_THAT(LabelsBelow(tree(), nullptr), ElementsAre("Home"));
  EXPECT_THAT(below({"Home"}), ElementsAre("Books", "Paper and ink"));
  EXPECT_EQ(CellsOf(list(), 0), below({"Home"}));
  EXPECT_EQ(formText(inventory::kPageTitle), "Paper Lane: books and paper");
  EXPECT_FALSE(canSave());
  TakePicture(window(), "bookshop");
}

TEST_F(Dialogs, OpenStoreChangesNothingOnCancel) {
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "x");
  const HWND chooser = open(Command::OpenStore, "Open Project");
  ASSERT_NE(chooser, nullptr);
  AnswerBox(program(), chooser, IDCANCEL);
  EXPECT_FALSE(BoxIsOpen(kSaveQuestion));
  EXPECT_EQ(title(), "Varlo PRO - Demo");
  EXPECT_EQ(formTitle(), "Black teax");
  EXPECT_TRUE(canSave());
}

TEST_F(Dialogs, OpenStoreOffersToSaveAfterTheChoice) {
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "x");
  ASSERT_NE(open(Command::OpenStore, "Open Project"), nullptr);
  EXPECT_FALSE(BoxIsOpen(kSaveQuestion));
  choose("Open Project", bookshop());
  const HWND question = WaitForBox(kSaveQuestion);
  ASSERT_NE(question, nullptr);
  TakePicture(question, "save_question");
  EXPECT_EQ(title(), "Varlo PRO - Demo");
  AnswerBox(program(), question, IDYES);
  EXPECT_TRUE(WaitFor([&] { return title() == "Varlo PRO - Bookshop"; }));
  EXPECT_THAT(BytesOf(demoFile()), HasSubstr("Black teax"));
}

TEST_F(Dialogs, OpenStoreDoesNotTakeAFileThatIsMissing) {
  start();
  const HWND chooser = open(Command::OpenStore, "Open Project");
  ASSERT_NE(chooser, nullptr);
  ::SetDlgItemTextA(chooser, kChooserName, (bookshop().parent_path() / "None.stp").make_preferred().string().c_str());
  ::PostMessageA(chooser, WM_COMMAND, IDOK, 0);
  HWND message = nullptr;
  EXPECT_TRUE(WaitFor([&] {
    message = ::GetLastActivePopup(chooser);
    return message != nullptr && message != chooser;
  })) << "The system tells that there is no such file.";
  AnswerBox(program(), message, IDOK);
  EXPECT_NE(::IsWindow(chooser), FALSE) << "The chooser stays.";
  AnswerBox(program(), chooser, IDCANCEL);
  EXPECT_EQ(title(), "Varlo PRO - Demo");
}

// Another program holds the file, so that it can be chosen and not read.
TEST_F(Dialogs, OpenStoreLeavesNoProjectWhenTheFileCantBeRead) {
  start();
  const std::string path = bookshop().make_preferred().string();
  const HANDLE held = ::CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  program().post(Command::OpenStore);
  choose("Open Project", bookshop());
  answer("Error", "S103: Unable to read project file '" + path + "'", IDOK);
  answer("Error", "ERROR S105: Unable to open project file", IDOK);
  ::CloseHandle(held);

  // What needs a project is grey; what needs a tree is not, since the old one is still shown.
  for (const Command grey : {Command::Save, Command::SaveAs, Command::Import, Command::Merge, Command::NewCategory,
                             Command::CreditCards, Command::BuildStore}) {
    EXPECT_FALSE(isEnabled(grey)) << static_cast<int>(grey);
  }
  for (const Command on :
       {Command::NewStore, Command::OpenStore, Command::RestoreBackup, Command::Upgrade, Command::Quit,
        Command::NewProduct, Command::NewShelf, Command::NewList, Command::Preferences, Command::ImportFreight}) {
    EXPECT_TRUE(isEnabled(on)) << static_cast<int>(on);
  }
  EXPECT_EQ(::IsWindowEnabled(program().field(inventory::kTitle)), FALSE);
  EXPECT_EQ(::IsWindowEnabled(program().control(main_window::kProduct)), FALSE);
  EXPECT_THAT(below({"Home"}), testing::Contains("Tea"));
  TakePicture(window(), "no_project");

  program().post(Command::OpenStore);
  choose("Open Project", bookshop());
  EXPECT_TRUE(WaitFor([&] { return title() == "Varlo PRO - Bookshop"; }));
  EXPECT_TRUE(isEnabled(Command::SaveAs));
}

TEST_F(Dialogs, SaveAsMakesAProjectFolderOfTheNewName) {
  start();
  const HWND dialog = open(Command::SaveAs, "Save Project As");
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(isOn(dialog, IDOK));
  EXPECT_TRUE(isOn(dialog, IDCANCEL));
  typeOver(dialog, save_as::kName, "T");
  EXPECT_TRUE(isOn(dialog, IDOK));
  PressKey(program(), VK_BACK);
  EXPECT_FALSE(isOn(dialog, IDOK));
  TypeText(program(), "Tea House");
  TakePicture(dialog, "save_as_named");
  AnswerBox(program(), dialog, IDOK);

  const fs::path folder = installation_.folder() / "Projects" / "Tea House";
  EXPECT_EQ(title(), "Varlo PRO - Tea House");
  EXPECT_TRUE(fs::is_directory(folder / "Web"));
  EXPECT_TRUE(fs::exists(folder / "Template" / "order.htm"));
  EXPECT_FALSE(fs::exists(folder / "Tea House.stp")) << "It is made by the next save.";
  EXPECT_FALSE(canSave());
  program().command(Command::NewList);
  program().command(Command::Save);
  EXPECT_THAT(BytesOf(folder / "Tea House.stp"), HasSubstr("New List"));
  EXPECT_THAT(BytesOf(demoFile()), Not(HasSubstr("New List")));
}

TEST_F(Dialogs, SaveAsAsksBeforeItTakesAFolderThatIsThere) {
  start();
  const HWND dialog = open(Command::SaveAs, "Save Project As");
  ASSERT_NE(dialog, nullptr);
  program().onWindowThread([&] { ::SetFocus(::GetDlgItem(dialog, save_as::kBrowse)); });
  ::PostMessageA(dialog, WM_COMMAND, save_as::kBrowse,
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, save_as::kBrowse)));
  HWND chooser = nullptr;
  ASSERT_TRUE(WaitFor([&] {
    chooser = ::GetLastActivePopup(dialog);
    return chooser != nullptr && chooser != dialog && ::IsWindowVisible(chooser) != FALSE;
  }));
  EXPECT_EQ(TextOf(chooser), "Save Project As");
  program().settle();
  ::SetDlgItemTextA(chooser, kChooserName, bookshop().make_preferred().string().c_str());
  AnswerBox(program(), chooser, IDOK);
  EXPECT_EQ(TextOf(::GetDlgItem(dialog, save_as::kName)), "Bookshop");

  const std::string question =
      "A Project Directory with the same name already exists.  Would you like to overwrite it?";
  ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
  answer("Confirmation", question, IDNO);
  EXPECT_NE(::IsWindow(dialog), FALSE);
  EXPECT_EQ(title(), "Varlo PRO - Demo");
  ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
  answer("Confirmation", question, IDYES);
  EXPECT_TRUE(WaitFor([&] { return title() == "Varlo PRO - Bookshop"; }));
  EXPECT_EQ(::IsWindow(dialog), FALSE);
}

TEST_F(Dialogs, RestoreBringsABackupBack) {
  start();
  pick(kBlackTea);
  for (const char* letter : {"1", "2"}) {
    typeInto(inventory::kTitle, letter);
    program().command(Command::Save);
  }
  const HWND dialog = open(Command::RestoreBackup, "Restore project from Backup");
  ASSERT_NE(dialog, nullptr);
  const HWND rows = ::GetDlgItem(dialog, restore::kList);
  ASSERT_EQ(::SendMessageA(rows, LVM_GETITEMCOUNT, 0, 0), 2);
  EXPECT_THAT(CellOf(rows, 0, 0), Not(IsEmpty()));
  EXPECT_EQ(CellOf(rows, 0, 1), std::to_string(fs::file_size(installation_.demo() / "Backup" / "Demo.stp.1")));
  EXPECT_FALSE(isOn(dialog, IDOK));
  Click(program(), CentreOfRow(rows, 1));
  EXPECT_TRUE(isOn(dialog, IDOK));
  TakePicture(dialog, "restore_picked");

  const std::string question =
      "You are about to revert to a previously saved version of the store project.  All current changes will be "
      "lost. "
      "Do you wish to proceed? ";
  ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
  answer("Confirmation", question, IDNO);
  EXPECT_NE(::IsWindow(dialog), FALSE);
  ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
  answer("Confirmation", question, IDYES);
  EXPECT_TRUE(WaitFor([&] { return ::IsWindow(dialog) == FALSE; }));
  program().settle();
  EXPECT_EQ(formTitle(), "Home");
  EXPECT_EQ(below(kTea).at(0), "Black tea");
  pick(kBlackTea);
  EXPECT_EQ(formTitle(), "Black tea");
}

TEST_F(Dialogs, PreferencesAreKeptOverTheEndOfTheProgram) {
  start();
  const HWND dialog = open(Command::Preferences, "Varlo Preferences");
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(TextOf(::GetDlgItem(dialog, preferences::kServer)), "orders.example");
  EXPECT_FALSE(isOn(dialog, preferences::kPort));
  typeOver(dialog, preferences::kProxy, "proxy.example");
  EXPECT_TRUE(isOn(dialog, preferences::kPort)) << "The port counts with a proxy.";
  typeOver(dialog, preferences::kPort, "8080");
  typeOver(dialog, preferences::kServer, "new.example");
  typeOver(dialog, preferences::kWebDirectory, "D:\\site");
  Click(program(), CentreOf(::GetDlgItem(dialog, preferences::kDirectoryLink)));
  TakePicture(dialog, "preferences_filled");
  AnswerBox(program(), dialog, IDOK);
  program().command(Command::Save);
  stop();
  const std::string settings = BytesOf(installation_.folder() / "config.ini");
  for (const char* line : {"varlo=new.example\n", "proxy=proxy.example\n", "port=8080\n", "other=0\n"}) {
    EXPECT_THAT(settings, HasSubstr(line));
  }
  EXPECT_THAT(BytesOf(demoFile()), HasSubstr("WEB=D:\\site\n"));

  start();
  const HWND again = open(Command::Preferences, "Varlo Preferences");
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(TextOf(::GetDlgItem(again, preferences::kServer)), "new.example");
  EXPECT_EQ(TextOf(::GetDlgItem(again, preferences::kWebDirectory)), "D:\\site");
  EXPECT_TRUE(isOn(again, preferences::kPort));
  AnswerBox(program(), again, IDCANCEL);
  EXPECT_FALSE(canSave()) << "Looking changes nothing.";
}

TEST_F(Dialogs, PreferencesAreNotKeptOnCancelButAnEditMarksTheProject) {
  start();
  const HWND dialog = open(Command::Preferences, "Varlo Preferences");
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(canSave());
  typeOver(dialog, preferences::kServer, "new.example");
  AnswerBox(program(), dialog, IDCANCEL);
  EXPECT_TRUE(canSave());
  stop();
  EXPECT_THAT(BytesOf(installation_.folder() / "config.ini"), HasSubstr("varlo=orders.example\n"));
}

TEST_F(Dialogs, MergePutsTheOtherProjectBehindTheSiblingsOfTheNode) {
  start();
  pick({"Home", "Tea"});
  program().post(Command::Merge);
  choose("Import from Project", bookshop(), "merge");
  program().settle();
  std::vector<std::string> labels = below({"Home"});
  ASSERT_EQ(labels.size(), 9U);
  EXPECT_EQ(labels.front(), "Tea");
  EXPECT_EQ(labels.back(), "Home");
  EXPECT_THAT(below({"Home", "Home"}), ElementsAre("Books", "Paper and ink"));
  EXPECT_EQ(selectedItem(), "Tea");
  EXPECT_EQ(formTitle(), "Tea");
  EXPECT_TRUE(canSave());
  TakePicture(window(), "merged");
}

// The lines of the regions' methods without their last value, which tells more than the import takes.
std::string methodLine(const fs::path& project, const std::string& method) {
  std::istringstream lines(BytesOf(project));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("$" + method + ",")) return line.substr(0, line.find(",,,,,"));
  }
  return "none";
}

TEST_F(Dialogs, ImportFreightTablesTakesThoseOfTheOtherProject) {
  ASSERT_NE(methodLine(demoFile(), "FR0"), methodLine(bookshop(), "FR0"));
  start();
  program().post(Command::ImportFreight);
  choose("Import from Project", bookshop(), "import_freight");
  program().settle();
  EXPECT_TRUE(canSave());
  program().command(Command::Save);
  EXPECT_EQ(methodLine(demoFile(), "FR0"), methodLine(bookshop(), "FR0"));
  EXPECT_THAT(below({"Home"}), testing::Contains("Tea")) << "Nothing else is taken.";
}

}  // namespace
}  // namespace varlo::test
