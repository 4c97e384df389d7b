#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QTest>

#include "conversion/frm_convert.h"
#include "dialogs/frm_browse.h"
#include "dialogs/frm_file_browse.h"
#include "dialogs/frm_save.h"
#include "mainwindow/frm_main.h"
#include "palette/frm_colour.h"
#include "palette/frm_pal_extract.h"
#include "palette/frm_pal_select.h"
#include "support/windows.h"

namespace mill {
namespace {

int textWidth(const QWidget* widget, const QString& text) {
  return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// The room in pixels that a caption has beyond its need; below 0 it is cut.
int spareRoom(const QWidget* widget) {
  if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
    return button->width() - 4 - textWidth(button, button->text());
  }
  if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect room = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box);
    return room.width() - textWidth(box, box->text());
  }
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    const QRect need =
        label->fontMetrics().boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text());
    return std::min(label->height() - need.height(), label->width() - need.width());
  }
  if (const auto* frame = qobject_cast<const QGroupBox*>(widget)) {
    return frame->width() - 16 - textWidth(frame, frame->title());
  }
  return 0;
}

/// The controls that a window's own code placed, without the parts that they are made of.
std::vector<const QWidget*> controls(const char* form) {
  std::vector<const QWidget*> controls;
  for (const QWidget* widget : test::window(form)->findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    if (!widget->isWindow() && !name.isEmpty() && !name.startsWith(QLatin1String("qt_")))
      controls.push_back(widget);
  }
  return controls;
}

void expectRoomForAll(const char* form) {
  for (const QWidget* widget : controls(form)) {
    const std::string name = std::string(form) + "." + widget->objectName().toStdString();
    EXPECT_GE(spareRoom(widget), 0) << name;
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name;
    for (const QWidget* other : controls(form)) {
      const bool neighbours = other != widget && other->parent() == widget->parent();
      // Neighbours may share the line between them.
      const QRect inside = widget->geometry().adjusted(1, 1, -1, -1);
      EXPECT_FALSE(neighbours && inside.intersects(other->geometry()))
          << name << " lies over " << other->objectName().toStdString();
    }
  }
}

using Captions = test::WindowTest;

TEST_F(Captions, NoneIsCutAndNoControlLiesOverAnother) {
  frmMain->Show();
  frmConvert->Show();
  frmBrowse->Show();
  frmFileBrowse->Show();
  frmSave->Show();
  frmPalSelect->Show();
  frmColour->Show();
  frmPalExtract->Show();
  for (const char* form : {"frmMain", "frmConvert", "frmBrowse", "frmFileBrowse", "frmSave",
                           "frmPalSelect", "frmColour", "frmPalExtract"}) {
    expectRoomForAll(form);
  }
}

TEST_F(Captions, TheTabKeyGoesDownOneColumnAfterTheOther) {
  frmColour->Show();
  frmPalExtract->Show();
  for (const char* form : {"frmColour", "frmPalExtract"}) {
    QWidget* window = test::window(form);
    window->activateWindow();
    for (auto* button : window->findChildren<QPushButton*>()) button->setEnabled(true);
    std::vector<const QWidget*> left = controls(form);
    std::erase_if(left, [](auto* widget) { return !(widget->focusPolicy() & Qt::TabFocus); });
    for (QWidget* now = window->focusWidget(); std::erase(left, now) > 0;) {
      QWidget* before = now;
      QTest::keyClick(before, Qt::Key_Tab);
      now = window->focusWidget();
      const bool goesOn = now->y() > before->y() || now->x() > before->x();
      EXPECT_TRUE(goesOn || left.empty()) << form << "." << now->objectName().toStdString();
    }
    EXPECT_TRUE(left.empty()) << form << "." << left.front()->objectName().toStdString();
  }
}

}  // namespace
}  // namespace mill
