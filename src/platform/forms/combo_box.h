#pragma once

#include <QComboBox>

#include <functional>
#include <string>

namespace forms {

/// A wheel that turns over a closed box changes nothing under the user's hand.
class CalmComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

/// Text to type into, with a list of entries to pick from. Typing, and setting another text, raise
/// Change; picking an entry raises Click and no Change. Typing never adds an entry.
class ComboBox final : public CalmComboBox {
 public:
  ComboBox(QWidget* parent, std::function<void()> change, std::function<void()> click);

  std::string Text() const;
  void setText(const std::string& text);
  /// Adds an entry at the end; the text stays as it is.
  void AddItem(const std::string& entry);
  /// Makes `entry` the text, and one of the entries at the end if it isn't one yet.
  void pick(const std::string& entry);

 private:
  std::function<void()> change_;
};

/// The drives that there are, `Z:` and those of the user's Wine prefix, to pick one from.
class DriveBox final : public CalmComboBox {
 public:
  explicit DriveBox(QWidget* parent, std::function<void()> change = {});

  /// A letter and a colon.
  std::string Drive() const;
  /// A drive that isn't there changes nothing.
  void setDrive(const std::string& drive);

 private:
  void readDrives();
};

}  // namespace forms
