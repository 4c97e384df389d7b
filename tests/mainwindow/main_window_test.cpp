#include <QAction>
#include <QTest>

#include "mainwindow/frm_main.h"
#include "mainwindow/frm_options.h"
#include "support/windows.h"

namespace mill::test {
namespace {

class MainWindow : public MainWindowTest {
 protected:
  static void click(const char* button) { control<QAbstractButton>("frmMain", button)->click(); }
};

TEST_F(MainWindow, StoresWhatIsChosenButNothingTyped) {
  std::filesystem::remove(settings().file());
  start();
  const std::tuple<const char*, const char*, const char*> boxes[] = {
      {"lstSource", "cmdSourceBrowse", "in"},
      {"lstDest", "cmdDestBrowse", "out"},
      {"lstPalette", "cmdBrowsePal", "pal"}};
  for (const auto& [box, button, chosen] : boxes) {
    type("frmMain", box, folder.drive(chosen));
    pressAndThen("frmMain", button, [] { press("frmBrowse", "OKButton"); });
    type("frmMain", box, "Z:\\typed");
    pressAndThen("frmMain", button, [] { press("frmBrowse", "CancelButton"); });
  }
  type("frmMain", "lstSource", "Z:\\typed");
  type("frmMain", "lstDefault", folder.drive("pal/x.pal"));
  pressAndThen("frmMain", "cmdBrowseDefault", [] {
    QTest::keyClick(control("frmFileBrowse", "File1"), Qt::Key_Home);
    press("frmFileBrowse", "cmdOK");
  });
  for (auto* tick : window("frmMain")->findChildren<QCheckBox*>()) tick->toggle();
  press("frmMain", "cmdExit");
  EXPECT_EQ(messages.texts().size(), 3u);  // no palette, and twice one directory for both
  Texts stored;
  for (const char* key : {"Source", "Dest", "PalDir", "Palette", "ShowPal", "ShowPrev", "AutoPrev",
                          "AutoPal", "ResizeFit", "Search"}) {
    stored.push_back(settings().text(key, "nothing"));
  }
  EXPECT_EQ(stored, (Texts{folder.drive("in"), folder.drive("out"), folder.drive("pal"),
                           folder.drive("pal/base.pal"), "False", "False", "True", "False", "False",
                           "False"}));
}

TEST_F(MainWindow, TakesOddSettings) {
  set("Source", folder.drive("gone"));
  set("ShowPrev", "True");
  set("ResizeFit", "maybe");  // counts as missing, and True is the default
  set("Dest", ".\\data");     // of the program, wherever it is now
  set("PalDir", ".\\typed");  // is not
  start();
  EXPECT_EQ(control<forms::ComboBox>("frmMain", "lstDest")->Text(), sys::App.Path() + "\\data");
  EXPECT_EQ(control<forms::ComboBox>("frmMain", "lstSource")->Text(), sys::App.Path());
  EXPECT_EQ(state.PalDir, ".\\typed");
  EXPECT_TRUE(window("frmPreviewToolbar")->isVisible() && isEnabled("frmMain", "cmdOpen"));
  click("chkPrev");
  EXPECT_FALSE(window("frmPreviewToolbar")->isVisible() || isEnabled("frmMain", "chkResize"));
  EXPECT_TRUE(control<QCheckBox>("frmMain", "chkResize")->isChecked());  // keeps its tick
  press("frmMain", "cmdExit");
  EXPECT_EQ(settings().text("Source", "") + settings().text("Dest", ""), "..\\data");
}

TEST_F(MainWindow, ReadsTheFolderAgainAtF5AndWhenItBecomesActive) {
  for (const char* name : {"b.bmp", "d.bmp"}) addPicture(name);
  start();
  select({"b.bmp", "d.bmp"});
  const auto* list = control<forms::FileList>("frmMain", "filSource");
  addPicture("a.bmp");
  QTest::keyClick(control("frmMain", "lstDest"), Qt::Key_F5);
  EXPECT_EQ(list->model()->rowCount(), 3);
  EXPECT_EQ(list->selectedNames(), (Texts{"b.bmp", "d.bmp"}));
  std::filesystem::remove(folder.path("in/b.bmp"));
  QEvent activation(QEvent::ActivationChange);
  QApplication::sendEvent(window("frmMain"), &activation);
  EXPECT_EQ(list->selectedNames(), Texts{"d.bmp"});
  EXPECT_TRUE(isEnabled("frmMain", "cmdConvert") && !isEnabled("frmMain", "cmdBatch"));
}

TEST_F(MainWindow, OffersWhatSuitsTheSelectionAndConvertsAtADoubleClick) {
  addPicture("c.bmp");
  folder.write("in/b.bmp", model::convertedBitmap(addPicture("a.bmp"), colours));
  // What is selected, what is clicked then, and the commands that can be used.
  const std::tuple<Texts, const char*, std::string> steps[] = {
      {{"a.bmp"}, "", "OC"},           {{"a.bmp"}, "cmdOpen", "CI"}, {{"a.bmp", "c.bmp"}, "", "B"},
      {{"a.bmp"}, "", "CI"},           {{"a.bmp", "a.bmp"}, "", ""}, {{"b.bmp"}, "cmdOpen", "I"},
      {{"b.bmp"}, "chkAutoPrev", "I"}, {{"c.bmp"}, "chkPrev", "CI"}, {{"a.bmp"}, "", "C"}};
  set("ShowPrev", "True");
  start();
  messages.answers = {QMessageBox::Yes};
  for (const auto& [names, button, offered] : steps) {
    select(names);
    if (*button) click(button);
    for (const std::string name : {"Open", "Convert", "Batch", "Info"}) {
      const bool expected = offered.find(name[0]) != std::string::npos;
      EXPECT_EQ(isEnabled("frmMain", ("cmd" + name).c_str()), expected) << offered << name;
      EXPECT_EQ(control<QAction>("frmMain", ("mnu" + name).c_str())->isEnabled(), expected);
    }
  }
  click("chkPrev");
  const auto doubleClick = [this] {
    select({"a.bmp"});  // which previews it
    auto* list = control<QListView>("frmMain", "filSource");
    const QPoint at = list->visualRect(list->currentIndex()).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, at);
  };
  inModal(doubleClick, [] { press("frmConvert", "cmdYes"); });
  EXPECT_TRUE(folder.exists("out/a.bmp"));
  EXPECT_EQ(state.PictureFileName, "a.bmp");  // opened again
}

TEST_F(MainWindow, TakesWhatIsDropped) {
  folder.makeFolder("more");
  start();
  drop("frmMain", "lstDest", folder.path("more"));
  drop("frmMain", "lstPalette", folder.path("in"));
  drop("frmMain", "lstDefault", folder.path("any.PAL"));
  EXPECT_EQ(state.DestDir, folder.drive("more"));
  EXPECT_EQ(state.PalDir, folder.drive("in"));
  EXPECT_EQ(state.DefaultPalette, folder.drive("any.PAL"));
  drop("frmMain", "filSource", folder.path("pal"));
  EXPECT_EQ(state.SourceDir, folder.drive("pal"));
  drop("frmMain", "cmdExit", folder.path("more"));
  folder.write("more/new \xFF.bmp", {});
  drop("frmMain", "cmdExit", folder.path("more/new \xFF.bmp"));
  EXPECT_EQ(state.SelectedFiles, Texts{"new \xFF.bmp"});
}

TEST_F(MainWindow, OptionsAreStoredAtOKAndAtApplyAndNotAtCancel) {
  const std::string here = folder.drive(), old = here + "\\old.pal";
  state.SourceDir = "Z:\\HERE";
  state.DestDir = here;
  state.DefaultPalette = old;
  const auto stored = [] { return Texts{state.SourceDir, state.DestDir, state.DefaultPalette}; };
  const auto confirm = [&](const char* button) {
    type("frmOptions", "txtSource", here);
    messages.answers = {QMessageBox::Cancel};
    press("frmOptions", button);
    EXPECT_EQ(messages.texts(), Texts{"The source and destination directories must be different.\n"
                                      "Are you sure you want to continue?"});
  };
  frmOptions->show();
  EXPECT_FALSE(isEnabled("frmOptions", "cmdApply"));
  type("frmOptions", "txtDest", "Z:\\cancelled");
  press("frmOptions", "cmdCancel");
  frmOptions->show();
  pressAndThen("frmOptions", "cmdPalBrowse", [] { press("frmFileBrowse", "cmdOK"); });  // no name
  confirm("cmdOK");  // brings the directories back, and the window stays
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", here, old}));
  confirm("cmdApply");  // but stores the palette
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", here, here + "\\"}));
  type("frmOptions", "txtDest", "Z:\\");
  pressAndThen("frmOptions", "cmdDestBrowse", [] { press("frmBrowse", "OKButton"); });
  press("frmOptions", "cmdApply");
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", "Z:\\", here + "\\"}));
  type("frmOptions", "txtSource", "Z:\\last");
  press("frmOptions", "cmdOK");
  EXPECT_EQ(stored(), (Texts{"Z:\\last", "Z:\\", here + "\\"}));
  EXPECT_FALSE(frmOptions.isLoaded());
}

}  // namespace
}  // namespace mill::test
