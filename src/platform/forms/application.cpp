#include "platform/forms/application.h"

#include <QApplication>
#include <QFont>
#include <QProxyStyle>

#include "platform/forms/shell.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

/// The windows were laid out for small indicators and tight spacing.
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

QFont defaultFont() {
  QFont font;
  font.setFamilies(
      {QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica")});
  font.setPixelSize(11);
  return font;
}

}  // namespace

struct Desktop::Private {
  int argc = 1;
  char* argv[2];
  QApplication application;
  FormInput input;

  explicit Private(char* programName) : argv{programName, nullptr}, application(argc, argv) {}
};

Desktop::Desktop(char* programName) {
  QCoreApplication::setApplicationName(shown(Application::Title));
  private_ = std::make_unique<Private>(programName);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(new CompactStyle);
  QApplication::setFont(defaultFont());
  private_->application.installEventFilter(&private_->input);
}

Desktop::~Desktop() {
  while (Forms.Count() > 0) Forms[Forms.Count() - 1].Unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void dropInput() {
  QCoreApplication::processEvents();
}

std::string Application::Path() const {
  return drivePath(bytesOf(QCoreApplication::applicationDirPath()));
}

int Application::Major() const {
  return MILL_VERSION_MAJOR;
}
int Application::Minor() const {
  return MILL_VERSION_MINOR;
}
int Application::Revision() const {
  return MILL_VERSION_REVISION;
}

int Application::run(const std::function<Form&()>& load) {
  QEventLoop loop;
  bool ended = false;
  Forms.onLastUnloaded = [&] {
    ended = true;
    loop.quit();
  };
  Form& startUp = load();
  if (!ended) {
    startUp.Show();
    loop.exec();
  }
  Forms.onLastUnloaded = {};
  return 0;
}

}  // namespace forms
