#pragma once

#include <QTreeWidget>

#include <functional>
#include <string>

namespace forms {

/// The directories of one drive as a tree. One click or an arrow key chooses, and what is
/// highlighted is `Path`. Each level is read whenever it is opened.
class DirTree final : public QTreeWidget {
 public:
  /// `change` comes when another directory is highlighted, by the user or by code.
  explicit DirTree(QWidget* parent, std::function<void()> change = {});

  /// The highlighted directory or, where it has gone meanwhile, the nearest one above it; in drive
  /// form.
  std::string Path() const;
  /// A path that names no directory stands for the nearest one above it; one whose drive isn't
  /// there changes nothing.
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
