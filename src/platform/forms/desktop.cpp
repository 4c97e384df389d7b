#include "platform/forms/desktop.h"

#include <QImageReader>
#include <QProxyStyle>

#include <csignal>
#include <malloc.h>

#include "platform/forms/window_font.h"
#include "platform/system/application.h"
#include "platform/system/text.h"

namespace forms {

namespace {

/// The windows are laid out for small indicators and tight spacing.
class CompactStyle final : public QProxyStyle {
 public:
  CompactStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
        return 13;
      case PM_CheckBoxLabelSpacing:
        return 4;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

Desktop::Desktop(char* programName)
    : arguments_{programName, nullptr}, application_(count_, arguments_) {
  QCoreApplication::setApplicationName(sys::shown(sys::App.Title));
  // The program ends with its main window, not when no window is visible.
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(new CompactStyle);
  QApplication::setFont(windowFont());
  // A file that meets the limit for file sizes fails to be written, like on a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  // Memory goes from one picture to the next; giving it back and asking for it again costs more
  // than converting a picture.
  ::mallopt(M_MMAP_THRESHOLD, 1 << 25);
  ::mallopt(M_TRIM_THRESHOLD, 1 << 26);
  // Large pictures exceed Qt's limit, and only images written by this program are read.
  QImageReader::setAllocationLimit(0);
}

}  // namespace forms
