#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

/// The drives that there are, `Z:` and those of the user's Wine prefix, to pick one from.
class DriveListBox : public Control {
 public:
  DriveListBox(Container& parent, const char* name, const Rect& place, Handler change = {});

  /// A letter and a colon.
  std::string Drive() const;
  /// A drive that isn't there changes nothing.
  void setDrive(const std::string& drive);

 private:
  void readDrives();
};

/// The directories of one drive as a tree. One click or an arrow key chooses, and what is
/// highlighted is `Path`.
class DirListBox : public Control {
 public:
  DirListBox(Container& parent, const char* name, const Rect& place, Handler change = {});

  /// The highlighted directory or, where it has gone meanwhile, the nearest one above it.
  std::string Path() const;
  /// A path that names no directory stands for the nearest one above it; one whose drive isn't
  /// there changes nothing.
  void setPath(const std::string& path);
};

enum class MultiSelect { None = 0, Extended = 2 };

/// The normal files of one directory whose names match a pattern, in alphabetical order. Each
/// gesture of the user's that selects raises one Click, and a double click raises DblClick after
/// it; changes by code raise nothing.
class FileListBox : public Control {
 public:
  FileListBox(Container& parent, const char* name, const Rect& place, const char* pattern,
              MultiSelect multi, Handler click = {}, Handler dblClick = {});

  /// In drive form, also where it was set to a native path. A path that names no directory keeps
  /// its text and lists nothing.
  const std::string& Path() const { return path_; }
  void setPath(const std::string& path);
  void setPattern(const std::string& pattern);

  int ListCount() const;
  const std::string& List(int index) const;
  bool Selected(int index) const;
  /// The name at the current item. Where the user has just taken that out of the selection, it is
  /// the one selected name; empty when nothing is selected.
  std::string FileName() const;

 private:
  void reload();

  std::string path_;
  std::string pattern_;
};

}  // namespace forms
