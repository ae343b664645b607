#include "tests/windows/on_screen.h"

#include <QtWidgets>
#include <algorithm>

#include "platform/qt/views/colours.h"
#include "platform/qt/views/grid_view.h"
#include "platform/qt/views/qt_rich_text.h"
#include "tests/windows/painted.h"

namespace {

template <class... Kinds>
bool IsOneOf(const QWidget& widget) {
  return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

// Behind what groups them without being seen. Qt's own dialogs are their own affair.
QWidgetList ChildrenOf(const QWidget& parent) {
  QWidgetList children;
  if (IsOneOf<QComboBox, QLineEdit, QTextEdit, QAbstractItemView, QMenuBar, QFileDialog,
              QColorDialog>(parent)) {
    return children;
  }
  for (auto* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!child->isVisible() || child->isWindow()) continue;
    const bool isNamed = !child->objectName().isEmpty() && !child->objectName().startsWith("qt_");
    const bool isTold = isNamed || IsOneOf<QLabel, QPushButton, QToolButton, QTabBar>(*child);
    children += isTold ? QWidgetList{child} : ChildrenOf(*child);
  }
  return children;
}

// How many stand one behind the other in front of it, by their near and far edges.
int CountInFront(const QRect& place, const QList<QRect>& all, int (QRect::*near)() const,
                 int (QRect::*far)() const) {
  int most = 0;
  for (const QRect& each : all) {
    if ((each.*far)() < (place.*near)())
      most = std::max(most, 1 + CountInFront(each, all, near, far));
  }
  return most;
}

// In a layout by row and column; what has a place of its own in the main window by pixels, as far
// as the tool bar, which has the height of a font, leaves them.
QString Place(const QWidget& widget, const QWidgetList& neighbours) {
  const QRect at = widget.geometry();
  const QWidget& outer = *widget.parentWidget();
  const auto* main = qobject_cast<const QMainWindow*>(widget.window());
  const auto* bar = widget.window()->findChild<QToolBar*>();
  if (main != nullptr && (&outer == main->centralWidget() || outer.objectName() == "StatusBar")) {
    const int top = at.y() - (bar->isVisible() ? bar->height() : 0);
    if (widget.objectName() == "txtDebug") return {};
    QString says = QString(" from %1, %2 wide").arg(at.x()).arg(at.width());
    if (at.height() >= 100) says += QString(", top %1").arg(top);
    if (at.height() < 100 && bar != &widget) says += QString(", %1 high").arg(at.height());
    if (bar == &widget) return says;
    return says + QString(", %1 above the end").arg(outer.height() - at.bottom() - 1);
  }
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (outer.layout() == nullptr && label != nullptr && !label->pixmap().isNull()) {
    const QPoint off = at.center() - outer.rect().center();
    return off.manhattanLength() <= 2 ? " in the middle" : "";
  }
  if (outer.layout() == nullptr && outer.windowFlags().testFlag(Qt::FramelessWindowHint)) {
    return QString(" at %1 %2, %3 wide").arg(at.x()).arg(at.y()).arg(at.width());
  }
  QList<QRect> all;
  int gap = IsOneOf<QGroupBox>(outer) ? 0 : at.top();
  for (const QWidget* each : neighbours) {
    if (each->parent() != &outer) continue;
    const QRect other = each->geometry();
    all += other;
    const bool isAbove =
        other.bottom() < at.top() && other.left() <= at.right() && at.left() <= other.right();
    if (isAbove) gap = std::min(gap, at.top() - other.bottom());
  }
  return QString(" at %1 %2")
             .arg(CountInFront(at, all, &QRect::top, &QRect::bottom) + 1)
             .arg(CountInFront(at, all, &QRect::left, &QRect::right) + 1) +
         (gap > at.height() ? " apart" : "");
}

// Where they aren't those of what it stands in.
QString FontAndColours(const QWidget& widget) {
  QString says;
  const bool isWindow = widget.isWindow();
  const QFont& own = widget.font();
  const QFont usual = isWindow ? QApplication::font() : widget.parentWidget()->font();
  if (own.family() != usual.family()) says += " in " + own.family();
  if (own.pointSize() != usual.pointSize()) says += QString(" %1 points").arg(own.pointSize());
  if (own.bold() != usual.bold()) says += " bold";
  const QPalette colours = isWindow ? QApplication::palette() : widget.parentWidget()->palette();
  const auto of = [](const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role).name(QColor::HexArgb).mid(1);
  };
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::WindowText, QPalette::Text,
                          QPalette::PlaceholderText}) {
    const QString colour = of(widget.palette(), role);
    if (colour != of(colours, role)) {
      says += ' ' + QVariant::fromValue(role).toString() + ' ' + colour;
    }
  }
  const auto& shown = widget.palette();
  const bool fades =
      shown.highlight() != shown.brush(QPalette::Inactive, QPalette::Highlight) ||
      shown.highlightedText() != shown.brush(QPalette::Inactive, QPalette::HighlightedText);
  return IsOneOf<QTextEdit>(widget) && fades ? says + " selection fades" : says;
}

QString ItemsOf(const QAbstractItemModel& model, int current) {
  QStringList items;
  for (int i = 0; i < model.rowCount(); ++i) {
    const QModelIndex index = model.index(i, 0);
    const QVariant tick = index.data(Qt::CheckStateRole);
    items += (i == current ? ">" : "") + index.data().toString() +
             (tick.isValid() ? tick.toInt() == Qt::Checked ? " [x]" : " [ ]" : "") +
             (index.data(Qt::DecorationRole).value<QIcon>().isNull() ? "" : " icon");
  }
  return " of " + items.join(", ");
}

QString Formats(const QtRichText& text) {
  QString says = QString(" caret %1 + %2").arg(text.SelStart()).arg(text.SelLength());
  const int line = text.cursorRect().center().y();
  if (line < 0 || line > text.viewport()->height()) says += " out of view";
  if (text.textCursor().position() < text.textCursor().anchor()) says += " back";
  QString font;
  for (const auto& [start, format] : text.TextRTF().runs) {
    says += QString(", %1 %2").arg(start).arg(ToQColor(format.color).name());
    const QString own = QString(" %1 %2").arg(format.fontName.c_str()).arg(format.fontSize) +
                        (format.bold ? " bold" : "");
    if (std::exchange(font, own) != own) says += own;
  }
  return says;
}

QString EntrySays(const QAction& entry) {
  QString says = Quoted(entry.text()) + ' ' + entry.shortcut().toString();
  if (!entry.icon().isNull()) says += " icon";
  if (entry.isCheckable()) says += entry.isChecked() ? " [x]" : " [ ]";
  return says + (entry.isEnabled() ? "" : " closed");
}

QString FilesSay(const QFileDialog& dialog) {
  QString says = ' ' + dialog.nameFilters().join(", ") + " in " + dialog.directory().path() +
                 " name " + dialog.findChild<QLineEdit*>("fileNameEdit")->text() + ", beside";
  for (const QUrl& place : dialog.sidebarUrls()) says += ' ' + place.path();
  const auto* places = dialog.findChild<QListView*>("sidebar");
  for (const auto& [place, what] : PaintedBy(*places->viewport())) {
    if (what.startsWith('"')) says += ", " + what.section('"', 1, 1);
  }
  const auto* files = dialog.findChild<QTreeView*>("treeView");
  bool isCut = places->width() < places->sizeHintForColumn(0) ||
               files->viewport()->width() != files->header()->length();
  for (int column = 1; column < files->header()->count(); ++column) {
    isCut |= files->columnWidth(column) < files->header()->sectionSizeHint(column);
  }
  return isCut ? says + ", cut" : says;
}

// Those of windows depend on their fonts, and so do the heights of labels.
QString LimitsOf(const QWidget& widget) {
  QSize least = widget.minimumSize();
  const QSize most = widget.maximumSize();
  QString says;
  if (IsOneOf<QLabel>(widget) && least.height() > 0) {
    says += QString(" of %1 lines").arg(least.height() / widget.fontMetrics().lineSpacing());
    least.setHeight(0);
  }
  if (!least.isNull()) says += QString(" from %1 %2").arg(least.width()).arg(least.height());
  if (most.width() < QWIDGETSIZE_MAX) says += QString(" to %1 wide").arg(most.width());
  if (most.height() < QWIDGETSIZE_MAX) says += QString(" to %1 high").arg(most.height());
  return widget.sizePolicy().verticalPolicy() == QSizePolicy::Ignored ? says + " shrinks" : says;
}

// What the user reads or hears of it.
QString Says(const QWidget& widget) {
  QString says = widget.metaObject()->className();
  constexpr const char* kNames =
      "windowTitle source text title plainText currentText accessibleName accessibleDescription "
      "toolTip openExternalLinks placeholderText selectedText cursorPosition checked default modal "
      "readOnly icon wordWrap textVisible minimum maximum value toolButtonStyle currentColor "
      "margin frameShape autoFillBackground";
  static const QStringList kProperties = QString(kNames).split(' ');
  for (const QString& property : kProperties) {
    const QVariant value = widget.property(property.toLatin1());
    const bool isEnum = (value.metaType().flags() & QMetaType::IsEnumeration) != 0;
    QString text = isEnum ? QString::number(value.toInt()) : value.toString();
    // The height of a font decides which pixel it is.
    if (widget.objectName() == "lblMeasure") text.replace(QRegularExpression("[0-9.]+"), "1");
    // A page is told by its place, and a view paints its items itself.
    const bool isOther = IsOneOf<QTextBrowser, QAbstractItemView>(widget) &&
                         (property == "plainText" || property == "wordWrap");
    if (text.isEmpty() || text == "0" || text == "false" || isOther) continue;
    says += QString(" %1=").arg(property) + Quoted(text);
  }
  if (!widget.isEnabled()) says += " closed";
  if (!widget.isWindow() && widget.objectName() != "lblMeasure") says += LimitsOf(widget);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    const auto mode = button->isEnabled() ? QIcon::Normal : QIcon::Disabled;
    if (button->icon().availableSizes(mode).isEmpty() && !button->icon().isNull())
      says += " greyed";
    if (!button->icon().isNull()) says += " icon";
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->buddy() != nullptr) says += " -> " + label->buddy()->objectName();
    if (label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text())) says += " rich";
    const QSize size = label->pixmap().size();
    if (!size.isEmpty()) says += QString(" picture %1 %2").arg(size.width()).arg(size.height());
    const QImage image = label->pixmap().toImage();
    if (label->objectName() == "imgTool") says += image.pixelColor(0, 0).name(QColor::HexArgb);
  }
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
    says += ItemsOf(*box->model(), box->currentIndex());
  }
  if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    says += ItemsOf(*list->model(), list->currentRow());
  }
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i) {
      says += (i == tabs->currentIndex() ? " >" : " ") + tabs->tabText(i);
    }
  }
  if (IsOneOf<QToolBar>(widget)) {
    for (const QAction* action : widget.actions()) {
      if (action->isVisible()) says += ' ' + (action->isSeparator() ? "-" : action->objectName());
    }
  }
  if (const auto* pages = qobject_cast<const QTextBrowser*>(&widget)) {
    const QString found = pages->textCursor().selectedText();
    const QString before = pages->toPlainText().left(pages->textCursor().selectionStart());
    const auto count = found.isEmpty() ? 0 : before.count(found, Qt::CaseInsensitive);
    says += QString(" found %1 after %2").arg(Quoted(found)).arg(count);
    QStringList colours;
    for (const auto& format : pages->document()->allFormats()) {
      if (format.hasProperty(QTextFormat::ForegroundBrush))
        colours += format.foreground().color().name();
    }
    colours.removeDuplicates();
    says += " in " + colours.join(' ');
  }
  if (const auto* dialog = qobject_cast<const QFileDialog*>(&widget)) says += FilesSay(*dialog);
  if (const auto* text = dynamic_cast<const QtRichText*>(&widget)) {
    says += Formats(*text);
    // Far, since fonts differ.
    if (text->horizontalScrollBar()->maximum() > 3 * text->width())
      says += " goes on far to the right";
  }
  return says + FontAndColours(widget);
}

// By rows, as painted; the first ones in view are enough, and at the end of the grid the fonts
// decide which ones these are.
QString GridSays(const GridView& grid, const QString& name, std::vector<Shown>& shown) {
  constexpr int kRows = 6;
  const QScrollBar& bar = *grid.verticalScrollBar();
  const bool isAtEnd = bar.maximum() > 0 && bar.value() == bar.maximum();
  const int first = grid.rowAt(grid.horizontalHeader()->isVisible() ? 1 : 0);
  const int last = isAtEnd || first < 0 ? -1 : std::min(first + kRows, grid.model()->rowCount());
  for (int row = first; row < last; ++row) {
    QString says = QString("%1 high ").arg(grid.rowHeight(row)) +
                   grid.model()->headerData(row, Qt::Vertical).toString() + ' ' +
                   grid.model()->index(row, kMarkColumn).data(Qt::AccessibleTextRole).toString();
    for (QWidget* part : {grid.verticalHeader()->viewport(), grid.viewport()}) {
      QString former;
      for (const auto& [place, what] : PaintedBy(*part)) {
        if (!part->isVisible() || place.height() > 2 * grid.rowHeight(row)) continue;
        if (grid.rowAt(place.center().y()) != row || std::exchange(former, what) == what) continue;
        // A line number gets smaller where its font is too wide.
        const bool isNumber = part->width() < 50 && what.startsWith('"');
        says += ", " + (isNumber ? what.section(' ', 0, 0) : what);
        if (isNumber && place.right() > part->width()) says += " cut";
        if (what.startsWith("picture")) says += QString(" at %1").arg(place.x());
      }
      says += part == grid.viewport() ? "" : " |";
    }
    shown.push_back({name + QString("/row %1").arg(row + 1), says});
  }
  QString says = QString(" rows %1, first in view ").arg(grid.model()->rowCount());
  says += isAtEnd ? "at the end" : QString::number(first + 1);
  if (first >= 0 && grid.rowViewportPosition(first) != 0) says += " cut";
  says += QString(", current %1, columns").arg(grid.currentIndex().row() + 1);
  for (int i = 0; i <= kTextColumn; ++i) says += QString(" %1").arg(grid.columnWidth(i));
  if (grid.horizontalHeader()->isVisible())
    says += QString(", head %1").arg(grid.horizontalHeader()->height());
  return says + QString(", numbers %1").arg(grid.verticalHeader()->width());
}

// Over which row of the grid it lies, and how far its edges are from those of the text.
QString EditSays(const QWidget& box) {
  const auto& grid = *box.window()->findChild<GridView*>("DebugWindow");
  const QRect place(grid.viewport()->mapFromGlobal(box.mapToGlobal(QPoint())), box.size());
  if (place.height() <= 0) return " without a size";
  const int row = grid.rowAt(place.center().y());
  return QString(" over row %1, off by %2 %3 %4")
      .arg(row + 1)
      .arg(place.top() - std::max(0, grid.rowViewportPosition(row)))
      .arg(place.left() - grid.columnViewportPosition(kTextColumn))
      .arg(grid.viewport()->width() - 1 - place.right());
}

// The colours of the picture's middle.
QString PictureSays(QWidget& widget) {
  const QImage strip = widget.grab({0, widget.height() / 2, widget.width(), 1}).toImage();
  QStringList colours;
  for (int x = 0; x < strip.width(); ++x) colours += strip.pixelColor(x, 0).name();
  colours.removeDuplicates();
  return " shows " + colours.join(' ');
}

// What it paints itself, from the middle of its left edge; fonts decide where a text ends, and how
// wide what reaches far is.
QString PaintsOf(QWidget& widget) {
  QString says = " paints";
  const QPoint axis(widget.contentsRect().left(),
                    widget.contentsRect().top() + widget.contentsRect().height() / 2);
  for (const auto& [place, what] : PaintedBy(widget)) {
    const bool isText = what.startsWith('"');
    const QPoint corner = place.topLeft() - axis;
    const bool isFar = (isText ? corner.x() : place.width()) > widget.width() / 2;
    // The frame that the style draws.
    if (isFar && what.startsWith("frame")) continue;
    says += ' ' + what;
    if (isFar) continue;
    says += QString(" at %1 %2").arg(corner.x()).arg(corner.y());
    if (!isText) says += QString(" to %1 %2").arg(place.width()).arg(place.height());
  }
  for (const auto* tool : widget.findChildren<QLabel*>()) {
    if (tool->pixmap().isNull()) continue;
    const QPoint corner = tool->pos() - axis;
    says += QString(", tool at %1 %2").arg(corner.x()).arg(corner.y());
  }
  return says;
}

void AddMenu(const QMenu& menu, std::vector<Shown>& shown) {
  const QString name = NameOf(menu);
  shown.push_back({name, EntrySays(*menu.menuAction()) + (menu.isVisible() ? " up" : "")});
  for (qsizetype i = 0; i < menu.actions().size(); ++i) {
    const QAction& entry = *menu.actions()[i];
    const QString own = entry.isSeparator() ? QString("line %1").arg(i) : entry.objectName();
    if (entry.isVisible()) shown.push_back({name + '/' + own, EntrySays(entry)});
  }
}

void AddChildren(QWidget& parent, const QString& name, std::vector<Shown>& shown) {
  const QWidgetList children = ChildrenOf(parent);
  for (QWidget* child : children) {
    const QString own = NameOf(*child);
    QString says = Says(*child);
    if (const auto* grid = dynamic_cast<GridView*>(child)) says += GridSays(*grid, own, shown);
    if (own == "txtDebug") says += EditSays(*child);
    if (own == "picSim") says += PictureSays(*child);
    const QByteArray kind = child->metaObject()->className();
    const bool isOurs = kind == "QAbstractButton" || kind == "QWidget" || own == "picSample";
    if (isOurs && own != "picSim") says += PaintsOf(*child);
    shown.push_back({name + '/' + own, says + Place(*child, children)});
    AddChildren(*child, own, shown);
  }
}

}  // namespace

QString NameOf(const QWidget& widget) {
  const bool isNamed = !widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_");
  if (isNamed) return widget.objectName();
  if (widget.isWindow() && !widget.windowTitle().isEmpty()) return widget.windowTitle();
  const QString text = IsOneOf<QAbstractButton>(widget) ? widget.property("text").toString() : "";
  return text.isEmpty() ? widget.metaObject()->className() : QString(text).remove('&');
}

QString Quoted(QString text) {
  return '"' + text.replace('\n', " / ") + '"';
}

QWidget* FrontWindow() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : QApplication::activeModalWidget();
}

std::vector<Shown> OnScreen() {
  std::vector<Shown> shown;
  QWidgetList windows = QApplication::topLevelWidgets();
  std::ranges::sort(windows, {}, [](const QWidget* window) { return NameOf(*window); });
  for (QWidget* window : windows) {
    const auto* menu = qobject_cast<QMenu*>(window);
    if (menu != nullptr && (menu->isVisible() || menu->objectName().startsWith("mnu"))) {
      AddMenu(*menu, shown);
    }
    if (menu != nullptr || !window->isVisible() || window->windowType() == Qt::ToolTip) continue;
    QString says = Says(*window);
    if (window->windowFlags().testFlag(Qt::FramelessWindowHint)) {
      const QRect at = window->geometry();
      says += QString(" at %1 %2, %3 wide, %4 high")
                  .arg(at.x())
                  .arg(at.y())
                  .arg(at.width())
                  .arg(at.height());
      says += QString(", opaque %1").arg(qRound(255 * window->windowOpacity())) + PaintsOf(*window);
      for (const auto* timer : window->findChildren<QTimer*>())
        says += QString(", %1 %2").arg(timer->objectName()).arg(timer->interval());
    }
    shown.push_back({NameOf(*window), says});
    AddChildren(*window, NameOf(*window), shown);
  }
  for (const auto& [name, widget] :
       {std::pair{"in front", FrontWindow()}, {"focus", QApplication::focusWidget()}}) {
    shown.push_back({name, widget != nullptr ? NameOf(*widget) : ""});
  }
  return shown;
}
