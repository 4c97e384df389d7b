#include "conversion/frm_info.h"

#include <QLabel>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

std::string shownIn(const char* label) {
  return test::control<QLabel>("frmInfo", label)->text().toStdString();
}

using Info = test::WindowTest;

TEST_F(Info, ShowsTheStateAsItIs) {
  struct {
    bool standard;
    std::int32_t size, width, height, index;
    const char *format, *sizeText, *dimensions, *indexText;
  } const rows[] = {
      {false, 307244, 640, 480, 52, "Kestrel Bitmap", "307244", " 640 x 480 pixels", "52"},
      {false, 44, 1, 1, 0, "Kestrel Bitmap", "44", " 1 x 1 pixels", "0"},
      {false, 48, 1, 1, -7, "Kestrel Bitmap", "48", " 1 x 1 pixels", "-7"},
      // What the header of a standard bitmap says, even where that can't be.
      {true, -3, 16, -16, 25, "Windows Bitmap", "-3", " 16 x-16 pixels", "N/A"}};
  for (const auto& row : rows) {
    state.RecordIsStandard = row.standard;
    state.PictureRecord.bfSize = row.size;
    state.PictureRecord.biWidth = row.width;
    state.PictureRecord.biHeight = row.height;
    state.PictureRecord.PaletteIndex = row.index;
    state.PictureFileName = "a&b.bmp";
    frmInfo->Show();
    EXPECT_EQ(shownIn("lblFormat"), row.format);
    EXPECT_EQ(shownIn("lblSize"), row.sizeText);
    EXPECT_EQ(shownIn("lblDimensions"), row.dimensions);
    EXPECT_EQ(shownIn("lblIndex"), row.indexText);
    EXPECT_EQ(shownIn("lblName"), "a&b.bmp");
    test::press("frmInfo", "cmdOK");
    EXPECT_FALSE(frmInfo.isLoaded());
  }
}

}  // namespace
}  // namespace mill
