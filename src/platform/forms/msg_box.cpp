#include "platform/forms/msg_box.h"

#include <QMessageBox>

#include "platform/forms/application.h"
#include "platform/system/text.h"

namespace forms {

namespace {

std::function<Answer(const Message&)> answerer;

QMessageBox::StandardButtons standardButtons(Buttons buttons) {
  switch (buttons) {
    case Buttons::OKCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::OK:
      break;
  }
  return QMessageBox::Ok;
}

Answer answerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::OK;
  }
}

QMessageBox::Icon iconOf(Icon icon) {
  switch (icon) {
    case Icon::Critical:
      return QMessageBox::Critical;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

/// A long path may break behind each of its separators, since a box breaks lines between words
/// only.
QString breakable(const std::string& text) {
  return shown(text)
      .replace(QLatin1String("\r\n"), QLatin1String("\n"))
      .replace(QLatin1Char('\\'), QStringLiteral("\\\u200B"));
}

}  // namespace

Answer MsgBox(const Message& message) {
  if (answerer) return answerer(message);
  const QString title = message.title.empty() ? shown(App.Title) : shown(message.title);
  Form* owner = Screen.ActiveForm();
  QMessageBox box(iconOf(message.icon), title, breakable(message.text),
                  standardButtons(message.buttons),
                  owner && owner->Visible() ? owner->host()->window() : nullptr);
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  return answerOf(box.exec());
}

void answerMessagesWith(std::function<Answer(const Message&)> answer) {
  answerer = std::move(answer);
}

}  // namespace forms
