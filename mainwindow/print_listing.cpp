#include "mainwindow/print_listing.h"

#include <QPrintDialog>
#include <QPrinter>

#include "debugger/row_edit.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/listing.h"
#include "platform/desktop.h"
#include "platform/qt/dialog_owner.h"
#include "settings/settings.h"

namespace frmMain {

namespace {

constexpr double kMarginMillimetres = 15;

Listing EditorListing() {
  const GlobalVariables::SettingsRecord& settings = GlobalVariables::Settings;
  QFont font(QString::fromStdString(settings.EditorFontName), settings.EditorFontSize);
  font.setBold(settings.EditorFontBold != 0);
  return {QString::fromStdString(StatusBar.Panels("FileName").Text), TextEditor().TextRTF(), font};
}

std::string Failure(const QPrinter& printer) {
  const std::string file = printer.outputFileName().toStdString();
  if (file.empty()) return "The printer doesn't take the program. Look after it, and print again.";
  return "The program can't be printed to \"" + file +
         "\". Choose another folder, or make room on the disk.";
}

}  // namespace

void mnuFilePrint_Click() {
  txtDebug_LostFocus();
  const Listing listing = EditorListing();
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(listing.title);
  constexpr double margin = kMarginMillimetres;
  printer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
  QPrintDialog dialog(&printer, DialogOwner());
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintListing(listing, printer)) {
    Desktop::MessageBox(Failure(printer), Desktop::kCritical, "Error!");
  }
}

}  // namespace frmMain
