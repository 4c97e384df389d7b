#include <QComboBox>
#include <QTest>

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
    for (const char* name : {"a/1.pal", "a/2.PAL", "a/0.txt"}) folder.write(name, {});
    state.FilePattern = "*.pal";
  }
  ~BrowseDialogs() override { ::unsetenv("WINEPREFIX"); }

  /// Shows a dialog with a seed and does `act` in it.
  static void use(const char* dialog, const std::string& seed, const std::function<void()>& act) {
    state.BrowseResult = seed;
    forms::Form& form = dialog == kBrowse       ? static_cast<forms::Form&>(*frmBrowse)
                        : dialog == kFileBrowse ? static_cast<forms::Form&>(*frmFileBrowse)
                                                : static_cast<forms::Form&>(*frmSave);
    test::inModal([&] { form.showModal(); }, act);
    test::settle();
  }
  static void pressOK(const char* dialog) {
    press(dialog, dialog == kBrowse ? "OKButton" : "cmdOK");
  }
};

TEST_F(BrowseDialogs, StartWhereTheSeedSaysAndTheirListsFollowEachOther) {
  const std::string a = folder.drive("a"), b = folder.drive("a\\b");
  // The seed, and where it leads as a directory and as the path of a file.
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"", "Z:\\", "Z:\\"},
      {b, b, a},
      {folder.path("a\\b/1.pal").string(), b, b},
      {a + "\\gone\\deeper\\x.pal", a, a},
      {"c:\\sub\\x.pal", "C:\\sub", "C:\\sub"},
      {folder.drive() + "\\\\a\\\\b\\\\x", b, b}};
  for (const char* dialog : {kBrowse, kFileBrowse, kSave}) {
    SCOPED_TRACE(dialog);
    for (const auto& [seed, directory, ofFile] : cases) {
      use(dialog, seed, [&] {
        if (dialog == kSave) control<QLineEdit>(dialog, "txtFilename")->setText("x.pal");
        const bool isGone = control(dialog, "Dir1")->toolTip().contains("gone");
        EXPECT_EQ(isGone, seed.find("gone") != std::string::npos);
        pressOK(dialog);
      });
      EXPECT_EQ(state.BrowseResult, dialog == kBrowse ? directory : ofFile) << seed;
    }
    use(dialog, a + "\\", [&] {
      control<QComboBox>(dialog, "Drive1")->setCurrentText("C:");
      QTest::keyClick(control(dialog, "Dir1"), Qt::Key_Return);
    });
    EXPECT_EQ(state.BrowseResult, "C:\\");
  }
}

TEST_F(BrowseDialogs, NeverGiveADirectoryThatIsGone) {
  const std::string b = folder.drive("a\\b");
  for (const char* dialog : {kFileBrowse, kSave}) {
    folder.makeFolder("a/b");
    folder.write("a/b/1.pal", {});  // as there is one in "a"
    use(dialog, b + "\\x", [&] {
      QTest::keyClick(control(dialog, "File1"), Qt::Key_Home);
      std::filesystem::remove_all(folder.path("a/b"));
      pressOK(dialog);
      EXPECT_EQ(messages.texts(), test::Texts{"The directory does not exist.\n" + b});
      EXPECT_TRUE(test::window(dialog)->isVisible());
      press(dialog, "cmdCancel");
    });
  }
  use(kBrowse, "C:\\sub", [] { pressOK(kBrowse); });
  std::filesystem::remove(folder.path("prefix/dosdevices/c:"));
  use(kBrowse, "", [] {
    EXPECT_EQ(control<QComboBox>(kBrowse, "Drive1")->currentText(), "Z:");
    pressOK(kBrowse);
  });
  EXPECT_EQ(state.BrowseResult, "Z:\\");
}

TEST_F(BrowseDialogs, EscapeAndCancelEmptyWhatTheCloseBoxLeaves) {
  const std::string seed = folder.drive("a") + "\\x";
  for (const char* dialog : {kBrowse, kFileBrowse, kSave}) {
    SCOPED_TRACE(dialog);
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] { press(dialog, dialog == kBrowse ? "CancelButton" : "cmdCancel"); }, true},
        {[&] { QTest::keyClick(control(dialog, "Dir1"), Qt::Key_Escape); }, true},
        {[&] { test::window(dialog)->close(); }, false}};
    for (const auto& [act, empties] : cases) {
      use(dialog, seed, act);
      EXPECT_EQ(state.BrowseResult, empties ? "" : seed);
    }
  }
}

TEST_F(BrowseDialogs, FilesArePickedOrTypedAndNamesStayForTheNextUse) {
  use(kFileBrowse, folder.drive("a/2.PAL"), [&] {
    QTest::keyClick(control(kFileBrowse, "File1"), Qt::Key_Home);
    pressOK(kFileBrowse);
  });
  EXPECT_EQ(state.FileResult, "1.pal");
  use(kSave, folder.drive("a/1.pal"), [] {
    pressOK(kSave);  // does nothing without a name
    QTest::keyClick(control(kSave, "File1"), Qt::Key_Home);
    EXPECT_EQ(control<QLineEdit>(kSave, "txtFilename")->text(), "1.pal");
    test::type(kSave, "txtFilename", "b\\new <i>&.abc");
    QTest::keyClick(control(kSave, "txtFilename"), Qt::Key_Return);
  });
  EXPECT_EQ(state.FileResult, "b\\new <i>&.abc");
  use(kSave, folder.drive("c/"), [] { pressOK(kSave); });
  EXPECT_EQ(state.BrowseResult + state.FileResult, folder.drive("c") + "b\\new <i>&.abc");
}

}  // namespace
}  // namespace mill
