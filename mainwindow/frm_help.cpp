#include "mainwindow/frm_help.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/host/desktop.h"
#include "platform/host/files.h"

namespace {

constexpr QSize kLargestSize(960, 840);
// Of the screen, in either direction.
constexpr double kScreenShare = 0.85;
constexpr QColor kTextColour(0x1D, 0x26, 0x30);

std::string ManualPath() {
  return ApplicationFolder() + "/help/index.html";
}

// The pages bring colours for light paper along.
QPalette PaperPalette(QPalette palette) {
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, kTextColour);
  return palette;
}

// The manual, with buttons to walk through it. It stands on its own beside the main window.
class HelpWindow : public QWidget {
 public:
  HelpWindow() {
    setObjectName("frmHelp");
    setWindowTitle("Turnbay Help");
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    pages_.setObjectName("brwHelp");
    pages_.setFrameShape(QFrame::NoFrame);
    pages_.setPalette(PaperPalette(pages_.palette()));
    // Those of other places go to the browser of the desktop.
    pages_.setOpenExternalLinks(true);
    MakeButtons();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(&buttons_);
    layout->addWidget(&pages_);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    Place();
    pages_.setSource(QUrl::fromLocalFile(QString::fromStdString(ManualPath())));
    pages_.setFocus();
  }

 private:
  QAction* AddButton(const QString& name, QStyle::StandardPixmap icon, const QString& text,
                     void (QTextBrowser::*command)()) {
    QAction* action = buttons_.addAction(style()->standardIcon(icon), text);
    action->setObjectName(name);
    connect(action, &QAction::triggered, &pages_, command);
    return action;
  }

  void MakeButtons() {
    buttons_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* back = AddButton("cmdBack", QStyle::SP_ArrowBack, "&Back", &QTextBrowser::backward);
    QAction* next =
        AddButton("cmdForward", QStyle::SP_ArrowForward, "&Forward", &QTextBrowser::forward);
    AddButton("cmdContents", QStyle::SP_DirHomeIcon, "&Contents", &QTextBrowser::home);
    back->setEnabled(false);
    next->setEnabled(false);
    connect(&pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(&pages_, &QTextBrowser::forwardAvailable, next, &QAction::setEnabled);
  }

  // In the middle of the screen on which the user works.
  void Place() {
    const QWidget* active = QApplication::activeWindow();
    const QRect area = (active != nullptr ? active : this)->screen()->availableGeometry();
    resize(kLargestSize.boundedTo(area.size() * kScreenShare));
    move(area.center() - rect().center());
  }

  QToolBar buttons_;
  QTextBrowser pages_;
};

QPointer<HelpWindow> frmHelpWindow;

void ShowManual() {
  std::string reason;
  if (!ReadFile(ManualPath(), reason)) {
    Desktop::ShowError(reason);
    return;
  }
  if (frmHelpWindow == nullptr) frmHelpWindow = new HelpWindow;
  frmHelpWindow->show();
  frmHelpWindow->raise();
  frmHelpWindow->activateWindow();
}

}  // namespace

namespace frmMain {

void mnuHelpContents_Click() {
  if (!Desktop::StartProgram("hh", ApplicationFolder() + "\\help.chm")) ShowManual();
}

}  // namespace frmMain
