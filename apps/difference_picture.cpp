#include "apps/difference_picture.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <new>

#include "apps/play_report.h"
#include "platform/numbers.h"

namespace {

using Inspection::Comparison;
using Inspection::Deviation;
using Inspection::Profile;
using Inspection::RadiusAt;

// All in pixels.
constexpr int kWidth = 1200;
constexpr int kMargin = 50;
constexpr int kMaxPartHeight = 700;
constexpr int kLine = 36;
constexpr int kLegendHeight = 4 * kLine;
constexpr int kBandHeight = 14;
constexpr int kScaleHeight = 70;
constexpr int kTick = 8;
constexpr int kTextSize = 22;
// The least distance of two numbers of the scale.
constexpr double kNumberDistance = 70;

// One is light and the other dark, and their hatches run differently.
struct Look {
  QColor colour;
  QColor hatchColour;
  Qt::BrushStyle hatch;
};
const Look kStanding{QColor(240, 160, 0), Qt::black, Qt::BDiagPattern};
const Look kCutAway{QColor(0, 90, 170), Qt::white, Qt::DiagCrossPattern};
const Look kCommon{QColor(214, 214, 214), Qt::black, Qt::NoBrush};

void Fill(QPainter& painter, const QRect& area, const Look& look) {
  painter.fillRect(area, look.colour);
  painter.fillRect(area, QBrush(look.hatchColour, look.hatch));
}

// The part on the picture: the free end at the right, pixels for stock units.
class Section {
 public:
  Section(int columns, int radius)
      : unit_(std::min((kWidth - 2.0 * kMargin) / std::max(columns, 1),
                       kMaxPartHeight / (2.0 * std::max(radius, 1)))),
        length_(columns * unit_),
        radius_(radius * unit_) {}

  [[nodiscard]] double Unit() const { return unit_; }
  [[nodiscard]] double Top() const { return kLegendHeight + kMargin; }
  [[nodiscard]] double Bottom() const { return Top() + 2 * radius_; }
  [[nodiscard]] double Axis() const { return Top() + radius_; }
  [[nodiscard]] double X(double column) const { return (kWidth + length_) / 2 - column * unit_; }

  // Between two radii, above and below the axis, over the length of a column. Edges are rounded one
  // by one, so that neighbours that are smaller than a pixel leave no gap.
  void FillRing(QPainter& painter, int column, int from, int to, const Look& look) const {
    const int left = RoundToPixel(X(column));
    const int width = RoundToPixel(X(column - 1)) - left;
    const auto fill = [&](double top, double bottom) {
      const int row = RoundToPixel(top);
      Fill(painter, {left, row, width, RoundToPixel(bottom) - row}, look);
    };
    fill(Axis() - to * unit_, Axis() - from * unit_);
    fill(Axis() + from * unit_, Axis() + to * unit_);
  }

 private:
  double unit_;
  double length_;
  double radius_;
};

void DrawMaterial(QPainter& painter, const Section& section, const Profile& part,
                  const Profile& reference, int columns) {
  for (int column = 1; column <= columns; ++column) {
    const int is = RadiusAt(part, column);
    const int shouldBe = RadiusAt(reference, column);
    section.FillRing(painter, column, 0, std::min(is, shouldBe), kCommon);
    if (is > shouldBe) section.FillRing(painter, column, shouldBe, is, kStanding);
    if (is < shouldBe) section.FillRing(painter, column, is, shouldBe, kCutAway);
  }
  const QPen axis(Qt::black, 1, Qt::DashDotLine);
  painter.setPen(axis);
  painter.drawLine(QPointF(section.X(columns) - kMargin / 2.0, section.Axis()),
                   QPointF(section.X(0) + kMargin / 2.0, section.Axis()));
}

// Below the part, since a tenth of a millimetre may be less than a pixel.
void DrawBands(QPainter& painter, const Section& section, const Comparison& comparison) {
  for (const auto& [nearColumn, farColumn, deviation] : comparison.outside) {
    const int left = RoundToPixel(section.X(farColumn));
    // The face at the free end has no length, and is to be seen all the same.
    const int right = std::max(RoundToPixel(section.X(std::max(nearColumn - 1, 0))), left + 3);
    const int top = RoundToPixel(section.Bottom()) + kBandHeight;
    Fill(painter, {left, top, right - left, kBandHeight}, deviation > 0 ? kStanding : kCutAway);
  }
}

// Millimetres from one number to the next: 1, 2 or 5 times a power of ten.
double NumberStep(double pixelsPerMillimetre) {
  for (double decade = 0.1;; decade *= 10) {
    for (const double step : {decade, 2 * decade, 5 * decade}) {
      if (step * pixelsPerMillimetre >= kNumberDistance) return step;
    }
  }
}

void DrawScale(QPainter& painter, const Section& section, int columns) {
  painter.setPen(Qt::black);
  const double y = section.Bottom() + 3.0 * kBandHeight;
  painter.drawLine(QPointF(section.X(0), y), QPointF(section.X(columns), y));
  const double step = NumberStep(10 * section.Unit());
  const int numbers = static_cast<int>(std::floor(columns / (10 * step) + 1e-9));
  for (int i = 0; i <= numbers; ++i) {
    const double x = section.X(i * step * 10);
    painter.drawLine(QPointF(x, y), QPointF(x, y + kTick));
    const double z = std::nearbyint(-i * step * 10) / 10 + 0.0;
    painter.drawText(QRectF(x - kMargin, y + kTick, 2.0 * kMargin, kLine), Qt::AlignCenter,
                     QString::fromStdString(NumberText(z)));
  }
  painter.drawText(QRectF(0, y + kTick + kLine, kWidth, kLine), Qt::AlignCenter, "Z in mm");
}

QString SideText(const char* name, const Deviation& side) {
  if (side.radius == 0) return QString("%1: nothing").arg(name);
  return QString("%1: up to %2 mm, at Z %3; %4 cm³")
      .arg(name, QString::fromStdString(Inspection::Millimetres(side.radius)),
           QString::fromStdString(Inspection::ZText(side.column)),
           QString::fromStdString(NumberText(Inspection::CubicCentimetres(side.volume))));
}

void DrawLegend(QPainter& painter, const Comparison& comparison) {
  int y = kLine;
  const auto row = [&](const QString& text, const Look& look) {
    const QRect swatch(kMargin, y, 2 * kLine, kLine - 6);
    Fill(painter, swatch, look);
    painter.setPen(Qt::black);
    painter.drawRect(swatch);
    painter.drawText(QRectF(kMargin + 3.0 * kLine, y, kWidth, kLine - 6), Qt::AlignVCenter, text);
    y += kLine;
  };
  row(SideText("Left standing", comparison.standing), kStanding);
  row(SideText("Cut away", comparison.cutAway), kCutAway);
  const std::string tolerance = NumberText(comparison.tolerance);
  row(QString("As in the reference. A bar below the part: more than %1 mm off on the radius")
          .arg(QString::fromStdString(tolerance)),
      kCommon);
}

}  // namespace

QByteArray DifferencePng(const Profile& part, const Profile& reference,
                         const Comparison& comparison) {
  const int columns = static_cast<int>(std::max(part.size(), reference.size())) - 1;
  int radius = 0;
  for (const Profile* profile : {&part, &reference}) {
    for (const auto& column : *profile) radius = std::max<int>(radius, column.Radius);
  }
  const Section section(columns, radius);
  const int height = static_cast<int>(section.Bottom()) + 3 * kBandHeight + kScaleHeight + kMargin;
  QImage image(kWidth, height, QImage::Format_RGB32);
  if (image.isNull()) throw std::bad_alloc();
  image.fill(Qt::white);
  QPainter painter(&image);
  QFont font = painter.font();
  font.setPixelSize(kTextSize);
  painter.setFont(font);
  DrawLegend(painter, comparison);
  DrawMaterial(painter, section, part, reference, columns);
  DrawBands(painter, section, comparison);
  DrawScale(painter, section, columns);
  painter.end();
  return ImagePng(image);
}
