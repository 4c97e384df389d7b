#include "support/windows.h"

#include <QAccessible>
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

namespace mill::test {
namespace {

QString captionOf(const QWidget* control) {
  const bool hasText = control->inherits("QLabel") || control->inherits("QAbstractButton");
  return control->property(hasText ? "text" : "title").toString();
}

/// Whether there is room for the caption.
bool fits(const QWidget* control) {
  const QString caption = captionOf(control);
  if (caption.isEmpty() || dynamic_cast<const forms::ElidedLabel*>(control)) return true;
  const int width = control->width();
  if (control->hasHeightForWidth()) return control->heightForWidth(width) <= control->height();
  const int aside = control->inherits("QCheckBox") ? 17 : control->inherits("QPushButton") ? 4 : 0;
  return control->fontMetrics().size(Qt::TextShowMnemonic, caption).width() + aside <= width;
}

/// What a screen reader is told about a window, down to each control and swatch.
void expectReadable(QAccessibleInterface* at, std::set<QString>& buttons) {
  const QString name = at->text(QAccessible::Name);
  const QAccessible::State state = at->state();
  SCOPED_TRACE(name.toStdString() + " " +
               qPrintable(at->object() ? at->object()->objectName() : ""));
  if (state.invisible) return;
  EXPECT_FALSE(state.focusable && name.isEmpty()) << at->role();
  EXPECT_FALSE(Qt::mightBeRichText(name + at->text(QAccessible::Description)));
  EXPECT_TRUE(at->role() != QAccessible::PushButton || buttons.insert(name).second);
  EXPECT_TRUE(at->role() != QAccessible::ProgressBar || (at->valueInterface() && !name.isEmpty()));
  for (int i = 0; i < at->childCount(); ++i) expectReadable(at->child(i), buttons);
}

using Windows = MainWindowTest;

TEST_F(Windows, ShowEveryControlWholeAndByTheTabKey) {
  start();
  const char* const site = "Or vist my Ironveil website at: " MILL_AUTHOR_SITE;
  // The client size and one caption.
  const std::tuple<forms::Form*, const char*, QSize, const char*> windows[] = {
      {&*frmMain, "Raster Mill", {569, 321}, "Sh&ow Preview"},
      {&*frmConvert, "Convert Bitmap", {265, 201}, "Conversion Progess:"},
      {&*frmPreviewToolbar, "Preview", {305, 233}, ""},
      {&*frmPalToolbar, "Palette (base.pal)", {128, 129}, ""},
      {&*frmBrowse, "Browse for Source Directory", {255, 191}, "OK"},
      {&*frmFileBrowse, "Browse for File", {402, 193}, "OK"},
      {&*frmSave, "Save File", {399, 233}, "Filename:"},
      {&*frmPalSelect, "Palette Selection", {489, 177}, "Default"},
      {&*frmColour, " View/Edit Palette", {361, 377}, "Orginal"},
      {&*frmPalExtract, "Palette Extractor", {329, 433}, "Add KSL Name"},
      {&*frmInfo, "Picture Information", {210, 177}, "OK"},
      {&*frmOptions, "Options", {416, 206}, "Default Soruce directory:"},
      {&*frmAbout, "About Raster Mill", {449, 257}, site},
      {&*frmSplash, "", {492, 283}, "CompanyProduct"}};
  for (const auto& [form, title, client, odd] : windows) {
    form->show();
    QApplication::setFont(QFont("DejaVu Sans", 14));  // as a desktop's theme does at any time
    EXPECT_EQ(form->windowTitle(), title);
    EXPECT_EQ(form->client()->size(), client) << title;
    EXPECT_EQ(form->minimumSize() == form->maximumSize(), form != &*frmPreviewToolbar) << title;
    std::set<QString> captions, buttons;
    expectReadable(QAccessible::queryAccessibleInterface(form), buttons);
    QPoint at;
    for (auto* control : form->client()->findChildren<QWidget*>(QRegularExpression("^(?!qt_)."))) {
      const QWidget* parent = control->parentWidget();
      SCOPED_TRACE(title + control->objectName().toStdString());
      EXPECT_TRUE(fits(control));
      // Swatches may lose their last line of pixels.
      EXPECT_TRUE(parent->rect().adjusted(0, 0, 1, 1).contains(control->geometry()));
      captions.insert(captionOf(control));
      control->setEnabled(true);
      if (!(control->focusPolicy() & Qt::TabFocus)) continue;
      at.isNull() ? control->setFocus() : QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
      EXPECT_EQ(form->focusWidget(), control);
      const QPoint centre = control->mapTo(form->client(), control->rect().center());
      EXPECT_TRUE(centre.x() > at.x() || centre.y() > at.y()) << "a step back";
      at = centre;
    }
    EXPECT_EQ(captions.count(odd), 1) << odd;
  }
}

}  // namespace
}  // namespace mill::test
