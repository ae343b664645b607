#include "tests/windows/hands.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "tests/windows/on_screen.h"

namespace {

using Words = const QString&;

// By its name or caption, of all windows the one in front first, and labels last.
template <class T = QWidget>
T* Find(const QString& name) {
  T* found = nullptr;
  for (const QWidget* window : QApplication::topLevelWidgets() + QWidgetList{FrontWindow()}) {
    if (window == nullptr || !window->isVisible()) continue;
    for (T* child : window->findChildren<T*>()) {
      const QString text = child->property("text").toString().remove('&');
      const bool isBetter = found == nullptr || qobject_cast<QLabel*>(child) == nullptr;
      if ((child->objectName() == name || text == name) && isBetter) found = child;
    }
  }
  if (found == nullptr) ADD_FAILURE() << name.toStdString() << " isn't there";
  return found;
}

QWidget* Surface(QWidget* widget) {
  auto* area = qobject_cast<QAbstractScrollArea*>(widget);
  return area != nullptr ? area->viewport() : widget;
}

// "12 2" is the text of row 12 of the grid in front, "NAME 30 40" a place in a widget.
std::pair<QWidget*, QPoint> At(Words words) {
  const QStringList parts = words.split(' ');
  if (parts.size() > 2) return {Surface(Find(parts[0])), {parts[1].toInt(), parts[2].toInt()}};
  const int row = parts[0].toInt() - 1;
  const int column = parts[1].toInt();
  for (auto* grid : FrontWindow()->findChildren<QTableView*>()) {
    const QRect cell = grid->visualRect(grid->model()->index(row, column));
    if (column > 0 && grid->isVisible()) return {grid->viewport(), cell.center()};
    // Beside the border of a line number, too.
    const QPoint number(5, grid->rowViewportPosition(row) + 1);
    if (grid->isVisible()) return {grid->verticalHeader()->viewport(), number};
  }
  return {FrontWindow(), {}};
}

void Press(Words name) {
  auto* widget = Find(name);
  if (widget == nullptr || !widget->isEnabled()) return;
  // Of a box the tick.
  const bool isBox = qobject_cast<QCheckBox*>(widget) != nullptr;
  QTest::mouseClick(widget, Qt::LeftButton, {},
                    isBox ? QPoint(8, widget->height() / 2) : widget->rect().center());
}

void Click(Words words, Qt::MouseButton button) {
  const auto [widget, place] = At(words);
  QTest::mouseClick(widget, button, {}, place);
}

void DoubleClick(Words words) {
  const auto [widget, place] = At(words);
  QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
}

void Drag(Words words, const Tell& tell) {
  const auto [widget, from] = At(words);
  const QPoint to = At(words.section(' ', 0, 0) + ' ' + words.section(' ', 3)).second;
  QTest::mousePress(widget, Qt::LeftButton, {}, from);
  QTest::mouseMove(widget, to);
  tell(QString("pointer %1").arg(widget->cursor().shape()));
  QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

void Key(QKeyCombination key, const Tell& tell, const QString& text = {}) {
  QWidget* front = FrontWindow();
  if (front == nullptr) return tell("nobody hears it");
  QWindow* window = front->windowHandle();
  const auto modifiers = key.keyboardModifiers();
  text.isEmpty() ? QTest::keyClick(window, key.key(), modifiers)
                 : QTest::sendKeyEvent(QTest::Click, window, key.key(), text, modifiers);
}

void KeyPart(QTest::KeyAction action, Words key) {
  QTest::sendKeyEvent(action, FrontWindow()->windowHandle(), QKeySequence(key)[0].key(),
                      key.size() == 1 ? key : "", {});
}

void Type(Words text, const Tell& tell) {
  for (const char32_t each : text.toUcs4()) {
    const auto key = each < 128 ? QTest::asciiToKey(static_cast<char>(each)) : Qt::Key_unknown;
    Key(key, tell, QString::fromUcs4(&each, 1));
  }
}

void Compose(Words text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(QApplication::focusWidget(), &event);
}

void GoRound(const Tell& tell) {
  QStringList reached;
  while (!reached.contains(NameOf(*QApplication::focusWidget()))) {
    reached += NameOf(*QApplication::focusWidget());
    Key(Qt::Key_Tab, tell);
  }
  tell("Tab goes " + reached.join(' '));
}

void Choose(Words name, const Tell& tell) {
  auto* action = Find<QAction>(name);
  if (action == nullptr || !action->isEnabled()) return tell("closed");
  if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  action->trigger();
}

void AskForMenu(Words name) {
  QWidget* widget = Surface(Find(name));
  const QPoint at(3, 3);
  QContextMenuEvent press(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
  QApplication::sendEvent(widget, &press);
}

void Pick(Words words) {
  const QString item = words.section(' ', 1);
  QWidget* widget = Find(words.section(' ', 0, 0));
  if (auto* list = qobject_cast<QListWidget*>(widget)) list->setCurrentRow(item.toInt() - 1);
  auto* box = qobject_cast<QComboBox*>(widget);
  if (box == nullptr) return;
  box->setCurrentText(item);
  emit box->activated(box->currentIndex());
}

void Drop(Words file, Qt::DropActions actions, const Tell& tell) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file)});
  data.setText(file);
  QDragEnterEvent enter({50, 200}, actions, &data, Qt::LeftButton, {});
  QDragMoveEvent move({50, 200}, actions, &data, Qt::LeftButton, {});
  QDropEvent drop({50, 200}, actions, &data, Qt::LeftButton, {});
  for (QDropEvent* event : std::initializer_list<QDropEvent*>{&enter, &move, &drop}) {
    event->setDropAction(Qt::MoveAction);
    event->ignore();
    // What the pane under the pointer has no use for goes on to its window.
    if (auto* editor = qobject_cast<QTextEdit*>(QApplication::focusWidget())) {
      QApplication::sendEvent(editor->viewport(), event);
    }
    if (!event->isAccepted()) QApplication::sendEvent(FrontWindow(), event);
    const bool isCopied = event->dropAction() == Qt::CopyAction;
    tell(!event->isAccepted() ? "refused" : isCopied ? "copied" : "moved");
    if (!event->isAccepted()) return;
  }
}

void Enter(Words name, const Tell& tell) {
  auto* edit = Find<QLineEdit>("fileNameEdit");
  if (edit == nullptr) return;
  edit->window()->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(edit->window()));
  edit->setFocus();
  edit->selectAll();
  // What it offers comes up at any time.
  edit->setCompleter(nullptr);
  QTest::keyClicks(edit, name);
  tell(edit->window()->findChild<QDialogButtonBox*>()->buttons()[0]->text());
  QTest::keyClick(edit, Qt::Key_Return);
}

void TakeColour(Words name) {
  auto* dialog = qobject_cast<QColorDialog*>(FrontWindow());
  dialog->setCurrentColor(QColor(name));
  dialog->accept();
}

void Resize(Words words) {
  FrontWindow()->showNormal();
  QCoreApplication::processEvents();
  FrontWindow()->resize(words.section(' ', 0, 0).toInt(), words.section(' ', 1).toInt());
}

}  // namespace

const QMap<QString, Hand>& Hands() {
  static const QMap<QString, Hand> hands = {
      {"key",
       [](Words w, const Tell& tell) {
         for (auto& key : w.split(' ')) Key(QKeySequence(key)[0], tell);
       }},
      {"down", [](Words w, const Tell&) { KeyPart(QTest::Press, w); }},
      {"up", [](Words w, const Tell&) { KeyPart(QTest::Release, w); }},
      {"type", Type},
      {"compose", [](Words w, const Tell&) { Compose(w); }},
      {"clipboard",
       [](Words w, const Tell&) { QApplication::clipboard()->setText(QString(w).remove('\r')); }},
      {"round", [](Words, const Tell& tell) { GoRound(tell); }},
      {"focus",
       [](Words w, const Tell&) { Find(w)->window()->activateWindow(), Find(w)->setFocus(); }},
      {"press", [](Words w, const Tell&) { Press(w); }},
      {"click", [](Words w, const Tell&) { Click(w, Qt::LeftButton); }},
      {"right-click", [](Words w, const Tell&) { Click(w, Qt::RightButton); }},
      {"double-click", [](Words w, const Tell&) { DoubleClick(w); }},
      {"drag", Drag},
      {"ask", [](Words w, const Tell&) { AskForMenu(w); }},
      {"choose", Choose},
      {"pick", [](Words w, const Tell&) { Pick(w); }},
      {"scroll",
       [](Words w, const Tell&) {
         auto* grid = Find<QTableView>("DebugWindow");
         grid->verticalScrollBar()->setValue(w.section(' ', 0, 0).toInt());
         grid->horizontalScrollBar()->setValue(w.section(' ', 1).toInt());
       }},
      {"drop", [](Words w, const Tell& tell) { Drop(w, Qt::CopyAction | Qt::MoveAction, tell); }},
      {"drop-to-move", [](Words w, const Tell& tell) { Drop(w, Qt::MoveAction, tell); }},
      {"enter", Enter},
      {"colour", [](Words w, const Tell&) { TakeColour(w); }},
      {"look",
       [](Words w, const Tell& tell) {
         tell(Find(w)->visibleRegion().isEmpty() ? "unseen" : "seen");
       }},
      {"resize", [](Words w, const Tell&) { Resize(w); }},
      {"close", [](Words, const Tell&) { FrontWindow()->close(); }},
  };
  return hands;
}
