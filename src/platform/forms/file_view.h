#pragma once

#include <QAbstractListModel>
#include <QListView>

#include <functional>
#include <string>
#include <vector>

namespace forms {

/// File names for a view; rows are made into text only when they are painted.
class NameModel final : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void setNames(std::vector<std::string> names);
  void addName(std::string name);
  const std::vector<std::string>& names() const { return names_; }
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<std::string> names_;
};

/// The list behind list boxes, of files and of other texts. It tells gestures apart, so that a drag
/// over a hundred names or Ctrl+A is one click, and a key that changes nothing is none.
class FileView final : public QListView {
 public:
  FileView(QWidget* parent, bool extended);

  void setNames(std::vector<std::string> names);
  void addName(std::string name);
  const std::vector<std::string>& names() const { return model_.names(); }
  bool isSelected(int row) const;
  /// The current row or, where that isn't selected, the only one that is; -1 when none is selected.
  int chosenRow() const;

  std::function<void()> clicked;
  std::function<void()> doubleClicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Gesture { None, OnItem, OffItems, DoubleClick };

  NameModel model_;
  Gesture gesture_ = Gesture::None;
  bool changed_ = false;  ///< the selection or the current row, since a key was pressed
  /// The selected rows, read from the selection model once after each change.
  mutable std::vector<bool> selected_;
  mutable bool selectedIsStale_ = true;
};

}  // namespace forms
