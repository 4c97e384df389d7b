#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QTest>

#include "conversion/frm_convert.h"
#include "conversion/frm_info.h"
#include "conversion/frm_preview_toolbar.h"
#include "dialogs/frm_about.h"
#include "dialogs/frm_browse.h"
#include "dialogs/frm_file_browse.h"
#include "dialogs/frm_save.h"
#include "dialogs/frm_splash.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/frm_options.h"
#include "palette/frm_colour.h"
#include "palette/frm_pal_extract.h"
#include "palette/frm_pal_select.h"
#include "palette/frm_pal_toolbar.h"
#include "support/windows.h"

namespace mill {
namespace {

/// What else a control or window may be than visible, usable, without a tick, and of a fixed size.
enum State : unsigned { Plain = 0, Disabled = 1, Hidden = 2, Ticked = 4, Sizable = 8 };

/// A window, or one of its controls.
struct Row {
  std::string name;
  const char* caption;  ///< an empty one isn't looked at
  /// In twips. Without a size as large as the text, which ends at a left that is negative.
  forms::Rect place;
  State state = Plain;
  forms::Form& (*show)() = nullptr;
};

template <auto& form>
forms::Form& show() {
  form->Show();
  return *form;
}

/// Behind each window its controls, in the order in which the Tab key reaches them. A control in a
/// frame has the frame's name in front.
const Row kRows[] = {
    {"frmMain", "Raster Mill", {0, 0, 8535, 4815}, Plain, show<frmMain>},
    {"lblSource", "Source Directory:", {120, 30}},
    {"lstSource", "", {120, 360, 3855, 315}},
    {"cmdSourceBrowse", "Browse", {3120, 0, 855, 255}},
    {"lblDest", "Conversion Target Directory:", {4200, 30}},
    {"lstDest", "", {4200, 360, 4215, 315}},
    {"cmdDestBrowse", "Browse", {7560, 0, 855, 255}},
    {"filSource", "", {120, 720, 3375, 3405}},
    {"Frame1", "", {3600, 720, 4815, 3375}},
    {"Frame1.chkPrev", "Show Preview window", {120, 240, 2175, 255}},
    {"Frame1.chkAutoPrev", "Auto Preview", {480, 480, 1815, 255}, Disabled},
    {"Frame1.chkResize", "Resize Window to Fit", {480, 720, 1815, 255}, Disabled},
    {"Frame1.chkPal", "Show Palette window", {2400, 240, 2055, 255}},
    {"Frame1.chkAutoPal", "Auto Palette Selection", {2400, 480, 2055, 255}},
    {"Frame1.chkSearch", "Search Sub-folders", {2760, 720, 1695, 255}, Disabled},
    {"Frame1.Label2", "Palette Directory:", {120, 1110}},
    {"Frame1.cmdBrowsePal", "Browse", {3600, 1080, 855, 255}},
    {"Frame1.lstPalette", "", {120, 1440, 4335, 315}},
    {"Frame1.Label3", "Default Palette:", {120, 1830}},
    {"Frame1.cmdBrowseDefault", "Browse", {3600, 1800, 855, 255}},
    {"Frame1.lstDefault", "", {120, 2160, 4335, 315}},
    {"Frame1.Label1", "Current Palette:", {120, 2520, 1335, 255}},
    {"Frame1.lblPalFile", "", {120, 2760, 4575, 495}},
    {"cmdOpen", "Sh&ow Preview", {120, 4200, 1335, 495}, Disabled},
    {"cmdConvert", "&Convert Picture", {1560, 4200, 1335, 495}, Disabled},
    {"cmdBatch", "&Batch Conversion", {3000, 4200, 1455, 495}, Disabled},
    {"cmdPalette", "Change &Palette", {4560, 4200, 1335, 495}},
    {"cmdInfo", "View &File Info", {6000, 4200, 1095, 495}, Disabled},
    {"cmdExit", "Exit", {7320, 4200, 1095, 495}},
    {"frmConvert", "Convert Bitmap", {0, 0, 3975, 3015}, Plain, show<frmConvert>},
    {"Label2",
     "Are you sure you want to continue with the bitmap conversion.",
     {120, 120, 3615, 1095}},
    {"Label3", "Open Progress:", {120, 1320}},
    {"Progress2", "", {120, 1560, 3735, 255}},
    {"Label1", "Conversion Progess:", {120, 1920}},
    {"Progress1", "", {120, 2160, 3735, 255}},
    {"cmdYes", "Yes", {120, 2520, 1335, 375}},
    {"cmdNo", "No", {1560, 2520, 1335, 375}},
    {"frmPreviewToolbar", "Preview", {0, 0, 4575, 3495}, Sizable, show<frmPreviewToolbar>},
    {"Picture1", "", {0, 0, 4575, 3495}},
    {"frmPalToolbar", "Palette (base.pal)", {0, 0, 1920, 1935}, Plain, show<frmPalToolbar>},
    {"palette1", "", {0, 0, 1935, 1935}},
    {"frmBrowse", "Browse for Source Directory", {0, 0, 3825, 2865}, Plain, show<frmBrowse>},
    {"Drive1", "", {120, 120, 2415, 315}},
    {"Dir1", "", {120, 480, 2415, 2265}},
    {"OKButton", "OK", {2640, 120, 1065, 375}},
    {"CancelButton", "Cancel", {2640, 600, 1065, 375}},
    {"frmFileBrowse", "Browse for File", {0, 0, 6030, 2895}, Plain, show<frmFileBrowse>},
    {"Drive1", "", {120, 120, 2295, 315}},
    {"Dir1", "", {120, 480, 2295, 2295}},
    {"File1", "", {2520, 120, 2295, 2655}},
    {"cmdOK", "OK", {4920, 120, 945, 375}},
    {"cmdCancel", "Cancel", {4920, 600, 945, 375}},
    {"frmSave", "Save File", {0, 0, 5985, 3495}, Plain, show<frmSave>},
    {"Drive1", "", {120, 120, 2295, 315}},
    {"Dir1", "", {120, 480, 2295, 2295}},
    {"File1", "", {2520, 120, 2295, 2655}},
    {"Label1", "Filename:", {120, 3045, 855, 195}},
    {"txtFilename", "", {1080, 3000, 3735, 315}},
    {"cmdOK", "OK", {4920, 120, 945, 375}},
    {"cmdCancel", "Cancel", {4920, 600, 945, 375}},
    {"frmPalSelect", "Palette Selection", {0, 0, 7335, 2655}, Plain, show<frmPalSelect>},
    {"Label1", "There is more than one palette with the same index.", {120, 120, 7095, 195}},
    {"Label2", "Choose one from the list below:", {120, 360, 7095, 195}},
    {"lstPalette", "", {120, 600, 7095, 1455}},
    {"cmdPrev", "Preview", {120, 2160, 1335, 375}, Disabled},
    {"cmdDefault", "Default", {3000, 2160, 1335, 375}},
    {"cmdOK", "OK", {5880, 2160, 1335, 375}, Disabled},
    {"frmColour", " View/Edit Palette", {0, 0, 5415, 5655}, Plain, show<frmColour>},
    {"palette1", "", {120, 120, 3855, 3855}},
    {"cmdOK", "OK", {4035, 120, 1320, 375}},
    {"cmdCancel", "Cancel", {4035, 600, 1320, 375}},
    {"cmdExtract", "Extract Palette", {4035, 1080, 1320, 375}},
    {"cmdLoad", "Load Palette", {4035, 1560, 1320, 375}},
    {"cmdSave", "Save Palette", {4035, 2040, 1320, 375}},
    {"cmdInvertAll", "Invert All Colours", {4035, 2520, 1320, 375}},
    {"cmdInvert", "Invert Colour", {4035, 3000, 1320, 375}},
    {"cmdNew", "Set New Colour", {4035, 3480, 1320, 375}},
    {"lblRed", "Red:", {120, 4125, 555, 195}},
    {"txtRed", "", {720, 4080, 615, 285}},
    {"updRed", "", {1335, 4080, 240, 285}},
    {"lblGreen", "Green:", {120, 4500, 555, 195}},
    {"txtGreen", "", {720, 4455, 615, 285}},
    {"updGreen", "", {1335, 4455, 240, 285}},
    {"lblBlue", "Blue:", {120, 4875, 555, 195}},
    {"txtBlue", "", {720, 4830, 615, 285}},
    {"updBlue", "", {1335, 4830, 240, 285}},
    {"lblIndex", "Index:", {120, 5250, 555, 195}},
    {"txtIndex", "0", {720, 5205, 615, 285}},
    {"updIndex", "", {1335, 5205, 240, 285}},
    {"Frame1", "Current", {1800, 4080, 1215, 1410}},
    {"Frame1.lblCurrent", "", {120, 315, 975, 975}},
    {"Frame2", "Orginal", {3120, 4080, 1215, 1410}},
    {"Frame2.lblOrginal", "", {120, 315, 975, 975}},
    {"frmPalExtract", "Palette Extractor", {0, 0, 4935, 6495}, Plain, show<frmPalExtract>},
    {"lblSource", "Source File:", {120, 150, 1500, 195}},
    {"cmdSourceBrowse", "Browse", {2640, 105, 855, 255}},
    {"lstSource", "", {120, 420, 3375, 315}},
    {"lblDest", "Destination Directory:", {120, 870, 1800, 195}},
    {"cmdDestBrowse", "Browse", {2640, 825, 855, 255}},
    {"lstDest", "", {120, 1140, 3375, 315}},
    {"cmdLoad", "Load", {3720, 105, 1095, 330}, Disabled},
    {"cmdPrev", "<", {3720, 510, 510, 330}, Disabled},
    {"cmdNext", ">", {4305, 510, 510, 330}, Disabled},
    {"cmdSave", "Save", {3720, 915, 1095, 330}, Disabled},
    {"cmdDone", "Done", {3720, 1320, 1095, 330}},
    {"Label1", "Number of palettes:", {120, 1785, 1590, 195}},
    {"txtNumber", "", {1740, 1740, 1110, 285}},
    {"Label2", "Current palette index:", {120, 2160, 1590, 195}},
    {"txtIndex", "", {1740, 2115, 1110, 285}},
    {"chkAdd", "Add KSL Name", {2880, 2130, 1935, 255}},
    {"palette1", "", {120, 2520, 3855, 3855}},
    {"frmInfo", "Picture Information", {0, 0, 3150, 2655}, Plain, show<frmInfo>},
    {"Label2", "Picture Format:", {120, 120, 1215, 255}},
    {"lblFormat", "", {1380, 120, 1695, 255}},
    {"Label1", "Dimensions:", {120, 480, 1215, 255}},
    {"lblDimensions", "", {1380, 480, 1695, 255}},
    {"Label4", "File Name:", {120, 840, 1215, 255}},
    {"lblName", "", {1380, 840, 1695, 255}},
    {"Label3", "File Size:", {120, 1200, 1215, 255}},
    {"lblSize", "", {1380, 1200, 1695, 255}},
    {"Label6", "Palette Index:", {120, 1560, 1215, 255}},
    {"lblIndex", "", {1380, 1560, 1695, 255}},
    {"cmdOK", "OK", {1020, 2100, 1095, 375}},
    {"frmOptions", "Options", {0, 0, 6240, 3090}, Plain, show<frmOptions>},
    {"lblSource", "Default Soruce directory:", {120, 120, 4980, 195}},
    {"txtSource", "", {120, 360, 4980, 315}},
    {"cmdSourceBrowse", "Browse", {5220, 360, 900, 315}},
    {"lblDest", "Default Destination Directory:", {120, 870, 4980, 195}},
    {"txtDest", "", {120, 1110, 4980, 315}},
    {"cmdDestBrowse", "Browse", {5220, 1110, 900, 315}},
    {"lblPalette", "Default Palette:", {120, 1620, 4980, 195}},
    {"txtPalette", "", {120, 1860, 4980, 315}},
    {"cmdPalBrowse", "Browse", {5220, 1860, 900, 315}},
    {"cmdOK", "OK", {2595, 2595, 1095, 375}},
    {"cmdCancel", "Cancel", {3810, 2595, 1095, 375}},
    {"cmdApply", "Apply", {5025, 2595, 1095, 375}, Disabled},
    {"frmAbout", "About Raster Mill", {0, 0, 6735, 3855}, Plain, show<frmAbout>},
    {"Frame1", "", {120, 120, 6495, 3000}},
    {"Frame1.Label1", "Raster Mill", {720, 180, 2760, 570}},
    {"Frame1.lblVersion", "Version 1.3.10", {3720, 360}},
    {"Frame1.Label2",
     "This is the public Beta release of the bitmap conversion utility for Ironveil bitmaps.",
     {240, 840, 6015, 600}},
    {"Frame1.Label3", "Written by", {240, 1560, 6015, 225}},
    {"Frame1.Label4", "The Raster Mill authors", {240, 1785, 6015, 360}},
    {"Frame1.Label5",
     "For comments or suggestions send an e-mail to: raster-mill@example.org",
     {240, 2310, 6015, 225}},
    {"Frame1.Label6",
     "Or vist my Ironveil website at: https://raster-mill.example.org",
     {240, 2580, 6015, 225}},
    {"cmdReadme", "&Read Me", {4080, 3300, 1215, 375}},
    {"cmdOK", "&OK", {5400, 3300, 1215, 375}},
    {"frmSplash", "", {0, 0, 7380, 4245}, Plain, show<frmSplash>},
    {"Frame1", "", {120, 120, 7140, 4005}},
    {"Frame1.imgLogo", "", {240, 540, 1815, 2385}},
    {"Frame1.lblRelease", "Public Beta Release", {240, 180, 6660, 225}},
    {"Frame1.lblCompanyProduct", "CompanyProduct", {2340, 600}},
    {"Frame1.lblProductName", "RasterMill", {2340, 1080}},
    {"Frame1.lblPlatform", "Windows", {-6900, 1980}},
    {"Frame1.lblVersion", "Version 1.3.10", {-6900, 2400}},
    {"Frame1.lblNotice", "", {2340, 2760, 4560, 225}},
    {"Frame1.lblCompany", "Ferndale Computers", {240, 3060, 4560, 225}},
    {"Frame1.lblWarning", "Warning", {240, 3300, 5100, 225}},
    {"Frame1.cmdOK", "OK", {5805, 3540, 1095, 375}},
};

/// The menus, and below each its commands.
const std::vector<std::string> kMenus = {
    "&File",
    "  mnuOpen &Preview (Ctrl+O) disabled",
    "  mnuConvert &Convert... (Ctrl+C) disabled",
    "  mnuBatch &Batch Convert... (Ctrl+B) disabled",
    "  mnuFileSeperator ---",
    "  mnuExit &Exit ()",
    "&Edit",
    "  mnuPalette Change &Palette... (Ctrl+P)",
    "  mnuInfo View &File Info... (Ctrl+F) disabled",
    "  mnuOptions &Options... (Ctrl+T)",
    "&Help",
    "  mnuAbout &About... ()",
};

std::string inWords(const QAction* item) {
  const QString name = "  " + item->objectName() + " ";
  if (item->isSeparator()) return (name + "---").toStdString();
  const QString shown = item->text() + " (" + item->shortcut().toString() + ")";
  return (name + shown + (item->isEnabled() ? "" : " disabled")).toStdString();
}

QString captionOf(const QWidget* widget) {
  return widget->property(qobject_cast<const QGroupBox*>(widget) ? "title" : "text").toString();
}

/// The room in pixels that a caption has beyond its need; below 0 it is cut.
int spareRoom(const QWidget* widget) {
  const QString caption = captionOf(widget);
  int room = widget->width() - 4;
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    const QRect need =
        label->fontMetrics().boundingRect(label->contentsRect(), Qt::TextWordWrap, caption);
    return std::min(label->height() - need.height(), label->width() - need.width());
  }
  if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
    QStyleOptionButton option;
    option.initFrom(box);
    room = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
  }
  return room - widget->fontMetrics().size(Qt::TextShowMnemonic, caption).width();
}

void expectWindow(forms::Form& form, const Row& row) {
  const QWidget* client = form.host();
  const QWidget* window = client->window();
  EXPECT_EQ(window->objectName().toStdString(), row.name);
  EXPECT_EQ(window->windowTitle(), row.caption);
  EXPECT_EQ(client->size(), QSize(row.place.Width / 15, row.place.Height / 15));
  EXPECT_EQ(client->geometry().bottom(), window->rect().bottom());
  EXPECT_EQ(window->minimumSize() == window->maximumSize(), row.state != Sizable);
}

void expectControl(const QWidget* control, const Row& row) {
  const QSize size(row.place.Width / 15, row.place.Height / 15);
  QRect place(QPoint(row.place.Left / 15, row.place.Top / 15),
              size.isEmpty() ? control->sizeHint() : size);
  if (place.x() < 0) place.moveLeft(-place.x() - place.width());
  EXPECT_EQ(control->geometry(), place);
  // The last line of the swatch window's grid is its border.
  EXPECT_TRUE(control->parentWidget()->rect().adjusted(0, 0, 1, 1).contains(place));
  EXPECT_EQ(captionOf(control), *row.caption ? row.caption : captionOf(control));
  EXPECT_GE(spareRoom(control), 0);
  EXPECT_EQ(control->isEnabled(), !(row.state & Disabled));
  EXPECT_EQ(control->isVisible(), !(row.state & Hidden));
  EXPECT_EQ(control->property("checked").toBool(), (row.state & Ticked) != 0);
}

using Catalogue = test::MainWindowTest;

TEST_F(Catalogue, EveryControlIsInItsPlaceAndAmongTheStopsOfTheTabKey) {
  forms::Form* form = nullptr;
  QWidget* focused = nullptr;
  start();
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    if (row.show) {
      form = &row.show();
      focused = nullptr;
      expectWindow(*form, row);
      continue;
    }
    QWidget* control = form->host();
    for (const QString& name : QString::fromStdString(row.name).split('.')) {
      control = control->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
      ASSERT_TRUE(control);
    }
    expectControl(control, row);
    if (!(control->focusPolicy() & Qt::TabFocus)) continue;
    control->setEnabled(true);
    if (!focused) control->setFocus();
    if (focused) QTest::keyClick(focused, Qt::Key_Tab);
    EXPECT_EQ(control->window()->focusWidget(), control);
    focused = control;
  }
}

TEST_F(Catalogue, EveryCommandStandsInItsMenu) {
  start();
  std::vector<std::string> found;
  for (const QAction* menu : test::window("frmMain")->findChild<QMenuBar*>()->actions()) {
    found.push_back(menu->text().toStdString());
    for (const QAction* item : menu->menu()->actions()) found.push_back(inWords(item));
  }
  EXPECT_EQ(found, kMenus);
  // Alt+F is that of the menu, and not the button's now and then.
  EXPECT_TRUE(test::control<QPushButton>("frmMain", "cmdInfo")->shortcut().isEmpty());
}

}  // namespace
}  // namespace mill
