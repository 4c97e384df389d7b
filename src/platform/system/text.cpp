#include "platform/system/text.h"

#include <QStringConverter>

namespace forms {

namespace {

constexpr char16_t kEscape = 0xDC00;

bool isEscaped(const QString& text, qsizetype at) {
  const char16_t unit = text[at].unicode();
  if (unit < kEscape + 0x80 || unit > kEscape + 0xFF) return false;
  return at == 0 || !text[at - 1].isHighSurrogate();
}

/// The length of the valid UTF-8 sequence that `bytes` begins with, 0 where there is none.
std::size_t sequenceLength(std::string_view bytes) {
  for (std::size_t length = 1; length <= 4 && length <= bytes.size(); ++length) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(length)));
    if (!decoder.hasError() && !text.contains(QChar::ReplacementCharacter)) return length;
  }
  // The replacement character itself is valid too.
  return bytes.starts_with("\xEF\xBF\xBD") ? 3 : 0;
}

}  // namespace

QString shown(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  if (view.isValidUtf8()) return QString::fromUtf8(view);
  QString text;
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes);
    if (length > 0) {
      text += QString::fromUtf8(bytes.data(), static_cast<qsizetype>(length));
    } else {
      text += QChar(static_cast<char16_t>(kEscape + static_cast<unsigned char>(bytes.front())));
    }
    bytes.remove_prefix(length > 0 ? length : 1);
  }
  return text;
}

std::string bytesOf(const QString& text) {
  std::string bytes;
  qsizetype from = 0;
  const auto flush = [&](qsizetype to) {
    bytes += QStringView(text).mid(from, to - from).toUtf8().toStdString();
    from = to + 1;
  };
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (!isEscaped(text, at)) continue;
    flush(at);
    bytes += static_cast<char>(text[at].unicode() - kEscape);
  }
  flush(text.size());
  return bytes;
}

}  // namespace forms
