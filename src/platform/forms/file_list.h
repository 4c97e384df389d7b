#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forms/gesture_list.h"

namespace forms {

/// The normal files of one directory whose names match a pattern, in alphabetical order.
class FileList final : public GestureList {
 public:
  FileList(QWidget* parent, std::string pattern, SelectionMode mode,
           std::function<void()> click = {}, std::function<void()> dblClick = {});

  /// In drive form, even if it was set to a native path. A path that isn't a directory is kept, and
  /// the list is empty.
  const std::string& Path() const { return path_; }
  /// Reads the directory and clears the selection.
  void setPath(const std::string& path);
  void setPattern(const std::string& pattern);

  /// Reads the directory again and keeps what is selected, as far as it is still there.
  void refresh();
  /// Whether the directory has changed since it was read.
  bool isStale() const;

  /// Selects this name alone, or nothing if it isn't listed.
  void select(const std::string& name);
  /// The selected names, in list order.
  std::vector<std::string> selectedNames() const;
  /// The name at the current item; see `GestureList::chosenText`.
  std::string FileName() const;

 private:
  void reload();

  std::string path_;
  std::string pattern_;
  std::int64_t stamp_ = 0;  ///< of the directory, when it was read
};

}  // namespace forms
