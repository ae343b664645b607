#include "mainwindow/frm_tool_bar_layout.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace frmMain {

namespace {

// The order in which the buttons were made.
constexpr const char* kDesignOrder = "designOrder";

void RememberDesign(QToolBar& bar) {
  if (bar.property(kDesignOrder).isValid()) return;
  QVariantList order;
  for (QAction* action : bar.actions()) order += QVariant::fromValue(action);
  bar.setProperty(kDesignOrder, order);
}

class LayoutDialog : public QDialog {
 public:
  explicit LayoutDialog(QToolBar& bar) : QDialog(bar.window()), bar_(bar) {
    setWindowTitle("Customize Toolbar");
    list_ = new QListWidget;
    list_->setObjectName("lstButtons");
    auto* caption = new QLabel("&Buttons shown:");
    caption->setBuddy(list_);
    auto* up = new QPushButton("Move &Up");
    auto* down = new QPushButton("Move &Down");
    auto* reset = new QPushButton("&Reset");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);

    auto* side = new QVBoxLayout;
    for (QPushButton* button : {up, down, reset}) {
      button->setAutoDefault(false);
      side->addWidget(button);
    }
    side->addStretch();
    auto* middle = new QHBoxLayout;
    middle->addWidget(list_);
    middle->addLayout(side);
    auto* all = new QVBoxLayout(this);
    all->addWidget(caption);
    all->addLayout(middle);
    all->addWidget(buttons);

    connect(up, &QPushButton::clicked, this, [this] { Move(-1); });
    connect(down, &QPushButton::clicked, this, [this] { Move(1); });
    connect(reset, &QPushButton::clicked, this, [this] { Reset(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
      bar_.actions().at(list_->row(item))->setVisible(item->checkState() == Qt::Checked);
    });
    Fill(0);
  }

 private:
  void Fill(int current) {
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const QAction* action : bar_.actions()) {
      auto* item = new QListWidgetItem(action->icon(),
                                       action->isSeparator() ? "Separator" : action->toolTip());
      item->setCheckState(action->isVisible() ? Qt::Checked : Qt::Unchecked);
      list_->addItem(item);
    }
    list_->setCurrentRow(current);
  }

  void Move(int distance) {
    const auto actions = bar_.actions();
    const int from = list_->currentRow();
    const int to = from + distance;
    if (from < 0 || to < 0 || to >= actions.size()) return;
    QAction* moved = actions.at(from);
    const qsizetype next = distance > 0 ? to + 1 : to;
    bar_.insertAction(actions.value(next), moved);
    Fill(to);
  }

  void Reset() {
    for (const QVariant& entry : bar_.property(kDesignOrder).toList()) {
      auto* action = entry.value<QAction*>();
      action->setVisible(true);
      bar_.addAction(action);
    }
    Fill(0);
  }

  QToolBar& bar_;
  QListWidget* list_;
};

}  // namespace

void LayOutToolBar(QToolBar& bar) {
  RememberDesign(bar);
  LayoutDialog(bar).exec();
}

}  // namespace frmMain
