// The peer of the start time: a program that shows an empty window.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle("Empty Window");
  window.showMaximized();
  return QApplication::exec();
}
