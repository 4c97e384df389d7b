#include "platform/controls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <utility>

#include "platform/shell.h"
#include "platform/text.h"

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

/// A label that draws its text itself, since a path has to wrap where no word ends.
class LabelWidget final : public QLabel {
 public:
  LabelWidget(QWidget* parent, LabelStyle style) : QLabel(parent), style_(style) {
    setTextFormat(Qt::PlainText);
    if (style == LabelStyle::Bordered || style == LabelStyle::Patch)
      setFrameStyle(QFrame::Panel | QFrame::Sunken);
    if (style == LabelStyle::Heading) {
      QFont heading = font();
      heading.setPixelSize(16);
      heading.setBold(true);
      setFont(heading);
    }
  }

  void setBackColour(const QColor& colour) {
    backColour_ = colour;
    update();
  }

  void showText(const QString& text) {
    setText(text);
    setAccessibleName(text);
    if (style_ == LabelStyle::AutoSize) resize(sizeHint());
    if (style_ == LabelStyle::Bordered && !text.isEmpty()) {
      setToolTip(QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped()));
    }
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (backColour_.isValid()) painter.fillRect(rect(), backColour_);
    drawFrame(&painter);
    const int gap = style_ == LabelStyle::Bordered ? 2 : 0;
    const int wrap = style_ == LabelStyle::AutoSize   ? Qt::TextSingleLine
                     : style_ == LabelStyle::Bordered ? Qt::TextWordWrap | Qt::TextWrapAnywhere
                                                      : Qt::TextWordWrap;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect().adjusted(gap, 0, -gap, 0),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | wrap, text());
  }

 private:
  const LabelStyle style_;
  QColor backColour_;
};

Label::Label(Container& parent, const char* name, const char* caption, const Rect& place,
             LabelStyle style)
    : Control(parent, name, new LabelWidget(parent.host(), style), place) {
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

Frame::Frame(Container& parent, const char* name, const char* caption, const Rect& place)
    : Control(parent, name, new QGroupBox(shown(caption), parent.host()), place) {}

QWidget* Frame::host() {
  return as<QGroupBox>();
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
