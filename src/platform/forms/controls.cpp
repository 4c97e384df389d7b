#include "platform/forms/controls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <cmath>
#include <utility>

#include "platform/forms/shell.h"
#include "platform/system/text.h"

namespace forms {

Control::Control(Container& parent, const char* name, QWidget* widget, const Rect& place,
                 Trait traits)
    : form_(parent.form()), widget_(widget) {
  widget->setObjectName(name);
  widget->setGeometry(pixels(place.Left), pixels(place.Top), pixels(place.Width),
                      pixels(place.Height));
  widget->setEnabled((traits & Disabled) == 0);
}

Control::~Control() {
  delete widget_;
}

bool Control::Enabled() const {
  return !widget_->testAttribute(Qt::WA_ForceDisabled);
}

void Control::setEnabled(bool enabled) {
  const bool hadFocus = widget_->hasFocus();
  widget_->setEnabled(enabled);
  QWidget* focus = widget_->window()->focusWidget();
  if (!enabled && hadFocus) {
    focusLeftFor_ = focus;
  } else if (enabled && std::exchange(focusLeftFor_, nullptr) == focus && focus) {
    // Disabled for a while only, it gets back the focus that nobody has moved since.
    widget_->setFocus();
  }
}

std::string Control::AccessibleName() const {
  return bytesOf(widget_->accessibleName());
}

void Control::borrowLabel(Container& parent) {
  widget_->setAccessibleName(shown(parent.takeLabel()));
}

namespace {

/// A label that draws its text itself, since a path has to wrap where no word ends.
class LabelWidget final : public QLabel {
 public:
  LabelWidget(QWidget* parent, LabelStyle style, const Lettering& lettering)
      : QLabel(parent), style_(style) {
    setTextFormat(Qt::PlainText);
    if (style == LabelStyle::Bordered || style == LabelStyle::Patch)
      setFrameStyle(QFrame::Panel | QFrame::Sunken);
    constexpr Qt::Alignment kSides[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    setAlignment(kSides[static_cast<int>(lettering.Alignment)] | Qt::AlignTop);
    QFont letters = font();
    letters.setPixelSize(static_cast<int>(std::lround(lettering.Points * 20 / kTwipsPerPixel)));
    letters.setBold(lettering.Bold);
    setFont(letters);
  }

  void setBackColour(const QColor& colour) {
    backColour_ = colour;
    update();
  }

  void showText(const QString& text) {
    setText(text);
    setAccessibleName(text);
    if (style_ == LabelStyle::AutoSize) fitText();
    const bool isPath = style_ == LabelStyle::Bordered && !text.isEmpty();
    setToolTip(isPath || isCut()
                   ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
                   : QString());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (backColour_.isValid()) painter.fillRect(contentsRect(), backColour_);
    drawFrame(&painter);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room(), layout(), isCut() ? shortened() : text());
  }

  /// A click on a label isn't one on what it stands in.
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }

 private:
  QRect room() const {
    const int gap = style_ == LabelStyle::Bordered ? 2 : 0;
    return contentsRect().adjusted(gap, 0, -gap, 0);
  }

  int layout() const {
    const int wrap = style_ == LabelStyle::AutoSize   ? Qt::TextSingleLine
                     : style_ == LabelStyle::Bordered ? Qt::TextWordWrap | Qt::TextWrapAnywhere
                                                      : Qt::TextWordWrap;
    return static_cast<int>(alignment()) | wrap;
  }

  bool isCut() const {
    if (style_ != LabelStyle::Fixed) return false;
    const QRect need = fontMetrics().boundingRect(room(), layout(), text());
    return need.width() > room().width() || need.height() > room().height();
  }

  QString shortened() const {
    return fontMetrics().elidedText(text(), Qt::ElideMiddle, room().width());
  }

  void fitText() {
    const QSize size = sizeHint();
    const int more = size.width() - width();
    const int left = alignment() & Qt::AlignRight     ? x() - more
                     : alignment() & Qt::AlignHCenter ? x() - more / 2
                                                      : x();
    setGeometry(QRect(QPoint(left, y()), size));
  }

  const LabelStyle style_;
  QColor backColour_;
};

/// A group box that tells when it is clicked.
class FrameWidget final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;
  std::function<void()> clicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    pressed_ = event->button() == Qt::LeftButton;
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool inside = rect().contains(event->position().toPoint());
    if (std::exchange(pressed_, false) && inside) clicked();
  }

 private:
  bool pressed_ = false;
};

}  // namespace

Label::Label(Container& parent, const char* name, const char* caption, const Rect& place,
             LabelStyle style, const Lettering& lettering)
    : Control(parent, name, new LabelWidget(parent.host(), style, lettering), place) {
  parent.lendLabel(caption);
  setCaption(caption);
}

std::string Label::Caption() const {
  return bytesOf(as<LabelWidget>()->text());
}

void Label::setCaption(const std::string& caption) {
  as<LabelWidget>()->showText(shown(caption));
}

void Label::setBackColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  as<LabelWidget>()->setBackColour(QColor(red, green, blue));
}

Frame::Frame(Container& parent, const char* name, const char* caption, const Rect& place,
             Handler click)
    : Control(parent, name, new FrameWidget(shown(caption), parent.host()), place) {
  as<FrameWidget>()->clicked = [this, click = std::move(click)] { click(form_); };
}

QWidget* Frame::host() {
  return as<FrameWidget>();
}

CommandButton::CommandButton(Container& parent, const char* name, const char* caption,
                             const Rect& place, Handler click, Trait traits)
    : Control(parent, name, new QPushButton(shown(caption), parent.host()), place, traits) {
  auto* button = as<QPushButton>();
  auto* shell = static_cast<Shell*>(button->window());
  if (traits & Default) {
    shell->defaultButton = button;
    button->setDefault(true);
  }
  if (traits & Cancel) shell->cancelButton = button;
  if (shell->hasMenu(button->shortcut())) button->setShortcut({});  // the menu's, not now and then
  QObject::connect(button, &QPushButton::clicked,
                   [this, click = std::move(click)] { click(form_); });
}

CheckBox::CheckBox(Container& parent, const char* name, const char* caption, const Rect& place,
                   Handler click, Trait traits)
    : Control(parent, name, new QCheckBox(shown(caption), parent.host()), place, traits) {
  QObject::connect(as<QCheckBox>(), &QCheckBox::toggled,
                   [this, click = std::move(click)] { click(form_); });
}

int CheckBox::Value() const {
  return as<QCheckBox>()->isChecked() ? 1 : 0;
}

void CheckBox::setValue(int value) {
  as<QCheckBox>()->setChecked(value == 1);
}

TextBox::TextBox(Container& parent, const char* name, const Rect& place, Handler change,
                 Trait traits)
    : Control(parent, name, new QLineEdit(parent.host()), place, traits) {
  borrowLabel(parent);
  as<QLineEdit>()->setReadOnly((traits & ReadOnly) != 0);
  QObject::connect(as<QLineEdit>(), &QLineEdit::textChanged,
                   [this, change = std::move(change)] { change(form_); });
}

std::string TextBox::Text() const {
  return bytesOf(as<QLineEdit>()->text());
}

void TextBox::setText(const std::string& text) {
  if (text == Text()) return;  // which would move the cursor
  as<QLineEdit>()->setText(shown(text));
}

}  // namespace forms
