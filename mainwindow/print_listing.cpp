#include "mainwindow/print_listing.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>

#include "mainwindow/control_surface.h"
#include "mainwindow/listing.h"
#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/qt/host/dialog_owner.h"
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

// Prints a file as a whole or leaves the old one.
bool PrintToFile(const Listing& listing, QPrinter& printer, const std::string& file) {
  const QTemporaryDir folder;
  const QString fresh = folder.filePath("listing.pdf");
  printer.setOutputFileName(fresh);
  if (!PrintListing(listing, printer)) return false;
  std::string reason;
  const auto bytes = ReadFile(fresh.toStdString(), reason);
  return bytes && ReplaceFile(file, *bytes, reason);
}

std::string Failure(const std::string& file) {
  if (file.empty()) return "The printer doesn't take the program. Look after it, and print again.";
  return "The program can't be printed to \"" + file +
         "\". Choose another folder, or make room on the disk.";
}

}  // namespace

void mnuFilePrint_Click() {
  const Listing listing = EditorListing();
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(listing.title);
  const double margin = kMarginMillimetres;
  printer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
  QPrintDialog dialog(&printer, DialogOwner());
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string file = printer.outputFileName().toStdString();
  const bool printed =
      file.empty() ? PrintListing(listing, printer) : PrintToFile(listing, printer, file);
  if (!printed) Desktop::ShowError(Failure(file));
}

}  // namespace frmMain
