#pragma once

#include <QListView>
#include <QStringListModel>

#include <functional>

namespace forms {

/// A list of texts that reports each gesture once: dragging over a hundred rows or pressing Ctrl+A
/// is one Click, and a double click is a Click and a DblClick. Keys that change nothing and changes
/// by code aren't reported. With single selection, the mouse can't clear a choice once made.
class GestureList : public QListView {
 public:
  GestureList(QWidget* parent, SelectionMode mode, std::function<void()> click,
              std::function<void()> dblClick = {});

  void setTexts(const QStringList& texts) { texts_.setStringList(texts); }
  QStringList texts() const { return texts_.stringList(); }
  /// The text of the current row or, if that has just been deselected, of the row still selected;
  /// empty if nothing is selected.
  QString chosenText() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Shows texts that are cut off as a tool tip.
  bool viewportEvent(QEvent* event) override;

 private:
  enum class Gesture { None, Click, DoubleClick };

  bool begins(const QMouseEvent& event) const;

  QStringListModel texts_;
  std::function<void()> click_;
  std::function<void()> dblClick_;
  Gesture gesture_ = Gesture::None;
  bool isChanged_ = false;  ///< whether a key changed the selection or the current row
};

}  // namespace forms
