#include <QListView>
#include <QTest>

#include "platform/bitmap.h"
#include "platform/list_box.h"
#include "platform/swatch_grid.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Bitmap;
using test::boxWith;
using test::control;

class PictureProbe final : public forms::Form {
 public:
  PictureProbe()
      : Form({.Name = "frmPictureProbe",
              .Caption = "",
              .BorderStyle = forms::Border::FixedSingle,
              .Client = {6000, 6000}}) {}
  int clicks = 0;

 private:
  void click() { ++clicks; }

 public:
  forms::SwatchGrid grid{*this, "grid", 600, 300, 120};
  forms::ListBox lstBox{*this, "lstBox", {0, 3000, 3000, 1500}, &PictureProbe::click};
};

forms::Global<PictureProbe> probe;

class Pictures : public test::WindowTest, public QObject {
 protected:
  Pictures() {
    probe->Show();
    folder.write("small.bmp", small);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    paintings += event->type() == QEvent::Paint;
    return false;
  }
  static void fill(std::uint8_t green) {
    for (int i = 0; i < 256; ++i)
      probe->grid.setBackColor(i, static_cast<std::uint8_t>(i), green, 9);
  }

  int paintings = 0;
  /// Six pixels wide, in rows of eight bytes.
  const test::Bytes small = model::convertedBitmap(
      model::kestrelBitmap({.width = 6, .height = 5, .dataSize = 40}), model::someColours(1));
};

TEST_F(Pictures, ABitmapIsLoadedAtItsOwnSizeOrStretched) {
  for (const auto& [size, scale] : {std::pair(QSize(0, 0), 1), std::pair(QSize(24, 20), 4)}) {
    const auto bitmap = Bitmap::load(folder.drive("small.bmp"), size.width(), size.height());
    ASSERT_TRUE(bitmap);
    EXPECT_TRUE(bitmap->image().convertToFormat(QImage::Format_RGB32) ==
                boxWith(small, QSize(6, 5) * scale, scale));
  }
  folder.write("text", test::Bytes(2000, 'B'));
  folder.write("cut", {small.begin(), small.begin() + 30});
  folder.makeFolder("folder");
  for (const char* name : {"missing", "folder", "text", "cut"}) {
    EXPECT_FALSE(Bitmap::load(folder.drive(name), 0, 0)) << name;
  }
}

TEST_F(Pictures, ABitmapMayBeLargerThanQtAllows) {
  test::Bytes head(small.begin(), small.begin() + 1078);
  for (const std::size_t at : {18u, 22u}) head[at] = 12000 & 0xFF, head[at + 1] = 12000 >> 8;
  folder.write("large.bmp", head);
  std::filesystem::resize_file(folder.path("large.bmp"), 1078 + 12000 * 12000);
  EXPECT_TRUE(Bitmap::load(folder.drive("large.bmp"), 0, 0));
}

TEST_F(Pictures, AllSwatchesTogetherCostOnePainting) {
  test::settle();
  control("frmPictureProbe", "grid")->installEventFilter(this);
  for (const int expected : {1, 0}) {  // the second time nothing changes
    paintings = 0;
    fill(1);
    test::settle();
    EXPECT_EQ(paintings, expected);
  }
  // Colours set while nobody sees them don't keep later ones from being painted.
  probe->Hide();
  fill(2);
  probe->Show();
  test::settle();
  paintings = 0;
  fill(3);
  test::settle();
  EXPECT_EQ(paintings, 1);
}

TEST_F(Pictures, AListGivesBackWhatWasChosenAndOneClickForEachGesture) {
  auto* view = control<QListView>("frmPictureProbe", "lstBox");
  const std::vector<std::string> texts = {"Z:\\same", "Z:\\same", "<b>&\xFF\xC3.pal", ""};
  for (const std::string& text : texts) probe->lstBox.AddItem(text);
  const auto at = [&](int row) { return view->visualRect(view->model()->index(row, 0)).center(); };
  const auto expectClick = [&](std::size_t row) {
    EXPECT_EQ(std::exchange(probe->clicks, 0), 1);
    EXPECT_EQ(probe->lstBox.Text(), texts[row]);
  };
  view->setFocus();
  EXPECT_EQ(probe->lstBox.SelCount() + probe->clicks, 0);
  for (const int row : {3, 2, 1, 0}) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at(row));
    expectClick(static_cast<std::size_t>(row));
  }
  QTest::keyClick(view, Qt::Key_End);
  expectClick(3);
  QTest::mousePress(view->viewport(), Qt::LeftButton, {}, at(0));
  for (const int row : {1, 2}) QTest::mouseMove(view->viewport(), at(row));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at(2));
  expectClick(2);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, at(2));
  EXPECT_EQ(std::exchange(probe->clicks, 0), 1);
  EXPECT_EQ(probe->lstBox.SelCount(), 0);
  EXPECT_EQ(probe->lstBox.Text(), "");
}

}  // namespace
}  // namespace mill
