#include "mainwindow/print_listing.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include "mainwindow/control_surface.h"
#include "mainwindow/listing.h"
#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/qt/host/dialog_owner.h"
#include "settings/settings.h"

namespace {

using frmMain::StatusBar;
using frmMain::TextEditor;

constexpr double kMarginMillimetres = 15;

Listing EditorListing() {
  const GlobalVariables::SettingsRecord& settings = GlobalVariables::Settings;
  QFont font(QString::fromStdString(settings.EditorFontName), settings.EditorFontSize);
  font.setBold(settings.EditorFontBold != 0);
  return {QString::fromStdString(StatusBar.Panels("FileName").Text), TextEditor().TextRTF(), font};
}

// A PDF file as a whole, or the old one stays. Made in memory: no other disk can be in the way.
bool PrintToFile(const Listing& listing, const QPrinter& printer, std::string& reason) {
  QBuffer pages;
  pages.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pages);
  writer.setResolution(printer.resolution());
  writer.setPageLayout(printer.pageLayout());
  writer.setPageRanges(printer.pageRanges());
  writer.setTitle(printer.docName());
  PrintListing(listing, writer);
  return ReplaceFile(printer.outputFileName().toStdString(), pages.data().toStdString(), reason);
}

}  // namespace

void PrintProgram() {
  const Listing listing = EditorListing();
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(listing.title);
  const double margin = kMarginMillimetres;
  printer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
  QPrintDialog dialog(&printer, DialogOwner());
  if (dialog.exec() != QDialog::Accepted) return;
  std::string reason = "The printer doesn't take the program. Look after it, and print again.";
  const bool printed = printer.outputFileName().isEmpty() ? PrintListing(listing, printer)
                                                          : PrintToFile(listing, printer, reason);
  if (!printed) Desktop::ShowError(reason);
}
