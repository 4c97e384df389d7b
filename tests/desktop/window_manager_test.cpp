#include <QCheckBox>
#include <QProcess>
#include <QTest>
#include <QWindow>

#include "conversion/frm_convert.h"
#include "conversion/frm_preview_toolbar.h"
#include "mainwindow/frm_main.h"
#include "palette/frm_pal_toolbar.h"
#include "platform/forms/desktop.h"
#include "support/windows.h"

namespace mill::test {

using WindowManagerTest = MainWindowTest;

QString xdotool(const QString& command, const QWidget& window) {
  QProcess tool;
  tool.startCommand("xdotool " + command.arg(window.winId()));
  tool.waitForFinished();
  return tool.readAllStandardOutput();
}

/// Hides or shows the preview by its check box or, along with the swatches, by the main window.
bool show(bool shown, bool byBox) {
  if (byBox) control<QCheckBox>("frmMain", "chkPrev")->click();
  if (!byBox) xdotool(shown ? "windowactivate %1" : "windowminimize %1", *frmMain);
  return QTest::qWaitFor([=] {
    return frmPreviewToolbar->windowHandle()->isExposed() == shown &&
           frmPalToolbar->windowHandle()->isExposed() == (shown || byBox) &&
           frmMain->isActiveWindow() == (shown || byBox);
  });
}

TEST_F(WindowManagerTest, PreviewComesBackToItsPlaceInAnotherSize) {
  set("ShowPal", "True");
  start();
  ASSERT_TRUE(show(true, true));
  QWidget& preview = *frmPreviewToolbar;
  const auto place = [&] { return xdotool("getwindowgeometry %1", preview).section('\n', 1, 1); };
  for (const bool isMoved : {false, true}) {
    if (isMoved) xdotool("windowmove --sync %1 700 500", preview);
    const QString before = place();
    for (int round = 0; round < 20; ++round) {
      ASSERT_TRUE(show(false, round % 2 == 0));
      preview.resize(300 + 5 * round, 200 - 3 * round);
      ASSERT_TRUE(show(true, round % 2 == 0));
      ASSERT_EQ(place().toStdString(), before.toStdString()) << round;
    }
  }
}

TEST_F(WindowManagerTest, ModalWindowKeepsTheFocusAndRefusesToClose) {
  start();
  inModal([] { frmConvert->showModal(); },
          [] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&*frmConvert));
            xdotool("windowactivate %1 sleep 0.5 key alt+F4", *frmMain);
            QTest::qWait(500);  // far longer than a window takes to close
            EXPECT_TRUE(frmConvert->isActiveWindow());
            frmConvert->hide();
          });
  EXPECT_TRUE(QTest::qWaitForWindowActive(&*frmMain));
}

}  // namespace mill::test

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const mill::test::TempFolder home;
  for (const char* name : {"HOME", "XDG_CONFIG_HOME"}) ::setenv(name, home.path().c_str(), 1);
  const forms::Desktop desktop(argv[0]);
  return RUN_ALL_TESTS();
}
