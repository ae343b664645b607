#include "mainwindow/listing.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "platform/code_page.h"
#include "platform/qt/views/document_text.h"

namespace {

// Relative luminance, 0 black to 1 white, that stands out from paper by 4.5 to 1.
constexpr double kLightestInk = 0.18;
constexpr double kGamma = 2.2;
constexpr QColor kHeadColour(0x44, 0x4C, 0x55);
// In heights of a line: the head with the room below it.
constexpr double kHeadHeight = 2.5;
// In characters.
constexpr int kGapBehindNumber = 2;
constexpr int kContinuationIndent = 4;
constexpr int kTabWidth = 8;

double Luminance(const QColor& colour) {
  return 0.2126 * std::pow(colour.redF(), kGamma) + 0.7152 * std::pow(colour.greenF(), kGamma) +
         0.0722 * std::pow(colour.blueF(), kGamma);
}

QColor InkOf(const QColor& colour) {
  const double luminance = Luminance(colour);
  if (luminance <= kLightestInk) return colour;
  const auto darker = static_cast<float>(std::pow(kLightestInk / luminance, 1 / kGamma));
  return QColor::fromRgbF(colour.redF() * darker, colour.greenF() * darker,
                          colour.blueF() * darker);
}

// The text of a run, one paragraph a line; lone halves of a line end, if any, are no characters.
QString ParagraphsOf(const FormattedText& program, std::size_t run) {
  const bool isLast = run + 1 == program.runs.size();
  const std::size_t start = program.runs[run].start;
  const std::size_t end = isLast ? program.text.size() : program.runs[run + 1].start;
  QString text = QString::fromStdString(CodePageToUtf8(program.text.substr(start, end - start)));
  return text.remove('\r').replace('\n', QChar::ParagraphSeparator);
}

// The program laid out for one printer, in its pixels.
class Pages {
 public:
  Pages(const Listing& listing, QPagedPaintDevice& printer) : listing_(listing), printer_(printer) {
    const QFontMetricsF metrics(listing.font, &printer);
    ascent_ = metrics.ascent();
    top_ = std::ceil(metrics.lineSpacing() * kHeadHeight);
    character_ = metrics.horizontalAdvance('0');
    Fill();
    LayOut();
  }

  int Count() const { return document_.pageCount(); }

  // Pages count from 1.
  void Draw(QPainter& painter, int page) {
    DrawHead(painter, page);
    const double pageTop = (page - 1) * BodyHeight();
    painter.save();
    painter.translate(0, top_ - pageTop);
    const QRectF body(0, pageTop, printer_.width(), BodyHeight());
    DrawNumbers(painter, body);
    document_.drawContents(&painter, body);
    painter.restore();
  }

 private:
  double BodyHeight() const { return std::max(printer_.height() - top_, 1.0); }

  void Fill() {
    document_.setUndoRedoEnabled(false);
    document_.setDefaultFont(listing_.font);
    QTextCursor cursor(&document_);
    for (std::size_t run = 0; run < listing_.program.runs.size(); ++run) {
      QTextCharFormat format = ToCharFormat(listing_.program.runs[run].format);
      format.setForeground(InkOf(format.foreground().color()));
      cursor.insertText(ParagraphsOf(listing_.program, run), format);
    }
  }

  void LayOut() {
    document_.documentLayout()->setPaintDevice(&printer_);
    document_.setDocumentMargin(0);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // Qt scales it from the screen to the printer.
    const qreal screenDpi = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    option.setTabStopDistance(kTabWidth * character_ * qRound(screenDpi) / printer_.logicalDpiY());
    document_.setDefaultTextOption(option);
    numberWidth_ = static_cast<double>(QString::number(document_.blockCount()).size()) * character_;
    QTextBlockFormat format;
    format.setLeftMargin(numberWidth_ + (kGapBehindNumber + kContinuationIndent) * character_);
    format.setTextIndent(-kContinuationIndent * character_);
    QTextCursor all(&document_);
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    document_.setPageSize({static_cast<double>(printer_.width()), BodyHeight()});
  }

  void DrawHead(QPainter& painter, int page) const {
    painter.setFont(listing_.font);
    painter.setPen(kHeadColour);
    const QString place = QString("Page %1 of %2").arg(page).arg(Count());
    const QFontMetricsF metrics = painter.fontMetrics();
    const double room = printer_.width() - metrics.horizontalAdvance(place) - 2 * character_;
    painter.drawText(QPointF(0, ascent_),
                     metrics.elidedText(listing_.title, Qt::ElideMiddle, room));
    painter.drawText(QPointF(printer_.width() - metrics.horizontalAdvance(place), ascent_), place);
    const double rule = metrics.lineSpacing() * (1 + kHeadHeight) / 2;
    painter.drawLine(QPointF(0, rule), QPointF(printer_.width(), rule));
  }

  // Of the lines that begin in the body of a page.
  void DrawNumbers(QPainter& painter, const QRectF& body) const {
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      const QRectF area = document_.documentLayout()->blockBoundingRect(block);
      if (area.top() >= body.bottom()) return;
      const QTextLine line = block.layout()->lineAt(0);
      const double top = block.layout()->position().y() + line.y();
      if (top < body.top() || top >= body.bottom()) continue;
      const QString number = QString::number(block.blockNumber() + 1);
      const double width = painter.fontMetrics().horizontalAdvance(number);
      painter.drawText(QPointF(numberWidth_ - width, top + line.ascent()), number);
    }
  }

  const Listing& listing_;
  QPagedPaintDevice& printer_;
  QTextDocument document_;
  double ascent_ = 0;
  // Of the body of a page.
  double top_ = 0;
  double character_ = 0;
  double numberWidth_ = 0;
};

}  // namespace

bool PrintListing(const Listing& listing, QPagedPaintDevice& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  Pages pages(listing, printer);
  const QPageRanges wanted = printer.pageRanges();
  bool isFirst = true;
  for (int page = 1; page <= pages.Count(); ++page) {
    if (!wanted.isEmpty() && !wanted.contains(page)) continue;
    if (!isFirst && !printer.newPage()) return false;
    pages.Draw(painter, page);
    isFirst = false;
  }
  return painter.end();
}
