// The peers of the start time: a program that shows an empty window, or with an argument one that
// has a menu, and so a text and a font.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle("Peer");
  if (argc > 1) window.menuBar()->addMenu("&File")->addAction("&New");
  window.showMaximized();
  return QApplication::exec();
}
