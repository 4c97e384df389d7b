#pragma once

#include <QLabel>

#include <string>

namespace forms {

/// A text from outside. It may break anywhere, and where there is no room for all of it, its middle
/// is left out. A tool tip shows the whole then, and always in a frame, which is for paths.
class ElidedLabel final : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent, int frameStyle = QFrame::NoFrame);

  void showText(const std::string& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect room() const;
  bool fits(const QString& text) const;
  QString fitting() const;
};

}  // namespace forms
