#include "platform/qt/views/document_text.h"

#include "platform/code_page.h"
#include "platform/qt/views/colours.h"
#include "platform/text.h"

namespace {

constexpr QChar kSeparator(QChar::ParagraphSeparator);
constexpr QChar kLoneCr(u'\uE00D');
constexpr QChar kLoneLf(u'\uE00A');

std::string ByteOf(QChar character) {
  return Utf8ToCodePage(QString(character).toUtf8().toStdString()).value_or("?");
}

}  // namespace

QString ToDocumentText(std::string_view bytes) {
  QString text = QString::fromStdString(CodePageToUtf8(bytes));
  text.replace("\r\n", kSeparator);
  text.replace('\r', kLoneCr);
  text.replace('\n', kLoneLf);
  return text;
}

std::string FromDocumentText(QString text) {
  text.replace(kSeparator, "\r\n");
  text.replace(kLoneCr, '\r');
  text.replace(kLoneLf, '\n');
  if (auto bytes = Utf8ToCodePage(text.toUtf8().toStdString())) return *bytes;
  std::string bytes;
  for (const QChar character : text) bytes += ByteOf(character);
  return bytes;
}

std::optional<RefusedCharacter> FindRefusedCharacter(const QString& text) {
  RefusedCharacter next;
  for (const char32_t point : text.toUcs4()) {
    next.character = QString::fromUcs4(&point, 1);
    if (!Utf8ToCodePage(next.character.toUtf8().toStdString())) return next;
    if (point == U'\n') ++next.row;
  }
  return std::nullopt;
}

QTextCharFormat ToCharFormat(const TextFormat& format) {
  QTextCharFormat result;
  result.setForeground(ToQColor(format.color));
  if (format.bold) result.setFontWeight(QFont::Bold);
  if (!format.fontName.empty()) {
    result.setFontFamilies({QString::fromStdString(format.fontName)});
  }
  if (format.fontSize > 0) result.setFontPointSize(format.fontSize);
  return result;
}

TextFormat FromCharFormat(const QTextCharFormat& format) {
  TextFormat result;
  if (format.hasProperty(QTextFormat::ForegroundBrush)) {
    result.color = FromQColor(format.foreground().color());
  }
  result.bold = format.fontWeight() == QFont::Bold;
  result.fontName = format.fontFamilies().toStringList().value(0).toStdString();
  result.fontSize = format.property(QTextFormat::FontPointSize).toInt();
  return result;
}
