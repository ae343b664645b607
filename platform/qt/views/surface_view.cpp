#include "platform/qt/views/surface_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/qt/views/colours.h"
#include "platform/qt/views/raster_image.h"

namespace {

// From the tip of the pointer to the upper left corner of what it tells.
constexpr QPoint kBesidePointer(14, 18);
constexpr int kMeasureMargin = 3;

bool IsWhole(qreal scale) {
  return scale == qreal(qRound(scale));
}

}  // namespace

SurfaceView::SurfaceView(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  // Opaque and in the colours of a tool tip, so that it can be read on every picture.
  measure_.setObjectName("lblMeasure");
  measure_.setTextFormat(Qt::PlainText);
  measure_.setPalette(QToolTip::palette());
  measure_.setBackgroundRole(QPalette::ToolTipBase);
  measure_.setForegroundRole(QPalette::ToolTipText);
  measure_.setAutoFillBackground(true);
  measure_.setFrameStyle(QFrame::Box | QFrame::Plain);
  measure_.setMargin(kMeasureMargin);
  measure_.setAttribute(Qt::WA_TransparentForMouseEvents);
  measure_.hide();
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
  // A run has begun under a pointer that rests.
  if (!measure_.isHidden()) ShowMeasure(mapFromGlobal(QCursor::pos()));
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

void SurfaceView::resizeEvent(QResizeEvent* /*event*/) {
  measure_.hide();
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
  ShowMeasure(event->position().toPoint());
}

void SurfaceView::leaveEvent(QEvent* /*event*/) {
  measure_.hide();
}

// On the other side of the pointer where there is no room.
void SurfaceView::ShowMeasure(const QPoint& pointer) {
  const std::string text = Measure ? Measure(pointer.x(), pointer.y()) : std::string();
  measure_.setVisible(!text.empty());
  if (text.empty()) return;
  measure_.setText(QString::fromStdString(text));
  measure_.adjustSize();
  QPoint corner = pointer + kBesidePointer;
  if (corner.x() + measure_.width() > width()) corner.rx() = pointer.x() - measure_.width();
  if (corner.y() + measure_.height() > height()) corner.ry() = pointer.y() - measure_.height();
  measure_.move(corner);
}
