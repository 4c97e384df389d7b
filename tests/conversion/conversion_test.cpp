#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>

#include <utility>

#include "conversion/frm_info.h"
#include "formats/progress_count.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "platform/forms/application.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using model::convertedBitmap;
using test::Bytes;
using test::control;
using test::press;
using test::readFile;
using Texts = std::vector<std::string>;

class Conversion : public test::MainWindowTest {
 protected:
  static bool enabled(const char* form, const char* name) {
    return control(form, name)->isEnabled();
  }
  void convert(const Texts& names, const char* button = "cmdBatch") {
    select(names);
    test::pressAndThen("frmMain", button, [] { press("frmConvert", "cmdYes"); });
  }
  Bytes written(const std::string& name) const { return readFile(folder.path("out/" + name)); }
};

TEST_F(Conversion, TakesTheSelectionAndSkipsWhatIsRefused) {
  const Bytes a = addPicture("a.bmp", 1), b = addPicture("b.bmp", 2), z = addPicture("z.bmp", 3);
  addPicture("not selected.bmp");
  folder.write("in/junk.bmp", {'j', 'u', 'n', 'k'});
  set("Dest", folder.drive("pal"));
  start();
  // A picture that is open already is taken from memory, and the box says where all of them go.
  OpenPicture(folder.drive("in/a.bmp"));
  addPicture("a.bmp", 4);
  control<QComboBox>("frmMain", "lstDest")->setEditText(folder.path("out").c_str());
  messages.meanwhile = [&] {
    EXPECT_TRUE(test::window("frmConvert")->isVisible());
    EXPECT_FALSE(enabled("frmConvert", "cmdYes") || enabled("frmConvert", "cmdNo"));
    EXPECT_EQ(state.PictureFileName, "b.bmp");
  };
  convert({"z.bmp", "b.bmp", "junk.bmp", "a.bmp"});
  EXPECT_EQ(messages.texts(), Texts{"This file is not a valid bitmap file."});
  EXPECT_EQ(written("a.bmp"), convertedBitmap(a, colours));
  EXPECT_EQ(written("b.bmp"), convertedBitmap(b, colours));
  EXPECT_EQ(written("z.bmp"), convertedBitmap(z, colours));
  EXPECT_FALSE(folder.exists("out/junk.bmp") || folder.exists("out/not selected.bmp"));

  EXPECT_EQ(state.PictureFileName, "");
  EXPECT_FALSE(test::window("frmConvert")->isVisible());
  EXPECT_TRUE(enabled("frmConvert", "cmdYes") && enabled("frmConvert", "cmdNo"));
  for (const char* name : {"cmdOpen", "cmdConvert", "cmdBatch"}) {
    EXPECT_FALSE(enabled("frmMain", name)) << name;
  }
  test::settle();
  EXPECT_EQ(control<QProgressBar>("frmConvert", "Progress1")->value(), 100);
  EXPECT_EQ(control<QProgressBar>("frmConvert", "Progress2")->value(), 0);
}

TEST_F(Conversion, AsksWhetherToGoOnAfterAWriteFailure) {
  const Texts names = {"a.bmp", "b.bmp", "c.bmp"};
  for (const std::string& name : names) addPicture(name);
  const std::string goOn = "Go on with the remaining pictures?";
  const auto unwritable = [&](const char* name) {
    return "The file can't be written.\n" + folder.drive("gone/") + name;
  };
  set("Dest", folder.drive("gone"));
  start();
  messages.answers = {Answer::OK, Answer::Yes, Answer::OK, Answer::Yes, Answer::OK};
  convert(names);
  EXPECT_EQ(messages.texts(),
            (Texts{unwritable("a.bmp"), goOn, unwritable("b.bmp"), goOn, unwritable("c.bmp")}));
  messages.answers = {Answer::OK, Answer::No};
  convert(names);
  EXPECT_EQ(messages.texts(), (Texts{unwritable("a.bmp"), goOn}));
  EXPECT_EQ(state.PictureFileName, "");
}

TEST_F(Conversion, OneDirectoryUnderTwoNamesIsSaidOnce) {
  std::filesystem::create_directory_symlink("in", folder.path("link"));
  set("Dest", folder.drive("link"));
  const Bytes a = addPicture("a.bmp", 1), b = addPicture("b.bmp", 2);
  start();
  EXPECT_TRUE(messages.texts().empty());
  convert({"a.bmp", "b.bmp"});
  messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                      forms::Icon::Information);
  EXPECT_EQ(readFile(folder.path("in/a.bmp")), a);
  EXPECT_EQ(readFile(folder.path("in/b.bmp")), b);
}

TEST_F(Conversion, AsksForEachStandardBitmap) {
  const Bytes c = addPicture("c.bmp");
  Bytes standard = convertedBitmap(c, model::someColours(8));
  standard[6] = 5;  // reserved, and comes through as it is
  for (const char* name : {"in/a.bmp", "in/b.bmp"}) folder.write(name, standard);
  start();
  messages.answers = {Answer::Yes, Answer::No};
  convert({"a.bmp", "b.bmp", "c.bmp"});
  EXPECT_EQ(messages.texts().size(), 2u);
  EXPECT_EQ(written("a.bmp"), standard);
  EXPECT_FALSE(folder.exists("out/b.bmp"));
  // The colours of the last bitmap opened are the palette of what follows.
  EXPECT_EQ(written("c.bmp"), convertedBitmap(c, model::someColours(8)));
}

TEST_F(Conversion, TheInformationIsTheStateAsItIs) {
  struct {
    bool standard;
    std::int32_t size, width, height, index;
    const char *format, *sizeText, *dimensions, *indexText;
  } const rows[] = {
      {false, 307244, 640, 480, 52, "Kestrel Bitmap", "307244", " 640 x 480 pixels", "52"},
      {false, 48, 1, 1, -7, "Kestrel Bitmap", "48", " 1 x 1 pixels", "-7"},
      // What the header of a standard bitmap says, even where that can't be.
      {true, -3, 16, -16, 25, "Windows Bitmap", "-3", " 16 x-16 pixels", "N/A"}};
  const auto shown = [](const char* label) {
    return control<QLabel>("frmInfo", label)->text().toStdString();
  };
  for (const auto& row : rows) {
    state.RecordIsStandard = row.standard;
    state.PictureRecord.bfSize = row.size;
    state.PictureRecord.biWidth = row.width;
    state.PictureRecord.biHeight = row.height;
    state.PictureRecord.PaletteIndex = row.index;
    state.PictureFileName = "a&b.bmp";
    frmInfo->Show();
    EXPECT_EQ(shown("lblFormat"), row.format);
    EXPECT_EQ(shown("lblSize"), row.sizeText);
    EXPECT_EQ(shown("lblDimensions"), row.dimensions);
    EXPECT_EQ(shown("lblIndex"), row.indexText);
    EXPECT_EQ(shown("lblName"), "a&b.bmp");
    press("frmInfo", "cmdOK");
    EXPECT_FALSE(frmInfo.isLoaded());
  }
}

class Preview : public Conversion {
 protected:
  Preview() {
    set("ShowPrev", "True");
    add("a.bmp", 40, 24, 960);
  }

  void add(const std::string& name, int width, int height, int dataSize) {
    folder.write("in/" + name,
                 model::kestrelBitmap({.width = width, .height = height, .dataSize = dataSize}));
  }
  static QWidget* box() { return control("frmPreviewToolbar", "Picture1"); }
  static void resizeTo(QSize size) {
    test::window("frmPreviewToolbar")->resize(size);
    test::settle();
  }
  void expectShown(const Bytes& bitmap, QSize size, int scale = 1) {
    EXPECT_EQ(box()->geometry(), QRect({}, size));
    EXPECT_TRUE(test::painted(box()) == test::boxWith(bitmap, size, scale)) << size.width();
  }
  Bytes temporary() const { return readFile(folder.path("temp.bmp")); }
  static void click(const char* checkBox) { control<QCheckBox>("frmMain", checkBox)->click(); }
};

TEST_F(Preview, IsFittedToThePictureOrStretchedToTheWindow) {
  add("padded.bmp", 150, 100, 15200);
  add("narrow.bmp", 61, 40, 61 * 40);
  set("ResizeFit", "True");
  start();
  preview("padded.bmp");
  expectShown(temporary(), {150, 100});
  preview("narrow.bmp");
  expectShown(temporary(), {61, 40});
  preview("a.bmp");
  expectShown(temporary(), {40, 24});
  click("chkResize");  // off, which alone changes nothing
  expectShown(temporary(), {40, 24});
  for (const int scale : {2, 1, 8}) {
    resizeTo(QSize(40, 24) * scale);
    expectShown(temporary(), QSize(40, 24) * scale, scale);
  }
  click("chkResize");
  expectShown(temporary(), {40, 24});
  // Each resize shows what the file holds by then.
  folder.write("temp.bmp",
               convertedBitmap(readFile(folder.path("in/a.bmp")), model::someColours(9)));
  resizeTo({80, 48});
  expectShown(temporary(), {80, 48});
}

TEST_F(Preview, PaintsNothingAnewWithoutAnOpenPicture) {
  start();
  resizeTo({80, 48});  // there is no file to load yet
  click("chkResize");
  EXPECT_EQ(box()->size(), QSize(80, 48));
  preview("a.bmp");
  const Bytes shown = temporary();
  convert({"a.bmp"}, "cmdConvert");
  folder.write("temp.bmp", {});
  for (const QSize size : {QSize(60, 50), QSize(20, 10)}) {
    resizeTo(size);
    expectShown(shown, size);
  }
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(Preview, AFileThatCannotBeLoadedLeavesItEmpty) {
  start();
  resizeTo({80, 48});
  const QImage empty = test::painted(box());
  preview("a.bmp");
  std::filesystem::remove(folder.path("temp.bmp"));
  messages.meanwhile = [] {
    EXPECT_EQ(forms::Screen.ActiveForm()->MousePointer(), forms::vbHourglass);
    for (const int height : {50, 49}) resizeTo({80, height});  // brings no second message
  };
  resizeTo({80, 49});
  messages.expectLast(1, "error loading bitmap.", "", forms::Icon::None);
  EXPECT_EQ(forms::Screen.ActiveForm()->MousePointer(), forms::vbDefault);
  EXPECT_TRUE(test::painted(box()).copy(0, 0, 80, 48) == empty);
  // The next picture is shown as ever, though nobody sees the window.
  test::window("frmPreviewToolbar")->close();
  state.PictureFileName.clear();
  preview("a.bmp");
  for (int i = 0; i < 2; ++i) click("chkPrev");
  resizeTo({80, 48});
  expectShown(temporary(), {80, 48}, 2);
}

TEST_F(Preview, ABitmapThatCannotBeWrittenLeavesItEmptyToo) {
  add("b.bmp", 40, 24, 960);
  start();
  const QImage empty = test::painted(box());
  preview("a.bmp");
  const test::Limit fullDisk(RLIMIT_FSIZE, 100);
  preview("b.bmp");
  const std::string text = "The file can't be written.\n" + folder.path().string() + "\\temp.bmp";
  messages.expectLast(1, text, "Warning!", forms::Icon::Critical);
  EXPECT_TRUE(test::painted(box()) == empty);
  for (const QSize size : {QSize(60, 40), test::window("frmPreviewToolbar")->size()})
    resizeTo(size);
  EXPECT_TRUE(test::painted(box()).copy(0, 0, 60, 40) == empty.copy(0, 0, 60, 40));
}

/// What a bar shows, one value after the other, without repeats.
struct Bar {
  std::vector<std::int32_t> values;
  ProgressCount count;
  void report(std::int16_t num, std::int32_t times) {
    count.report(num, times, [this](std::int32_t percent) {
      if (values.empty() || values.back() != percent) values.push_back(percent);
    });
  }
};

TEST(Progress, ManyReportsInOneStepShowWhatSingleReportsWould) {
  for (const std::int32_t total :
       {-5, 0, 1, 3, 7, 44, 99, 100, 101, 199, 200, 201, 640, 1122, 65'535, 307'244, INT32_MAX}) {
    for (const auto& [num, times] : std::vector<std::pair<std::int16_t, std::int32_t>>{
             {68, 1}, {1, 0}, {1, 1}, {1, 50}, {1, 40'000}, {4, 256}, {68, 300}}) {
      Bar many, single;
      many.count.total = single.count.total = total;
      // Twice, so that the second batch begins in the middle of a percentage.
      for (int batch = 0; batch < 2; ++batch) {
        many.report(num, times);
        for (std::int32_t i = 0; i < times; ++i) single.report(num, 1);
      }
      ASSERT_EQ(many.values, single.values) << num << " times " << times << " of " << total;
      ASSERT_EQ(many.count.current, single.count.current);
      ASSERT_EQ(many.count.progress, single.count.progress);
    }
  }
}

TEST(Progress, RoundsAndStaysInRange) {
  // A total, the amount reported of it, and the percentage shown.
  const std::int32_t cases[][3] = {{200, 1, 0},   {200, 3, 2}, {1000, 6, 1}, {300, 100, 33},
                                   {44, 68, 100}, {0, 500, 0}, {-9, 500, 0}};
  for (const auto& [total, amount, percent] : cases) {
    Bar bar;
    bar.count.total = total;
    bar.report(1, amount);
    EXPECT_EQ(bar.values.back(), percent) << amount << " of " << total;
  }
}

}  // namespace
}  // namespace mill
