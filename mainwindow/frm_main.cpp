#include "mainwindow/frm_main.h"

MainWindow::MainWindow() = default;
MainWindow::~MainWindow() = default;
