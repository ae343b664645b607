#include <QApplication>

#include "mainwindow/frm_main.h"

// The desktop program.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  MainWindow window;
  window.show();
  return QApplication::exec();
}
