#include "mainwindow/frm_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QWindow>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "editor/documents.h"
#include "editor/editor_events.h"
#include "editor/recovery_offer.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main_menus.h"
#include "mainwindow/frm_main_row_edit.h"
#include "mainwindow/frm_main_status_bar.h"
#include "mainwindow/frm_main_tool_bar.h"
#include "mainwindow/layout.h"
#include "mainwindow/start_up.h"
#include "motion/stock.h"
#include "platform/host/desktop.h"
#include "platform/qt/views/grid_view.h"
#include "platform/qt/views/key_codes.h"
#include "platform/qt/views/qt_rich_text.h"
#include "platform/qt/views/surface_view.h"

namespace frmMain {

namespace {

// The image list of the grid: its marks by key.
const char* const imgListDebugWindow = ":/pictures/grid";

void Place(QWidget& widget, const ControlBounds& bounds) {
  // By its edges, so that neighbours meet.
  const QRectF place(bounds.Left, bounds.Top, bounds.Width, bounds.Height);
  const QPoint corner = place.topLeft().toPoint();
  const QPoint opposite = place.bottomRight().toPoint();
  widget.setGeometry(QRect(corner, QSize(opposite.x() - corner.x(), opposite.y() - corner.y())));
}

// The first of the files that are dragged, if there are any.
QString DraggedFile(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) return url.toLocalFile();
  }
  return {};
}

// A copy always: a source that moves its file takes it away afterwards.
void AcceptCopy(QDropEvent& event) {
  if (!event.possibleActions().testFlag(Qt::CopyAction)) return;
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

Window::Window() : form_(new QWidget) {
  setObjectName("frmMain");
  setWindowTitle(Desktop::kProgramTitle);
  setAcceptDrops(true);
  setCentralWidget(form_);
  form_->installEventFilter(this);
  MakeMenus(*this, bindings_);
  toolBar_ = new ToolBarView(form_);
  MakeEditor();
  MakeGrid();
  MakePicture();
  statusBar_ = new StatusBarView(form_);
  MakeOverlays();
  BindPlaces();
  FollowFocus();
  // Of its own window, which hears every key in front of the control that has the focus.
  create();
  windowHandle()->installEventFilter(this);
}

Window::~Window() {
  SetTextEditor(nullptr);
}

void Window::Load() {
  Form_Load();
  if (WindowClosed != kFalse) return;
  bindings_.Bind(WindowState, [this](int state) {
    if (state == kMaximized && !isMaximized()) showMaximized();
  });
  // A desktop without a window manager maximizes nothing.
  setGeometry(screen()->availableGeometry());
  showMaximized();
  FormResized();
  editor_->setFocus();
  if (editor_->isHidden() && grid_->isHidden()) form_->setFocus();
  // A program that came in while the editor had no size yet.
  editor_->verticalScrollBar()->setValue(0);
  constexpr int kRecoveryInterval = 500;  // milliseconds
  recoveryTimer_.callOnTimeout(this, RecoveryTimer_Timer);
  recoveryTimer_.start(kRecoveryInterval);
  QMetaObject::invokeMethod(this, OfferRecovery, Qt::QueuedConnection);
}

void Window::MakeEditor() {
  editor_ = new QtRichText(form_);
  editor_->setObjectName("TextEditor");
  editor_->setAccessibleName("Part program");
  editor_->setFrameShape(QFrame::StyledPanel);
  editor_->setTabChangesFocus(true);
  editor_->Keys = {TextEditor_KeyDown, TextEditor_KeyPress, TextEditor_KeyUp};
  editor_->PasteRefused = TellRefusedPaste;
  SetTextEditor(editor_);
}

void Window::MakeGrid() {
  grid_ = new GridView(DebugWindow, imgListDebugWindow, form_);
  grid_->setObjectName("DebugWindow");
  grid_->setAccessibleName("Program rows");
  grid_->Click = DebugWindow_Click;
  grid_->DblClick = DebugWindow_DblClick;
  new RowEditBox(grid_);
  connect(grid_->verticalScrollBar(), &QScrollBar::valueChanged, this,
          [](int) { txtDebug_Follow(); });
}

void Window::MakePicture() {
  picture_ = new SurfaceView(picSim, form_);
  picture_->setObjectName("picSim");
  picture_->setAccessibleName("Simulation area");
  picture_->Paint = Graphics::DrawSurface;
  picture_->Measure = Graphics::Measure;
}

void Window::MakeOverlays() {
  progress_ = new QProgressBar(form_);
  progress_->setObjectName("ProgressBar");
  progress_->setAccessibleName("Program progress");
  progress_->setTextVisible(false);
  progress_->setToolTip(kPanels[PanelKey("ProgressBar").Row()].Tip);
  bindings_.Bind(frmMain::ProgressBar.Max, [this](int most) { progress_->setMaximum(most); });
  bindings_.Bind(frmMain::ProgressBar.Value, [this](int value) { progress_->setValue(value); });

  slider_ = new QSlider(Qt::Horizontal, form_);
  slider_->setObjectName("Slider");
  slider_->setAccessibleName("Simulation speed");
  slider_->setToolTip(kPanels[PanelKey("Slider").Row()].Tip);
  slider_->setRange(SliderControl::kMin, SliderControl::kMax);
  slider_->setSingleStep(1);
  slider_->setPageStep(5);
  bindings_.Bind(frmMain::Slider.Value, [this](int value) { slider_->setValue(value); });
  connect(slider_, &QSlider::valueChanged, this, [](int value) { frmMain::Slider.Value = value; });
}

// The keyboard goes to the pane that comes into view, but stays at the slider when a run brings the
// grid. Without a pane it waits on the form: Qt would give it to the slider, also when the window
// comes back from behind a dialog.
void Window::ShowPane(QWidget& pane, QWidget& other, bool visible) {
  const QWidget* user = focusWidget();
  const bool leaves = !visible && (user == &pane || pane.isAncestorOf(user));
  if (leaves) form_->setFocus();
  pane.setVisible(visible);
  if (leaves && !other.isHidden()) other.setFocus();
  if (visible && mnuView.Enabled) pane.setFocus();
}

void Window::BindPlaces() {
  const auto bind = [this](Control& control, QWidget& widget) {
    bindings_.Bind(control.Bounds, [&](const ControlBounds& bounds) { Place(widget, bounds); });
    bindings_.Bind(control.Visible, [&](bool visible) { widget.setVisible(visible); });
  };
  bind(Toolbar, *toolBar_);
  bind(picSim, *picture_);
  bind(frmMain::ProgressBar, *progress_);
  bind(frmMain::Slider, *slider_);
  bindings_.Bind(TextEditorBounds,
                 [this](const ControlBounds& bounds) { Place(*editor_, bounds); });
  bindings_.Bind(editor_->Visible, [this](bool visible) { ShowPane(*editor_, *grid_, visible); });
  bindings_.Bind(DebugWindow.Bounds,
                 [this](const ControlBounds& bounds) { Place(*grid_, bounds); });
  bindings_.Bind(DebugWindow.Visible,
                 [this](bool visible) { ShowPane(*grid_, *editor_, visible); });
  bindings_.Bind(StatusBar.Bounds,
                 [this](const ControlBounds& bounds) { Place(*statusBar_, bounds); });
  bindings_.Bind(StatusBar.Visible, [this](bool visible) {
    statusBar_->setVisible(visible);
    // The controls cover the form, so that it has no paint of its own.
    QMetaObject::invokeMethod(form_, Form_Paint, Qt::QueuedConnection);
  });
}

void Window::FollowFocus() {
  connect(qApp, &QApplication::focusChanged, this, [](QWidget*, QWidget* now) {
    if (now == nullptr) return;
    ActiveControl = std::string_view();
    for (const std::string_view name : {"TextEditor", "DebugWindow", "txtDebug", "Slider"}) {
      if (now->objectName() == QLatin1String(name.data())) ActiveControl = name;
    }
  });
  bindings_.Bind(ActiveControl, [this](std::string_view name) {
    if (name == "TextEditor") editor_->setFocus();
  });
}

void Window::FormResized() {
  ScaleWidth = form_->width();
  ScaleHeight = form_->height();
  if (!isVisible()) return;
  Form_Resize();
  QMetaObject::invokeMethod(form_, Form_Paint, Qt::QueuedConnection);
}

void Window::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
  WindowState = isMinimized() ? kMinimized : isMaximized() ? kMaximized : kNormal;
  // A window that is minimized may stay so.
  if (WindowState == kNormal) Form_Resize();
}

void Window::closeEvent(QCloseEvent* event) {
  std::int16_t cancel = kFalse;
  Form_QueryUnload(cancel, kClosedByUser);
  event->setAccepted(cancel == kFalse);
}

void Window::dragEnterEvent(QDragEnterEvent* event) {
  if (Toolbar.Buttons("Open").Enabled && !DraggedFile(*event->mimeData()).isEmpty()) {
    AcceptCopy(*event);
  }
}

void Window::dragMoveEvent(QDragMoveEvent* event) {
  AcceptCopy(*event);
}

void Window::dropEvent(QDropEvent* event) {
  const std::string file = DraggedFile(*event->mimeData()).toStdString();
  AcceptCopy(*event);
  // Whoever is dragged from waits until this has returned, but the save question may take long.
  const auto open = [this, file] {
    activateWindow();
    OpenProgram(file);
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
  if (watched == form_ && event->type() == QEvent::Resize) FormResized();
  if (watched == windowHandle() && event->type() == QEvent::KeyRelease) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    Form_KeyUp(VirtualKey(key), ShiftState(key));
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace frmMain
