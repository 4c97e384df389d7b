#pragma once

#include <QTreeWidget>

#include <functional>
#include <string>

namespace forms {

/// The directories of one drive as a tree. A click or an arrow key chooses; the highlighted
/// directory is `Path`. Each level is read whenever it is expanded.
class DirTree final : public QTreeWidget {
 public:
  /// `change` is called when another directory is highlighted, by the user or by code.
  explicit DirTree(QWidget* parent, std::function<void()> change = {});

  /// The highlighted directory in drive form or, if it no longer exists, the nearest one above it,
  /// and `Z:\` if its drive is gone.
  std::string Path() const;
  /// The same, whether or not it still exists.
  std::string highlighted() const;
  /// If the path isn't a directory, the nearest one above it is used. A path on a missing drive
  /// changes nothing.
  void setPath(const std::string& path);

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void highlight(const std::string& directory);
  void open(QTreeWidgetItem* item);
  void fill(QTreeWidgetItem* item);
  void stayInSight(const QTreeWidgetItem* collapsed);
  QTreeWidgetItem* child(QTreeWidgetItem* item, const std::string& name);

  std::function<void()> change_;
};

}  // namespace forms
