#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

#include "conversion/frm_info.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill::test {
namespace {

using model::convertedBitmap;
using model::kestrelBitmap;
using model::someColours;

class Conversion : public MainWindowTest {
 protected:
  Conversion() {
    for (const char* flag : {"ShowPrev", "ResizeFit"}) set(flag, "True");
  }

  void convert(const Texts& names) {
    select(names);
    const char* button = names.size() > 1 ? "cmdBatch" : "cmdConvert";
    pressAndThen("frmMain", button, [] { press("frmConvert", "cmdYes"); });
  }
  Bytes temporary() const { return readFile(folder.path("temp.bmp")); }

  static QWidget* box() { return control("frmPreviewToolbar", "Picture1"); }
  static void resizeTo(QSize size) {
    window("frmPreviewToolbar")->resize(size);
    settle();
  }
  static void expectShown(const Bytes& bitmap, QSize size, int scale = 1) {
    EXPECT_TRUE(painted(box()) == boxWith(bitmap, size, scale)) << size.width();
  }
  static void expectEmpty(QSize size) { expectShown(Bytes(54), size); }
};

TEST_F(Conversion, TakesTheSelectionAndSkipsWhatIsRefused) {
  const Bytes a = addPicture("a.bmp", 1), z = addPicture("z.bmp", 2);
  const Bytes standard = convertedBitmap(a, someColours(8));
  for (const char* name : {"in/no.bmp", "in/yes.bmp"}) folder.write(name, standard);
  folder.write("in/junk.bmp", {'j', 'u', 'n', 'k'});
  start();
  // A picture that is open already is taken from memory, and the box says where all of them go.
  preview("a.bmp");
  addPicture("a.bmp", 3);
  type("frmMain", "lstDest", folder.drive("pal"));
  // Clicks on the main window during the run come to nothing.
  hooks.isConverting = [list = control("frmMain", "filSource")] {
    QWindow* target = list->window()->windowHandle();
    const QPoint at = list->mapTo(list->window(), QPoint(9, 9));
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QCoreApplication::postEvent(target, new QMouseEvent(type, at, target->mapToGlobal(at),
                                                          Qt::LeftButton, Qt::LeftButton, {}));
    }
    return true;
  };
  messages.answers = {QMessageBox::Ok, QMessageBox::No, QMessageBox::Yes};
  messages.meanwhile = [] {
    EXPECT_FALSE(isEnabled("frmConvert", "cmdYes") || isEnabled("frmConvert", "cmdNo"));
  };
  convert({"a.bmp", "junk.bmp", "no.bmp", "yes.bmp", "z.bmp"});
  EXPECT_EQ(messages.texts().size(), 3u);
  EXPECT_EQ(readFile(folder.path("pal/a.bmp")), convertedBitmap(a, colours));
  EXPECT_FALSE(folder.exists("pal/junk.bmp") || folder.exists("pal/no.bmp"));
  EXPECT_EQ(readFile(folder.path("pal/yes.bmp")), standard);
  // The colours of the last bitmap opened are the palette of what follows.
  EXPECT_EQ(readFile(folder.path("pal/z.bmp")), convertedBitmap(z, someColours(8)));
  settle();
  EXPECT_EQ(state.SelectedCount, 5);
  EXPECT_TRUE(isEnabled("frmConvert", "cmdYes") && !isEnabled("frmMain", "cmdBatch"));
}

TEST_F(Conversion, AsksFromTheSecondFailureOnAndSumsUpWhatWasPassedOver) {
  const Texts names = {"a.bmp", "b.bmp", "c.bmp", "d.bmp", "e.bmp"};
  for (const std::string& name : names) addPicture(name);
  folder.write("in/c.bmp", {'K'});
  set("Dest", folder.drive("gone"));
  start();
  Texts below;
  messages.meanwhile = [&] {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    // The bars are about the same picture, even if they haven't moved for it.
    const QString about = control("frmConvert", "Progress1")->accessibleDescription();
    EXPECT_TRUE(about.startsWith(box->informativeText().section('\n', 0, 0)));
    EXPECT_TRUE(about.isEmpty() || about.endsWith(".bmp")) << qPrintable(about);
    below.push_back((box->informativeText() + box->detailedText()).toStdString());
    if (below.size() == 3) box->checkBox()->setChecked(true);
  };
  const std::string failure = "The file can't be written.\n" + folder.drive("gone/");
  const std::string ask = "\nGo on with the remaining pictures?", in = folder.drive("in/");
  messages.answers = {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::Yes, QMessageBox::Ok};
  convert(names);
  EXPECT_EQ(messages.texts(),
            (Texts{failure + "a.bmp", failure + "b.bmp", "This file is not a valid bitmap file.",
                   "2 of 5 pictures were passed over."}));
  EXPECT_EQ(below, (Texts{"1 of 5\n" + in + "a.bmp", "2 of 5\n" + in + "b.bmp" + ask,
                          "3 of 5\n" + in + "c.bmp" + ask, "d.bmp\ne.bmp\n"}));
  messages.answers = {QMessageBox::Ok, QMessageBox::No};
  convert(names);
  EXPECT_EQ(messages.texts().size(), 2u);

  below = {""};
  std::filesystem::remove(folder.path("pal/base.pal"));
  state.AutoPal = true;
  type("frmMain", "lstDest", folder.drive("out"));
  messages.answers = {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::Ok};
  convert(names);
  EXPECT_EQ(messages.texts().back() + below.back(),
            "1 of 5 pictures were passed over.\n2 of 5 pictures were converted with a warning."
            "c.bmp\n\nd.bmp\ne.bmp\n");
  type("frmMain", "lstDest", folder.drive("gone"));

  std::filesystem::create_directory_symlink("in", folder.path("gone"));  // is said once
  convert({"a.bmp", "b.bmp"});
  messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                      QMessageBox::Information);
}

TEST_F(Conversion, ShowsInformationOnThePicture) {
  state.PictureFileName = "a&b.bmp";
  state.PictureRecord.bfSize = -3;
  state.PictureRecord.biWidth = 640;
  state.PictureRecord.biHeight = -16;
  state.PictureRecord.PaletteIndex = -7;
  for (const bool standard : {false, true}) {
    state.RecordIsStandard = standard;
    frmInfo->show();
    Texts shown;
    for (const char* name : {"lblFormat", "lblDimensions", "lblName", "lblSize", "lblIndex"}) {
      shown.push_back(control<QLabel>("frmInfo", name)->text().toStdString());
    }
    EXPECT_EQ(shown, (Texts{standard ? "Windows Bitmap" : "Kestrel Bitmap", " 640 x-16 pixels",
                            "a&b.bmp", "-3", standard ? "N/A" : "-7"}));
    press("frmInfo", "cmdOK");
  }
}

TEST_F(Conversion, ThePreviewIsFittedToThePictureOrStretchedToTheWindow) {
  folder.write("in/narrow.bmp", kestrelBitmap({.width = 37, .height = 24, .dataSize = 37 * 24}));
  start();
  preview("narrow.bmp");
  expectShown(temporary(), {37, 24});
  EXPECT_EQ(box()->accessibleName(), "Preview of narrow.bmp");
  resizeTo({60, 50});
  expectShown(temporary(), {60, 50});
  auto* fit = control<QCheckBox>("frmMain", "chkResize");
  fit->click();
  for (const int scale : {2, 1, 8}) {
    resizeTo(QSize(37, 24) * scale);
    expectShown(temporary(), QSize(37, 24) * scale, scale);
  }
  for (int i = 0; i < 3; ++i) fit->click();  // which fits it, and fits it again
  expectShown(temporary(), {37, 24});
  fit->click();
  resizeTo({60, 50});
  window("frmPreviewToolbar")->hide();
  fit->click();
  convert({"narrow.bmp"});  // no picture is open afterwards, and the preview stays as it is
  window("frmPreviewToolbar")->show();
  expectShown(temporary(), {37, 24});
  const Bytes shown = temporary();
  folder.write("temp.bmp", {});
  resizeTo({60, 50});
  expectShown(shown, {60, 50});
}

TEST_F(Conversion, ThePreviewShowsColour0WhereARunLengthBitmapSkipsPixels) {
  const Bytes plain =
      convertedBitmap(kestrelBitmap({.width = 8, .height = 2, .dataSize = 16, .pixels = Bytes(16)}),
                      someColours(8));
  Bytes compressed = plain;
  compressed[30] = compressed[1079] = 1;  // run-length encoded, and at its end at once
  folder.write("in/runs.bmp", compressed);
  start();
  messages.answers = {QMessageBox::Yes};
  preview("runs.bmp");
  expectShown(plain, {32, 16});  // the smallest window
}

TEST_F(Conversion, ThePreviewIsEmptyWhereTheBitmapCannotBeLoadedOrWritten) {
  const Bytes own = addPicture("temp.bmp");
  for (const char* name : {"a.bmp", "b.bmp"}) addPicture(name);
  start();
  ::setenv("temp", folder.drive("in").c_str(), 1);
  press("frmMain", "cmdOpen");  // with no picture selected
  EXPECT_EQ(readFile(folder.path("in/temp.bmp")), own);
  ::setenv("temp", folder.path().c_str(), 1);
  preview("a.bmp");
  std::filesystem::remove(folder.path("temp.bmp"));
  messages.meanwhile = [] { resizeTo({80, 50}); };  // brings no second message
  resizeTo({80, 49});
  messages.expectLast(2, "error loading bitmap.", "RasterMill", QMessageBox::NoIcon);
  expectEmpty({80, 50});
  preview("b.bmp");
  expectShown(temporary(), {32, 16});

  ::setenv("temp", folder.drive("gone").c_str(), 1);
  preview("a.bmp");
  EXPECT_EQ(messages.texts(),
            Texts{"The file can't be written.\n" + folder.drive("gone/temp.bmp")});
  resizeTo({60, 40});
  expectEmpty({60, 40});
}

}  // namespace
}  // namespace mill::test
