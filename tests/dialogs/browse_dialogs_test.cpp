#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTreeWidget>

#include "dialogs/frm_browse.h"
#include "dialogs/frm_file_browse.h"
#include "dialogs/frm_save.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::press;

constexpr const char* kBrowse = "frmBrowse";
constexpr const char* kFileBrowse = "frmFileBrowse";
constexpr const char* kSave = "frmSave";

/// Over the folders "a", "a/b" and "c" and a drive C: that is "c".
class BrowseDialogs : public test::WindowTest {
 protected:
  BrowseDialogs() {
    for (const char* name : {"a/b", "c/sub", "prefix/dosdevices"}) folder.makeFolder(name);
    std::filesystem::create_directory_symlink(folder.path("c"),
                                              folder.path("prefix/dosdevices/c:"));
    ::setenv("WINEPREFIX", folder.path("prefix").c_str(), 1);
    for (const char* name : {"a/1.pal", "a/2.PAL", "a/3.txt", "c/4.pal"}) folder.write(name, {});
    state.FilePattern = "*.pal";
  }
  ~BrowseDialogs() override { ::unsetenv("WINEPREFIX"); }

  /// Shows a dialog with a seed and runs `act` in it.
  void use(const char* dialog, const std::string& seed, std::function<void()> act) {
    state.BrowseResult = seed;
    test::whenShown(std::move(act));
    if (dialog == kBrowse) frmBrowse->Show(forms::vbModal, owner);
    if (dialog == kFileBrowse) frmFileBrowse->Show(forms::vbModal, owner);
    if (dialog == kSave) frmSave->Show(forms::vbModal, owner);
    test::settle();
  }

  static void pressOK(const char* dialog) {
    EXPECT_TRUE(test::window(dialog)->isVisible());
    press(dialog, dialog == kBrowse ? "OKButton" : "cmdOK");
  }
  static void pressKey(const char* dialog, const char* name, Qt::Key key) {
    QTest::keyClick(control(dialog, name), key);
  }
  static QString directory(const char* dialog) {
    return control<QTreeWidget>(dialog, "Dir1")->currentItem()->text(0);
  }

  forms::Form owner{{.Name = "owner", .Caption = "", .BorderStyle = {}, .Client = {3000, 3000}}};
};

TEST_F(BrowseDialogs, StartWhereTheSeedSaysAndTheirListsFollowEachOther) {
  const std::string a = folder.drive("a"), b = folder.drive("a\\b");
  struct Case {
    std::string seed;
    std::string directory;  ///< for the dialog that takes the seed as a directory
    std::string ofFile;     ///< for those that take it as the path of a file
  };
  const Case cases[] = {
      {"", "Z:\\", "Z:\\"},
      {b, b, a},
      {"", b, a},
      {b + "\\", b, b},
      {folder.path("a/1.pal").string(), a, a},
      {a + "\\gone\\deeper\\x.pal", a, a},
      {"Q:\\not\\there", a, a},
      {"C:\\sub\\x.pal", "C:\\sub", "C:\\sub"},
      {"no directory", "C:\\sub", "C:\\sub"},
      {folder.drive() + "\\\\a\\\\b\\\\x", b, b},
  };
  for (const char* dialog : {kBrowse, kFileBrowse, kSave}) {
    SCOPED_TRACE(dialog);
    for (const Case& c : cases) {
      use(dialog, c.seed, [&] {
        if (dialog == kSave) control<QLineEdit>(dialog, "txtFilename")->setText("x.pal");
        pressOK(dialog);
      });
      EXPECT_EQ(state.BrowseResult, dialog == kBrowse ? c.directory : c.ofFile) << c.seed;
    }
    use(dialog, a + "\\", [&] {
      const auto expect = [&](const char* name, int files) {
        EXPECT_EQ(directory(dialog), name);
        if (dialog == kBrowse) return;
        EXPECT_EQ(control<QListView>(dialog, "File1")->model()->rowCount(), files);
      };
      expect("a", 2);
      pressKey(dialog, "Dir1", Qt::Key_Down);
      expect("b", 0);
      control<QComboBox>(dialog, "Drive1")->setCurrentText("C:");
      expect("C:\\", 1);
      pressKey(dialog, "Dir1", Qt::Key_Return);
    });
    EXPECT_EQ(state.BrowseResult, "C:\\");
  }
}

TEST_F(BrowseDialogs, EscapeAndCancelEmptyWhatTheCloseBoxLeaves) {
  const std::string seed = folder.drive("a") + "\\x";
  for (const char* dialog : {kBrowse, kFileBrowse, kSave}) {
    SCOPED_TRACE(dialog);
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] { press(dialog, dialog == kBrowse ? "CancelButton" : "cmdCancel"); }, true},
        {[&] { pressKey(dialog, "Dir1", Qt::Key_Escape); }, true},
        {[&] { test::window(dialog)->close(); }, false}};
    for (const auto& [act, empties] : cases) {
      state.FileResult = "old";
      use(dialog, seed, act);
      EXPECT_EQ(state.BrowseResult, empties ? "" : seed);
      EXPECT_EQ(state.FileResult, empties && dialog != kBrowse ? "" : "old");
    }
    // After the close box the next one is new and begins where the lists begin by themselves.
    use(dialog, "", [&] {
      EXPECT_EQ(directory(dialog), "Z:\\");
      pressKey(dialog, "Dir1", Qt::Key_Escape);
    });
  }
}

TEST_F(BrowseDialogs, OKGivesADirectoryThatStillExists) {
  use(kBrowse, folder.drive("a/b"), [&] {
    std::filesystem::remove(folder.path("a/b"));
    pressOK(kBrowse);
  });
  EXPECT_EQ(state.BrowseResult, folder.drive("a"));
}

TEST_F(BrowseDialogs, FileBrowseGivesTheSelectedNameOrNone) {
  const auto click = [](Qt::KeyboardModifiers keys = {}) {
    auto* list = control<QListView>(kFileBrowse, "File1");
    const QPoint at = list->visualRect(list->model()->index(1, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, at);
    if (keys) return;
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, keys, at);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, keys, at);
  };
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] {}, ""},       // the name in the seed is not preselected
      {click, "2.PAL"},  // nor does a double click close the window
      {[] {}, ""},       // the next use begins without a file
      {[&] { click(), click(Qt::ControlModifier); }, ""},  // taken back
  };
  for (const auto& [act, result] : cases) {
    use(kFileBrowse, folder.drive("a/2.PAL"), [&] {
      act();
      pressOK(kFileBrowse);
    });
    EXPECT_EQ(state.BrowseResult, folder.drive("a"));
    EXPECT_EQ(state.FileResult, result);
  }
}

TEST_F(BrowseDialogs, SaveTakesAnyNameAndKeepsItForTheNextUse) {
  use(kSave, folder.drive("a/1.pal"), [] {
    auto* name = control<QLineEdit>(kSave, "txtFilename");
    EXPECT_EQ(name->text(), "");
    pressOK(kSave);  // does nothing without a name
    pressKey(kSave, "File1", Qt::Key_Home);
    EXPECT_EQ(name->text(), "1.pal");
    name->selectAll();
    QTest::keyClicks(name, "b\\new <i>&.abc");
    pressKey(kSave, "Dir1", Qt::Key_Down);
    EXPECT_TRUE(test::window(kSave)->isVisible());
    pressKey(kSave, "txtFilename", Qt::Key_Return);
  });
  EXPECT_EQ(state.BrowseResult, folder.drive("a/b"));
  EXPECT_EQ(state.FileResult, "b\\new <i>&.abc");
  use(kSave, folder.drive("c/"), [] { pressOK(kSave); });
  EXPECT_EQ(state.BrowseResult, folder.drive("c"));
  EXPECT_EQ(state.FileResult, "b\\new <i>&.abc");
}

}  // namespace
}  // namespace mill
