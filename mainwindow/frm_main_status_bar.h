#pragma once

#include <QWidget>

#include "platform/qt/views/bindings.h"

namespace frmMain {

// StatusBar on the screen: a label a panel, named by its key. Panels keep their place and width; a
// text that is too long ends in dots.
class StatusBarView : public QWidget {
 public:
  explicit StatusBarView(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Bindings bindings_;
};

}  // namespace frmMain
