#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <iterator>
#include <span>

#include "support/windows.h"

namespace mill {
namespace {

using test::control;

/// Lengths in twips; a width of 0 leaves the size to the text.
struct Row {
  const char* name;
  const char* caption;
  int left, top, width, height;
  bool enabled = true;
};

constexpr Row kWindow[] = {
    {"lblSource", "Source Directory:", 120, 30, 0, 0},
    {"lstSource", "", 120, 360, 3855, 315},
    {"cmdSourceBrowse", "Browse", 3120, 0, 855, 255},
    {"lblDest", "Conversion Target Directory:", 4200, 30, 0, 0},
    {"lstDest", "", 4200, 360, 4215, 315},
    {"cmdDestBrowse", "Browse", 7560, 0, 855, 255},
    {"filSource", "", 120, 720, 3375, 3405},
    {"Frame1", "", 3600, 720, 4815, 3375},
    {"cmdOpen", "Sh&ow Preview", 120, 4200, 1335, 495, false},
    {"cmdConvert", "&Convert Picture", 1560, 4200, 1335, 495, false},
    {"cmdBatch", "&Batch Conversion", 3000, 4200, 1455, 495, false},
    {"cmdPalette", "Change &Palette", 4560, 4200, 1335, 495},
    {"cmdInfo", "View &File Info", 6000, 4200, 1095, 495, false},
    {"cmdExit", "Exit", 7320, 4200, 1095, 495},
};

constexpr Row kFrame[] = {
    {"chkPrev", "Show Preview window", 120, 240, 2175, 255},
    {"chkAutoPrev", "Auto Preview", 480, 480, 1815, 255, false},
    {"chkResize", "Resize Window to Fit", 480, 720, 1815, 255, false},
    {"chkPal", "Show Palette window", 2400, 240, 2055, 255},
    {"chkAutoPal", "Auto Palette Selection", 2400, 480, 2055, 255},
    {"chkSearch", "Search Sub-folders", 2760, 720, 1695, 255, false},
    {"Label2", "Palette Directory:", 120, 1110, 0, 0},
    {"cmdBrowsePal", "Browse", 3600, 1080, 855, 255},
    {"lstPalette", "", 120, 1440, 4335, 315},
    {"Label3", "Default Palette:", 120, 1830, 0, 0},
    {"cmdBrowseDefault", "Browse", 3600, 1800, 855, 255},
    {"lstDefault", "", 120, 2160, 4335, 315},
    {"Label1", "Current Palette:", 120, 2520, 1335, 255},
    {"lblPalFile", "", 120, 2760, 4575, 495},
};

struct MenuRow {
  const char* menu;
  const char* name;
  const char* caption;
  const char* shortcut;
  bool enabled;
};

constexpr MenuRow kMenus[] = {
    {"&File", "mnuOpen", "&Preview", "Ctrl+O", false},
    {"&File", "mnuConvert", "&Convert...", "Ctrl+C", false},
    {"&File", "mnuBatch", "&Batch Convert...", "Ctrl+B", false},
    {"&File", "mnuFileSeperator", "", "", true},
    {"&File", "mnuExit", "&Exit", "", true},
    {"&Edit", "mnuPalette", "Change &Palette...", "Ctrl+P", true},
    {"&Edit", "mnuInfo", "View &File Info...", "Ctrl+F", false},
    {"&Edit", "mnuOptions", "&Options...", "Ctrl+T", true},
    {"&Help", "mnuAbout", "&About...", "", true},
};

using CatalogueTest = test::MainWindowTest;

/// Every control stands in `parent`, in its place, with its caption and state.
void expectControls(std::span<const Row> rows, const QWidget* parent) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const auto* widget = control("frmMain", row.name);
    EXPECT_EQ(widget->parentWidget(), parent);
    EXPECT_EQ(widget->pos(), QPoint(row.left / 15, row.top / 15));
    const QSize size = row.width ? QSize(row.width / 15, row.height / 15) : widget->sizeHint();
    EXPECT_EQ(widget->size(), size);
    if (*row.caption) {
      EXPECT_EQ(widget->property("text").toString(), row.caption);
    }
    EXPECT_EQ(widget->isEnabled(), row.enabled);
  }
}

TEST_F(CatalogueTest, EveryControlStandsInItsPlace) {
  start();
  const QWidget* main = test::window("frmMain");
  EXPECT_EQ(main->windowTitle(), "Raster Mill");
  EXPECT_EQ(main->minimumSize(), main->maximumSize());
  EXPECT_TRUE(main->windowFlags() & Qt::WindowMinimizeButtonHint);
  EXPECT_FALSE(main->windowFlags() & Qt::WindowMaximizeButtonHint);
  const QWidget* client = control("frmMain", "cmdExit")->parentWidget();
  EXPECT_EQ(client->size(), QSize(8535 / 15, 4815 / 15));
  EXPECT_EQ(client->geometry().bottom(), main->rect().bottom());
  expectControls(kWindow, client);
  expectControls(kFrame, control("frmMain", "Frame1"));
}

TEST_F(CatalogueTest, EveryCommandStandsInItsMenu) {
  start();
  const MenuRow* row = kMenus;
  for (const QAction* menu : test::window("frmMain")->findChild<QMenuBar*>()->actions()) {
    for (const QAction* item : menu->menu()->actions()) {
      ASSERT_NE(row, std::end(kMenus));
      SCOPED_TRACE(row->name);
      EXPECT_EQ(menu->text(), row->menu);
      EXPECT_EQ(item->objectName(), row->name);
      EXPECT_EQ(item->text(), row->caption);
      EXPECT_EQ(item->shortcut().toString(), row->shortcut);
      EXPECT_EQ(item->isEnabled(), row->enabled);
      ++row;
    }
  }
  EXPECT_EQ(row, std::end(kMenus));
}

}  // namespace
}  // namespace mill
