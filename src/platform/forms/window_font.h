#pragma once

#include <QFont>

class QWidget;

namespace forms {

/// The face that the windows are laid out for, 8.25 point at 96 dots per inch, or the nearest match
/// that is installed. Windows set it themselves, since a desktop's theme may replace the
/// application's font at any time.
QFont windowFont();

/// Gives the captions in a window that have no room in their control smaller letters.
void fitCaptions(const QWidget& window);

}  // namespace forms
