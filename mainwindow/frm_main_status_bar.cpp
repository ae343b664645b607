#include "mainwindow/frm_main_status_bar.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "mainwindow/control_surface.h"

namespace frmMain {

namespace {

// Pixels between a panel and the bar's upper and lower edge, and the next panel.
constexpr int kGap = 2;

// Pixels between the border of a panel and its text.
constexpr int kTextMargin = 2;
// Of the text's colour in that of the borders, which styles draw too faint on a dark ground.
constexpr float kBorderStrength = 0.4F;

QFont PanelFont() {
  QFont font("Courier New", 9);
  font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace

StatusBarView::StatusBarView(QWidget* parent) : QWidget(parent) {
  setObjectName("StatusBar");
  setAccessibleName("Status bar");
  setAutoFillBackground(true);
  const int height = static_cast<int>(std::lround(StatusBar.Bounds.Get().Height));
  for (std::size_t i = 0; StatusPanel & panel : StatusBar) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromUtf8(panel.Key.data(), static_cast<int>(panel.Key.size())));
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(kTextMargin, 0, kTextMargin, 0);
    label->setFont(PanelFont());
    label->setToolTip(kPanels[i++].Tip);
    label->setGeometry(static_cast<int>(std::lround(panel.Left)), kGap,
                       static_cast<int>(std::lround(panel.Width)) - kGap, height - 2 * kGap);
    bindings_.Bind(panel.Text, [label](const std::string& text) {
      const QString whole = QString::fromStdString(text);
      const int room = label->contentsRect().width();
      label->setText(label->fontMetrics().elidedText(whole, Qt::ElideRight, room));
      label->setAccessibleName(label->toolTip() + ": " + whole);
    });
  }
}

void StatusBarView::paintEvent(QPaintEvent* /*event*/) {
  QColor border = palette().color(QPalette::WindowText);
  border.setAlphaF(kBorderStrength);
  QPainter painter(this);
  painter.setPen(border);
  for (const QLabel* panel : findChildren<QLabel*>()) {
    painter.drawRect(panel->geometry().adjusted(0, 0, -1, -1));
  }
}

}  // namespace frmMain
