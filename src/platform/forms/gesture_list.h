#pragma once

#include <QListView>
#include <QStringListModel>

#include <functional>

namespace forms {

/// A list of texts that tells gestures apart: a drag over a hundred rows or Ctrl+A is one Click, a
/// double click raises DblClick after its Click, and a key that changes nothing or a change by code
/// raises nothing.
class GestureList : public QListView {
 public:
  GestureList(QWidget* parent, SelectionMode mode, std::function<void()> click,
              std::function<void()> dblClick = {});

  void setTexts(const QStringList& texts) { texts_.setStringList(texts); }
  QStringList texts() const { return texts_.stringList(); }
  /// The text of the current row or, where the user has just taken that out of the selection, of
  /// the first one that is selected; empty when there is none.
  QString chosenText() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Gesture { None, OnRow, OffRows, DoubleClick };

  QStringListModel texts_;
  std::function<void()> click_;
  std::function<void()> dblClick_;
  Gesture gesture_ = Gesture::None;
  bool isChanged_ = false;  ///< the selection or the current row, since a key was pressed
};

}  // namespace forms
