#include "platform/forms/common_dialog.h"

#include <QFileDialog>

#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

std::function<std::string()> answerer;

/// "KSL files (*.ksl)|*.ksl" as Qt writes it, with both cases for desktops whose own dialog minds.
QString nameFilter(const char* filter) {
  const QStringList parts = shown(filter).split(QLatin1Char('|'));
  const QString text = parts.front().section(QLatin1Char('('), 0, 0).trimmed();
  return text + QLatin1String(" (") + parts.back() + QLatin1Char(' ') + parts.back().toUpper() +
         QLatin1Char(')');
}

}  // namespace

CommonDialog::CommonDialog(Form& owner, const char* name, const char* title, const char* filter)
    : owner_(owner), name_(name), title_(title), filter_(filter) {}

bool CommonDialog::ShowOpen(const std::string& directory) {
  std::string picked;
  if (answerer) {
    picked = answerer();
  } else {
    QFileDialog dialog(owner_.host()->window(), shown(title_),
                       shown(nativePath(directory).string()), nameFilter(filter_));
    dialog.setObjectName(name_);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() == QDialog::Accepted) picked = bytesOf(dialog.selectedFiles().value(0));
  }
  if (!picked.empty()) fileName_ = drivePath(picked);
  return !picked.empty();
}

void answerCommonDialogWith(std::function<std::string()> answer) {
  answerer = std::move(answer);
}

}  // namespace forms
