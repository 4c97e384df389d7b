#include "platform/forms/msg_box.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/window_font.h"
#include "platform/system/application.h"
#include "platform/system/text.h"

namespace forms {

namespace {

static_assert(int{QMessageBox::Critical} == static_cast<int>(Icon::Critical));
static_assert((QMessageBox::Yes | QMessageBox::No).toInt() == static_cast<int>(Buttons::YesNo));

/// Qt can't wrap paths and limits the width of the box, so the middle of a longer path is left out.
QString fitting(const QMessageBox& box, const QString& text) {
  constexpr int kMargins = 120;
  const int screen = box.screen()->availableSize().width();
  const int room = (screen <= 1024 ? screen : std::min(screen - 480, 1000)) - kMargins;
  QStringList lines = text.split(QLatin1Char('\n'));
  for (QString& line : lines) {
    if (line.contains(QLatin1Char('\\'))) {
      line = box.fontMetrics().elidedText(line, Qt::ElideMiddle, room);
    }
  }
  return lines.join(QLatin1Char('\n'));
}

/// Sets the texts. If a path doesn't fit, the details show all of it.
void setTexts(QMessageBox& box, const Message& message) {
  const QString text = sys::shown(message.text).remove(QLatin1Char('\r'));
  const QString informative = sys::shown(message.informative);
  box.setTextFormat(Qt::PlainText);
  box.setText(fitting(box, text));
  box.setInformativeText(fitting(box, informative));
  if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
    label->setTextFormat(Qt::PlainText);
  }
  const bool isWhole = box.text() == text && box.informativeText() == informative;
  const QString both = informative.isEmpty() ? text : text + QLatin1Char('\n') + informative;
  box.setDetailedText(isWhole || !message.details.empty() ? sys::shown(message.details) : both);
}

}  // namespace

Answer MsgBox(const Message& message) {
  Form* owner = Form::active();
  QMessageBox box(owner && owner->isVisible() ? owner : nullptr);
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setFont(windowFont());
  box.setWindowTitle(message.title.empty() ? sys::shown(sys::App.Title)
                                           : sys::shown(message.title));
  setTexts(box, message);
  box.setIcon(static_cast<QMessageBox::Icon>(message.icon));
  box.setStandardButtons(QMessageBox::StandardButtons::fromInt(static_cast<int>(message.buttons)));
  box.setWindowModality(Qt::ApplicationModal);
  const auto& [caption, isChosen] = message.option;
  if (!caption.empty()) box.setCheckBox(new QCheckBox(sys::shown(caption)));
  const auto answer = static_cast<Answer>(box.exec());
  if (isChosen) *isChosen = box.checkBox()->isChecked();
  return answer;
}

}  // namespace forms
