#include "platform/qt/views/surface_view.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/qt/views/colours.h"
#include "platform/qt/views/raster_image.h"

namespace {

bool IsWhole(qreal scale) {
  return scale == qreal(qRound(scale));
}

}  // namespace

SurfaceView::SurfaceView(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  box_.Cls = [this] {
    picture_ = {};
    cleared_ = true;
    update();
  };
  box_.Blt = [this](const Raster& surface, const PixelRect& changed) { Show(surface, changed); };
  box_.BackColor.Watch([this](Colour) { update(); });
}

SurfaceView::~SurfaceView() {
  box_.Blt = nullptr;
  box_.Cls = nullptr;
  box_.BackColor.Watch({});
}

void SurfaceView::Show(const Raster& surface, const PixelRect& changed) {
  PixelRect copied = changed;
  cleared_ = false;
  if (picture_.size() != QSize(surface.Width(), surface.Height())) {
    picture_ = QImage(surface.Width(), surface.Height(), QImage::Format_RGB32);
    copied = surface.Area();
    update();
  }
  copied = Intersection(copied, surface.Area());
  if (copied.IsEmpty()) return;
  CopyPixels(surface, copied, picture_);
  QRect shown(copied.left, copied.top, copied.right - copied.left, copied.bottom - copied.top);
  // Smoothing takes in the neighbours.
  if (!IsWhole(devicePixelRatioF())) shown.adjust(-1, -1, 1, 1);
  update(shown);
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  if (Paint && !cleared_) Paint();
  QPainter painter(this);
  // Every unit is a square of the same size where the scale allows it.
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !IsWhole(devicePixelRatioF()));
  painter.drawImage(0, 0, picture_);
  const QRegion beside = event->region() - QRect(QPoint(0, 0), picture_.size());
  for (const QRect& rect : beside) painter.fillRect(rect, ToQColor(box_.BackColor));
}
