#include "platform/forms/msg_box.h"

#include <QMessageBox>
#include <QScreen>

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/system/application.h"
#include "platform/system/text.h"

namespace forms {

namespace {

static_assert(int{QMessageBox::Critical} == static_cast<int>(Icon::Critical));
static_assert((QMessageBox::Yes | QMessageBox::No).toInt() == static_cast<int>(Buttons::YesNo));

/// Qt can't wrap paths and limits the width of the box. The middle of a longer path is left out;
/// the details then show all of it.
void fitPaths(QMessageBox& box) {
  constexpr int kMargins = 120;
  const int screen = box.screen()->availableSize().width();
  const int room = (screen <= 1024 ? screen : std::min(screen - 480, 1000)) - kMargins;
  QStringList lines = box.text().split(QLatin1Char('\n'));
  for (QString& line : lines) {
    if (line.contains(QLatin1Char('\\'))) {
      line = box.fontMetrics().elidedText(line, Qt::ElideMiddle, room);
    }
  }
  const QString fitting = lines.join(QLatin1Char('\n'));
  if (fitting == box.text()) return;
  box.setDetailedText(box.text());
  box.setText(fitting);
}

}  // namespace

Answer MsgBox(const Message& message) {
  Form* owner = Form::active();
  QMessageBox box(owner && owner->isVisible() ? owner : nullptr);
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(message.title.empty() ? sys::shown(sys::App.Title)
                                           : sys::shown(message.title));
  box.setText(sys::shown(message.text).remove(QLatin1Char('\r')));
  box.setIcon(static_cast<QMessageBox::Icon>(message.icon));
  box.setStandardButtons(QMessageBox::StandardButtons::fromInt(static_cast<int>(message.buttons)));
  box.setWindowModality(Qt::ApplicationModal);
  fitPaths(box);
  return static_cast<Answer>(box.exec());
}

}  // namespace forms
