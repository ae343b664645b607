#include "mainwindow/frm_help.h"

#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/host/desktop.h"
#include "platform/host/files.h"

namespace {

constexpr QSize kLargestSize(960, 840);
// Of the screen, in either direction.
constexpr double kScreenShare = 0.85;
// Those of the pages, on a light and on a dark theme, and the sheet that makes a page dark.
constexpr QColor kTextColour(0x1D, 0x26, 0x30);
constexpr QColor kDarkTextColour(0xDD, 0xE3, 0xE9);
constexpr QColor kDarkPaperColour(0x1E, 0x23, 0x29);
constexpr QColor kMissing(0xB0, 0x10, 0x10);
constexpr QColor kDarkMissing(0xFF, 0x80, 0x80);
constexpr int kHintAlpha = 150;
constexpr const char* kSheet = "style.css";
constexpr const char* kDarkSheet = "dark.css";

std::string ManualPath() {
  return ApplicationFolder() + "/help/index.html";
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

// The pages bring their colours along.
QPalette PaperPalette(QPalette palette) {
  const bool isDark = IsDark(palette);
  palette.setColor(QPalette::Base, isDark ? kDarkPaperColour : Qt::white);
  palette.setColor(QPalette::Text, isDark ? kDarkTextColour : kTextColour);
  return palette;
}

// The pages of the manual, on dark paper in a dark theme.
class Pages : public QTextBrowser {
 public:
  Pages() {
    setPalette(PaperPalette(palette()));
    usual_ = font();
  }

  // Ctrl with the wheel does as well.
  void Enlarge() { zoomIn(kZoomStep); }
  void Reduce() { zoomOut(kZoomStep); }
  void ShowUsualSize() { setFont(usual_); }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    QVariant sheet = QTextBrowser::loadResource(type, name);
    if (name.fileName() != kSheet || !IsDark(QApplication::palette())) return sheet;
    const QVariant dark = QTextBrowser::loadResource(type, name.resolved(QUrl(kDarkSheet)));
    return sheet.toByteArray() + dark.toByteArray();
  }

 private:
  // Points.
  static constexpr int kZoomStep = 1;
  QFont usual_;
};

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
    // Those of other places go to the browser of the desktop.
    pages_.setOpenExternalLinks(true);
    MakeButtons();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(&buttons_);
    layout->addWidget(&pages_);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    MakeKeys();
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
    find_.setObjectName("txtFind");
    find_.setAccessibleName("Find on this page");
    find_.setPlaceholderText("Find on this page (Ctrl+F)");
    find_.setClearButtonEnabled(true);
    // Not every dark theme brings a colour for it.
    QPalette colours = palette();
    QColor hint = colours.color(QPalette::Text);
    hint.setAlpha(kHintAlpha);
    colours.setColor(QPalette::PlaceholderText, hint);
    setPalette(colours);
    buttons_.setObjectName("Buttons");
    buttons_.addSeparator();
    buttons_.addWidget(&find_);
    connect(&find_, &QLineEdit::textEdited, this, [this] {
      pages_.moveCursor(QTextCursor::Start);
      Find();
    });
    connect(&find_, &QLineEdit::returnPressed, this, [this] { Find(); });
  }

  void MakeKeys() {
    const auto bind = [this](const QKeySequence& keys, auto command) {
      connect(new QShortcut(keys, this), &QShortcut::activated, this, command);
    };
    bind(QKeySequence::Find, [this] {
      find_.setFocus();
      find_.selectAll();
    });
    bind(QKeySequence::FindNext, [this] { Find(); });
    // The plus of most layouts, with and without Shift.
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal}) {
      bind(Qt::CTRL | key, [this] { pages_.Enlarge(); });
    }
    bind(Qt::CTRL | Qt::Key_Minus, [this] { pages_.Reduce(); });
    bind(Qt::CTRL | Qt::Key_0, [this] { pages_.ShowUsualSize(); });
  }

  // The next place, and behind the last one the first. A text that isn't there turns red.
  void Find() {
    bool found = find_.text().isEmpty() || pages_.find(find_.text());
    if (!found) {
      pages_.moveCursor(QTextCursor::Start);
      found = pages_.find(find_.text());
    }
    QPalette colours = palette();
    if (!found) colours.setColor(QPalette::Text, IsDark(colours) ? kDarkMissing : kMissing);
    find_.setPalette(colours);
    find_.setAccessibleDescription(found ? "" : "Not on this page");
  }

  // In the middle of the screen on which the user works.
  void Place() {
    const QWidget* active = QApplication::activeWindow();
    const QRect area = (active != nullptr ? active : this)->screen()->availableGeometry();
    resize(kLargestSize.boundedTo(area.size() * kScreenShare));
    move(area.center() - rect().center());
  }

  QToolBar buttons_;
  Pages pages_;
  QLineEdit find_;
};

QPointer<HelpWindow> frmHelpWindow;

void ShowManual() {
  std::string reason;
  if (!ReadFile(ManualPath(), reason)) {
    Desktop::ShowError(reason);
    return;
  }
  // A closed one waits for its deletion.
  if (frmHelpWindow == nullptr || !frmHelpWindow->isVisible()) frmHelpWindow = new HelpWindow;
  // Of a modal dialog that asks for it, or else it would take no keys. It appears anew for that.
  const QWidget* dialog = QApplication::activeModalWidget();
  QWindow* owner = dialog != nullptr ? dialog->windowHandle() : nullptr;
  frmHelpWindow->winId();
  if (frmHelpWindow->windowHandle()->transientParent() != owner) {
    frmHelpWindow->hide();
    frmHelpWindow->windowHandle()->setTransientParent(owner);
  }
  frmHelpWindow->show();
  frmHelpWindow->raise();
  frmHelpWindow->activateWindow();
}

}  // namespace

namespace frmMain {

void mnuHelpContents_Click() {
  const std::string file = ApplicationFolder() + "\\help.chm";
  const bool isThere = QFileInfo::exists(QString::fromStdString(AssetPath(file)));
  if (!isThere || !Desktop::StartProgram("hh", file)) ShowManual();
}

void OfferHelp(QWidget& dialog) {
  QObject::connect(new QShortcut(QKeySequence(kHelpKey), &dialog), &QShortcut::activated,
                   mnuHelpContents_Click);
}

}  // namespace frmMain
