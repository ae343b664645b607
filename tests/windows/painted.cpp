#include "tests/windows/painted.h"

#include <QPaintEngine>
#include <QPainter>

namespace {

class Notes : public QPaintEngine {
 public:
  Notes() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState& /*state*/) override {}
  void drawRects(const QRectF* rects, int count) override {
    const bool isFilled = painter()->brush().style() != Qt::NoBrush;
    const QString what = isFilled ? painter()->brush().color().name() : "frame " + Pen();
    for (int i = 0; i < count; ++i) Note(rects[i], what);
  }
  void drawLines(const QLineF* lines, int count) override {
    for (int i = 0; i < count; ++i) {
      const bool isUpright = lines[i].x1() == lines[i].x2();
      Note({lines[i].p1(), lines[i].p2()}, (isUpright ? "upright " : "line ") + Pen());
    }
  }
  void drawPixmap(const QRectF& place, const QPixmap& picture, const QRectF& /*from*/) override {
    const QImage image = picture.toImage();
    const QPoint middle = image.rect().center();
    Note(place, QString("picture %1 %2")
                    .arg(image.pixelColor(middle).name(), image.pixelColor(middle / 2).name()));
  }
  void drawTextItem(const QPointF& place, const QTextItem& text) override {
    const QFont font = text.font();
    Note({place.x(), place.y() - 1, text.width(), 1},
         QString("\"%1\" %2 %3 %4")
                 .arg(text.text(), Pen(), font.family())
                 .arg(font.pointSize() > 0 ? font.pointSize() : font.pixelSize()) +
             (font.bold() ? " bold" : ""));
  }

  std::vector<Painted> all;

 private:
  QString Pen() const {
    const QColor colour = painter()->pen().color();
    return colour.name(colour.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
  }
  void Note(const QRectF& place, const QString& what) {
    all.push_back({painter()->deviceTransform().mapRect(place).toRect(), what});
  }
};

class NotedDevice : public QPaintDevice {
 public:
  explicit NotedDevice(const QSize& size) : size_(size) {}
  QPaintEngine* paintEngine() const override { return &notes; }

  mutable Notes notes;

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmWidth) return size_.width();
    if (metric == PdmHeight) return size_.height();
    if (metric == PdmDevicePixelRatioScaled) return static_cast<int>(devicePixelRatioFScale());
    return metric == PdmDevicePixelRatio ? 1 : metric == PdmDepth ? 32 : 96;
  }

 private:
  QSize size_;
};

}  // namespace

std::vector<Painted> PaintedBy(QWidget& widget) {
  NotedDevice device(widget.size());
  widget.render(&device, {}, {}, {});
  return device.notes.all;
}
