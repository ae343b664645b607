#pragma once

#include <QMainWindow>
#include <QTimer>

#include "platform/controls.h"
#include "platform/qt/views/bindings.h"

class GridView;
class QtRichText;
class SurfaceView;
class QProgressBar;
class QSlider;

namespace frmMain {

// The main window: widgets that bear the names of the controls, show their properties, and turn
// the user's events into calls of the handlers. Nothing else is kept here. One at a time.
class Window : public QMainWindow {
 public:
  Window();
  ~Window() override;

  // Runs Form_Load, with the splash window if it is wanted, then comes up maximized. Does not come
  // up when the program has been ended meanwhile.
  void Load();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeEditor();
  void MakeGrid();
  void MakePicture();
  void MakeOverlays();
  void ShowPane(QWidget& pane, QWidget& other, bool visible);
  void BindPlaces();
  void FollowFocus();
  void FormResized();

  Bindings bindings_;
  QTimer recoveryTimer_;
  // Holds all controls; its inner size is that of the window.
  QWidget* form_;
  QWidget* toolBar_ = nullptr;
  QWidget* statusBar_ = nullptr;
  QtRichText* editor_ = nullptr;
  GridView* grid_ = nullptr;
  SurfaceView* picture_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QSlider* slider_ = nullptr;
};

}  // namespace frmMain
