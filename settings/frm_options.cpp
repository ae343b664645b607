#include "settings/frm_options.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "mainwindow/control_surface.h"
#include "mainwindow/frm_help.h"
#include "mainwindow/start_up.h"
#include "platform/qt/host/dialog_owner.h"
#include "platform/qt/views/picture_strip.h"
#include "settings/frm_options_debug.h"
#include "settings/frm_options_editor.h"
#include "settings/frm_options_simulation.h"
#include "settings/options.h"

namespace frmOptions {

namespace {

// Pixels; larger where the font asks for it.
constexpr QSize kSmallestSize(447, 474);

// What a window manager may put around the dialog, in pixels.
constexpr int kTitleHeight = 40;

// A page that scrolls on a small screen alone: it asks for all the room that its page asks for.
class PageScroll : public QScrollArea {
 public:
  explicit PageScroll(QWidget* page) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // The controls of the page bring themselves into view.
    setFocusPolicy(Qt::NoFocus);
    setWidget(page);
    // Both show the colours of the tab.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }

 protected:
  QSize sizeHint() const override { return widget()->sizeHint(); }
};

QPushButton* MakeButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  return button;
}

}  // namespace

OptionsDialog::OptionsDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint) {
  setObjectName("frmOptions");
  setWindowTitle("Options");
  // Where there is no such font, the system's own.
  QFont dialogFont = font();
  dialogFont.setFamilies({"Tahoma", dialogFont.family()});
  setFont(dialogFont);

  editor_ = new EditorPage(working_);
  debug_ = new DebugPage(working_);
  simulation_ = new SimulationPage(working_);
  // The effect colour is on two pages.
  debug_->ColourChosen = [this] { simulation_->LoadOptions(); };
  simulation_->ColourChanged = [this] { debug_->cmbDebugColors_Click(); };
  tabs_ = new QTabWidget;
  tabs_->setObjectName("SSTab");
  tabs_->addTab(new PageScroll(editor_), "Editor");
  tabs_->addTab(new PageScroll(debug_), "Debug");
  tabs_->addTab(new PageScroll(simulation_), "Simulation");
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { SSTab_Click(); });

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, layout->contentsMargins().right(), 0);
  auto* right = new QVBoxLayout;
  right->setContentsMargins(0, 6, 0, 6);
  right->addWidget(tabs_);
  layout->addLayout(right, 1);
  layout->insertWidget(0, MakeStrip());
  // Of the dialog, which the button has joined only now.
  cmdOK_->setDefault(true);
  setFixedSize(WholeSize());

  frmMain::OfferHelp(*this);
  LoadWorkingColors();
  LoadOptions();
}

// Larger where the font asks for it, lower where the screen does: then a scroll bar stands beside
// the page.
QSize OptionsDialog::WholeSize() const {
  QSize size = sizeHint().expandedTo(kSmallestSize);
  const int room = screen()->availableGeometry().height() - kTitleHeight;
  if (size.height() > room) {
    size = {size.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), room};
  }
  return size;
}

QWidget* OptionsDialog::MakeStrip() {
  auto* strip = new PictureStrip(":/pictures/options.png", Qt::Vertical);
  strip->setObjectName("Image2");
  cmdOK_ = MakeButton("cmdOK", "&OK");
  QPushButton* cmdEditorCancel = MakeButton("cmdEditorCancel", "&Cancel");
  auto* column = new QVBoxLayout(strip);
  column->setContentsMargins(16, 16, 16, 16);
  column->addStretch(1);
  column->addWidget(cmdOK_);
  column->addWidget(cmdEditorCancel);
  connect(cmdOK_, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdEditorCancel, &QPushButton::clicked, this, [this] { cmdEditorCancel_Click(); });
  return strip;
}

void OptionsDialog::LoadWorkingColors() {
  working_ = GlobalVariables::Settings;
}

void OptionsDialog::LoadOptions() {
  editor_->LoadOptions();
  debug_->LoadOptions();
  simulation_->LoadOptions();
}

void OptionsDialog::SSTab_Click() {
  const QWidget* shown = tabs_->currentWidget();
  if (shown->isAncestorOf(debug_)) debug_->PaintDebugSample();
  if (shown->isAncestorOf(simulation_)) simulation_->PaintSimulationSample();
}

void OptionsDialog::cmdOK_Click() {
  editor_->TakeOptions();
  debug_->TakeOptions();
  GlobalVariables::SaveOptions(working_);
  GlobalVariables::LoadSettings();
  frmMain::Tag = "OK";
  accept();
}

void OptionsDialog::cmdEditorCancel_Click() {
  reject();
}

}  // namespace frmOptions

namespace frmMain {

void mnuToolsOptions_Click() {
  Tag.clear();
  frmOptions::OptionsDialog(DialogOwner()).exec();
  if (Tag == "OK") ApplyOptions();
}

}  // namespace frmMain
