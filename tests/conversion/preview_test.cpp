#include <QCheckBox>
#include <QScreen>

#include "picture/program_state.h"
#include "platform/application.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::boxWith;
using test::control;
using test::painted;

class PreviewTest : public test::MainWindowTest {
 protected:
  PreviewTest() {
    set("ShowPrev", "True");
    add("a.bmp", 40, 24, 960);
  }

  void add(const std::string& name, int width, int height, int dataSize) {
    folder.write("in/" + name,
                 model::kestrelBitmap({.width = width, .height = height, .dataSize = dataSize}));
  }
  test::Bytes temporary() const { return test::readFile(folder.path("temp.bmp")); }
  static QWidget* box() { return control("frmPreviewToolbar", "Picture1"); }
  static void resizeTo(QSize size) {
    test::window("frmPreviewToolbar")->resize(size);
    test::settle();
    EXPECT_EQ(box()->geometry(), QRect({}, size));
  }
  static void click(const char* checkBox) { control<QCheckBox>("frmMain", checkBox)->click(); }
};

TEST_F(PreviewTest, FittedTheWindowTakesThePicturesSize) {
  add("tall.bmp", 8, 300, 2400);
  add("padded.bmp", 150, 100, 15200);
  add("large.bmp", 1204, 1003, 1204 * 1003);
  set("ResizeFit", "True");
  start();
  const QSize screen = QGuiApplication::primaryScreen()->virtualSize();
  for (const auto& [name, size] : {std::pair("tall.bmp", QSize(8, 300)),
                                   {"a.bmp", QSize(40, 24)},
                                   {"large.bmp", QSize(1204, 1003)},
                                   {"padded.bmp", QSize(150, 100)}}) {
    preview(name);
    EXPECT_EQ(box()->size(), size.boundedTo(screen)) << name;
    EXPECT_TRUE(painted(box()) == boxWith(temporary(), box()->size())) << name;
  }
  resizeTo({400, 130});  // by hand, which leaves the picture at its size
  EXPECT_TRUE(painted(box()) == boxWith(temporary(), {400, 130}));
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(PreviewTest, StretchedThePictureFillsTheWindow) {
  start();
  preview("a.bmp");
  const QImage shown = painted(box()), picture = boxWith(temporary(), {40, 24});
  EXPECT_EQ(shown.size(), QSize(4575 / 15, 3495 / 15));
  for (const bool right : {false, true}) {
    for (const bool bottom : {false, true}) {
      EXPECT_EQ(shown.pixel(right ? 304 : 0, bottom ? 232 : 0),
                picture.pixel(right ? 39 : 0, bottom ? 23 : 0));
    }
  }
  for (const int scale : {2, 1, 8}) {
    resizeTo(QSize(40, 24) * scale);
    EXPECT_TRUE(painted(box()) == boxWith(temporary(), QSize(40, 24) * scale, scale));
  }
  click("chkResize");
  EXPECT_TRUE(painted(box()) == picture);
  click("chkResize");  // off again, which alone changes nothing
  EXPECT_TRUE(painted(box()) == picture);
  // Each resize shows what the file holds by then.
  folder.write("temp.bmp", model::convertedBitmap(test::readFile(folder.path("in/a.bmp")),
                                                  model::someColours(9)));
  resizeTo({80, 48});
  EXPECT_TRUE(painted(box()) == boxWith(temporary(), {80, 48}, 2));
}

TEST_F(PreviewTest, WithoutAnOpenPictureTheWindowPaintsNothingAnew) {
  start();
  resizeTo({80, 48});  // there is no file to load yet
  click("chkResize");
  EXPECT_EQ(box()->size(), QSize(80, 48));
  preview("a.bmp");
  const test::Bytes shown = temporary();
  convert("cmdConvert");
  folder.write("temp.bmp", {});
  for (const QSize size : {QSize(60, 50), QSize(20, 10)}) {
    resizeTo(size);
    EXPECT_TRUE(painted(box()) == boxWith(shown, size));
  }
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(PreviewTest, AFileThatCannotBeLoadedLeavesTheBoxEmpty) {
  start();
  resizeTo({80, 48});
  const QImage empty = painted(box());
  preview("a.bmp");
  std::filesystem::remove(folder.path("temp.bmp"));
  messages.meanwhile = [] {
    EXPECT_EQ(forms::Screen.ActiveForm()->MousePointer(), forms::vbHourglass);
  };
  resizeTo({80, 49});
  messages.expectLast(1, "error loading bitmap.", "", forms::Icon::None);
  EXPECT_EQ(forms::Screen.ActiveForm()->MousePointer(), forms::vbDefault);
  EXPECT_TRUE(painted(box()).copy(0, 0, 80, 48) == empty);
  // The next picture is shown as ever, though nobody sees the window.
  test::window("frmPreviewToolbar")->close();
  state.PictureFileName.clear();
  preview("a.bmp");
  for (int i = 0; i < 2; ++i) click("chkPrev");
  resizeTo({80, 48});
  EXPECT_TRUE(painted(box()) == boxWith(temporary(), {80, 48}, 2));
}

}  // namespace
}  // namespace mill
