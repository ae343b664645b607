// The editor with the longest text that can be coloured. Peers: Qt's plain text editor for a key
// stroke, formatting character by character for a coloured text.

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <benchmark/benchmark.h>
#include <string>

#include "editor/colouring.h"
#include "editor/editor_events.h"
#include "mainwindow/control_surface.h"
#include "platform/grid_table.h"
#include "platform/host/desktop.h"
#include "platform/qt/views/grid_view.h"
#include "platform/qt/views/qt_rich_text.h"
#include "settings/settings.h"

namespace {

// That many characters of the text take seconds enough.
constexpr std::size_t kColouredOneByOne = 1'000;

std::string FullText() {
  constexpr std::string_view kLine = "N10 G01 X20.5 Z-4 [cut\r\n";
  std::string text;
  while (text.size() + kLine.size() <= frmMain::kMaxColouredLength) text += kLine;
  text.resize(frmMain::kMaxColouredLength, 'X');
  return text;
}

FormattedText ColouredText(const std::string& text) {
  frmMain::TextBuffer().SetText(text);
  frmMain::ColourText();
  return frmMain::TextBuffer().TextRTF();
}

void PressKey(QWidget& widget, Qt::Key key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &release);
  // With the repaint.
  Desktop::Yield();
}

template <class Editor>
void TypeAndTakeBack(benchmark::State& state, Editor& editor, Qt::Key key, const QString& text) {
  editor.resize(400, 900);
  editor.show();
  editor.setFocus();
  Desktop::Yield();
  bool isTyped = false;
  for ([[maybe_unused]] auto iteration : state) {
    PressKey(editor, isTyped ? Qt::Key_Backspace : key, isTyped ? QString() : text);
    isTyped = !isTyped;
  }
}

// The program's editor with its handlers, full, the caret near the front.
struct FullEditor {
  FullEditor() {
    editor.Keys = {frmMain::TextEditor_KeyDown, frmMain::TextEditor_KeyPress,
                   frmMain::TextEditor_KeyUp};
    frmMain::SetTextEditor(&editor);
    ColouredText(FullText());
    editor.SetSelStart(100);
  }
  ~FullEditor() { frmMain::SetTextEditor(nullptr); }

  QtRichText editor;
};

void LetterKey(benchmark::State& state) {
  FullEditor full;
  TypeAndTakeBack(state, full.editor, Qt::Key_X, "x");
}
void EnterKey(benchmark::State& state) {
  FullEditor full;
  TypeAndTakeBack(state, full.editor, Qt::Key_Return, "\r");
}
void LetterKeyInPlainEditor(benchmark::State& state) {
  QPlainTextEdit editor(QString::fromStdString(FullText()));
  TypeAndTakeBack(state, editor, Qt::Key_X, "x");
}

void MoveColouredText(benchmark::State& state) {
  QtRichText editor;
  std::string text = FullText();
  const FormattedText one = ColouredText(text);
  text[0] = 'M';
  const FormattedText other = ColouredText(text);
  editor.resize(400, 900);
  editor.show();
  bool isOne = false;
  for ([[maybe_unused]] auto iteration : state) {
    editor.SetTextRTF(isOne ? other : one);
    isOne = !isOne;
    Desktop::Yield();
  }
  // Characters, as in ColourCharacterByCharacter.
  state.SetItemsProcessed(state.iterations() * int64_t{frmMain::kMaxColouredLength});
}

void RecolourTheSameText(benchmark::State& state) {
  QtRichText editor;
  const FormattedText coloured = ColouredText(FullText());
  FormattedText bold = coloured;
  for (FormatRun& run : bold.runs) run.format.bold = true;
  editor.SetTextRTF(coloured);
  editor.show();
  bool isBold = false;
  for ([[maybe_unused]] auto iteration : state) {
    editor.SetTextRTF(isBold ? coloured : bold);
    isBold = !isBold;
    Desktop::Yield();
  }
}

void ColourCharacterByCharacter(benchmark::State& state) {
  const FormattedText coloured = ColouredText(FullText());
  QtRichText editor;
  editor.show();
  for ([[maybe_unused]] auto iteration : state) {
    editor.SetText(coloured.text);
    for (std::size_t i = 0; i < kColouredOneByOne; ++i) {
      editor.SetSelStart(i);
      editor.SetSelLength(1);
      editor.SetSelColor(static_cast<Colour>(i % 2));
    }
  }
  state.SetItemsProcessed(state.iterations() * int64_t{kColouredOneByOne});
}

void ShowLongestGrid(benchmark::State& state) {
  GridTable table;
  GridView view(table, {});
  view.resize(300, 900);
  view.show();
  for ([[maybe_unused]] auto iteration : state) {
    table.SetRows(1);
    Desktop::Yield();
    table.SetRows(32'767);
    Desktop::Yield();
  }
}

BENCHMARK(LetterKey)->Unit(benchmark::kMillisecond);
BENCHMARK(EnterKey)->Unit(benchmark::kMillisecond);
BENCHMARK(LetterKeyInPlainEditor)->Unit(benchmark::kMillisecond);
BENCHMARK(MoveColouredText)->Unit(benchmark::kMillisecond);
BENCHMARK(RecolourTheSameText)->Unit(benchmark::kMillisecond);
BENCHMARK(ColourCharacterByCharacter)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(ShowLongestGrid)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  GlobalVariables::Settings.EditorCharacterColor = Rgb(0, 0, 200);
  GlobalVariables::Settings.EditorIntegerColor = Rgb(200, 0, 0);
  GlobalVariables::Settings.EditorCommentColor = Rgb(0, 120, 0);
  GlobalVariables::Settings.EditorFontName = "Courier New";
  GlobalVariables::Settings.EditorFontSize = 10;
  benchmark::RunSpecifiedBenchmarks();
}
