#pragma once

#include <QComboBox>

#include <functional>
#include <string>

namespace forms {

/// Ignores the wheel over a closed box, which would change the value by accident, and Enter, which
/// opens the list on some desktops: it belongs to the default button.
class CalmComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
};

/// An editable text with a list of entries. Typing, or setting another text, raises Change; picking
/// an entry raises Click and no Change. Typing never adds an entry.
class ComboBox final : public CalmComboBox {
 public:
  ComboBox(QWidget* parent, std::function<void()> change, std::function<void()> click);

  std::string Text() const;
  void setText(const std::string& text);
  /// Adds an entry at the end; the text stays as it is.
  void AddItem(const std::string& entry);
  /// Makes `entry` the text and appends it to the entries if it isn't one yet.
  void pick(const std::string& entry);

 private:
  std::function<void()> change_;
};

/// A list of the existing drives: `Z:` and those of the user's Wine prefix.
class DriveBox final : public CalmComboBox {
 public:
  explicit DriveBox(QWidget* parent, std::function<void()> change = {});

  /// A letter and a colon.
  std::string Drive() const;
  /// A missing drive changes nothing.
  void setDrive(const std::string& drive);

 private:
  void readDrives();
};

}  // namespace forms
