#include "settings/frm_options.h"

#include "debugger/debug_grid.h"
#include "mainwindow/control_surface.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "platform/qt/views/colours.h"
#include "platform/qt/views/qt_rich_text.h"
#include "settings/frm_options_debug.h"
#include "tests/dialog_test.h"
#include "tests/golden.h"

namespace {

using GlobalVariables::Settings;

class OptionsDialogTest : public DialogTest {
 protected:
  void Pick(const char* swatch, const QColor& colour, bool cancel = false) {
    WhenShown([=](QWidget* shown) {
      auto& dialog = dynamic_cast<QColorDialog&>(*shown);
      dialog.setCurrentColor(colour);
      cancel ? dialog.reject() : dialog.accept();
    });
    Press(swatch);
  }
  void ChangeAllOptions() {
    Choose("cmbEditorFonts", "Arial");
    Pick("lblEditorColor", QColor(1, 2, 3));
    Choose("cmbDebugFontSize", "12");
    Choose("cmbDebugColors", "Effect Colour");
    Pick("lblDebugColor", QColor(4, 5, 6));
    Press("chkShowLineNumber");
    Pick("lblBackColor", QColor(7, 8, 9), true);
  }
  static const GridTable& SampleRows() {
    return dynamic_cast<frmOptions::DebugPage&>(*The<QWidget>("Frame6").parentWidget()).Sample();
  }
  // What the samples of the pages show: stretches of the text, cells of the rows, and the picture
  // from its left edge on, at these heights below its axis.
  static QStringList Samples() {
    QStringList lines;
    const auto name = [](Colour colour) { return ToQColor(colour).name(); };
    const auto& text = The<QtRichText>("richSample");
    for (const auto& [start, format] : text.TextRTF().runs) {
      lines += QString("text %1: %2 on %3, %4 %5")
                   .arg(QString::number(start), name(format.color), name(text.BackColor),
                        QString::fromStdString(format.fontName), QString::number(format.fontSize)) +
               (format.bold ? " bold" : "");
    }
    const GridTable& rows = SampleRows();
    for (int row = 0; row < rows.Rows(); ++row) {
      for (int column = 0; column <= frmMain::kTextColumn; ++column) {
        const CellFormat& format = rows.Format(row, column);
        lines += QString("cell %1 %2: %3 by %4, %5 on %6, %7 %8, picture %9 %10, lines %11, ")
                     .arg(row)
                     .arg(column)
                     .arg(rows.ColWidth(column))
                     .arg(rows.RowHeight(row))
                     .arg(name(format.ForeColor), name(format.BackColor),
                          QString::fromStdString(rows.FontNameOf(format)))
                     .arg(format.FontSize)
                     .arg(static_cast<int>(format.Picture))
                     .arg(format.PictureAlignment)
                     .arg(rows.GridLines()) +
                 (format.FontBold ? "bold " : "") + rows.TextMatrix(row, column).c_str();
      }
    }
    auto& picture = The<QFrame>("picSample");
    const QRect inner = picture.contentsRect();
    const QPoint axis(inner.left(), inner.top() + inner.height() / 2);
    const QImage image = picture.grab().toImage();
    for (const int y : {0, 20, 21, 30, 31}) {
      lines += QString("picture %1:").arg(y);
      for (int x = 0; x < 123; ++x) {
        const auto colour = [&](int at) { return image.pixelColor(axis + QPoint(at, y)).name(); };
        if (x == 0 || colour(x) != colour(x - 1))
          lines.back() += QString(" %1 %2").arg(x).arg(colour(x));
      }
    }
    const QPoint tool = picture.findChild<QLabel*>("Image1")->pos() - axis;
    return lines += QString("tool at %1 %2").arg(tool.x()).arg(tool.y());
  }
  static std::vector<std::string> StoredTexts() {
    std::vector<std::string> texts;
    for (const auto& row : GlobalVariables::kSettingRows) {
      texts.push_back(GetSetting(GlobalVariables::kApplication, row.section, row.key));
    }
    return texts;
  }
};

TEST_F(OptionsDialogTest, ShowsItsPagesWithTheirControls) {
  WhenShown([](QWidget* dialog) {
    const std::string controls = Describe(*dialog);
    ExpectGolden("options", controls + Samples().join('\n').toStdString() + '\n');
  });
  frmMain::mnuToolsOptions_Click();
}

TEST_F(OptionsDialogTest, EveryControlStoresItsSettingAndShowsItTheNextTime) {
  std::string stored;
  const auto change = [&](const std::string& what, const std::function<QVariant()>& act,
                          const std::function<QVariant()>& shown) {
    const auto before = StoredTexts();
    QVariant chosen;
    QStringList former;
    QStringList samples;
    WhenShown([&](QWidget*) {
      for (int page = 0; page < 3; ++page) The<QTabWidget>("SSTab").setCurrentIndex(page);
      former = Samples();
      chosen = act();
      samples = Samples();
      Press("cmdOK");
    });
    frmMain::mnuToolsOptions_Click();
    stored += what + ':';
    for (std::size_t i = 0; const auto& row : GlobalVariables::kSettingRows) {
      const std::string text = GetSetting(GlobalVariables::kApplication, row.section, row.key);
      const std::string& old = before[i++];
      if (text == old) continue;
      stored.append(" ").append(row.section).append("/").append(row.key);
      stored.append(" ").append(old).append(" -> ").append(text);
    }
    stored += '\n';
    for (const QString& line : samples) {
      if (!former.contains(line)) stored += "  " + line.toStdString() + '\n';
    }
    WhenShown([&](QWidget*) { EXPECT_EQ(chosen, shown()) << what; });
    frmMain::mnuToolsOptions_Click();
  };
  for (const char* box :
       {"chkEditorFontBold", "chkAutoComplete", "chkAutoReformat", "chkSplashScreen",
        "chkOpenLastFile", "chkShowGrid", "chkShowLineNumber"}) {
    const auto shown = [=] { return The<QCheckBox>(box).isChecked(); };
    change(
        box,
        [=] {
          Press(box);
          return shown();
        },
        shown);
  }
  for (const char* list :
       {"cmbEditorFonts", "cmbEditorFontSize", "cmbDebugFonts", "cmbDebugFontSize"}) {
    const auto shown = [=] { return The<QComboBox>(list).currentIndex(); };
    change(
        list,
        [=] {
          The<QComboBox>(list).setCurrentIndex(3);
          return shown();
        },
        shown);
  }
  struct Choice {
    const char* list;
    int entry;
    const char* swatch;
  };
  std::vector<Choice> colours = {
      {nullptr, 0, "lblWPColor"}, {nullptr, 0, "lblBackColor"}, {nullptr, 0, "lblEffectColor"}};
  for (int i = 0; i < 4; ++i) colours.push_back({"cmbEditorColours", i, "lblEditorColor"});
  for (int i = 0; i < 7; ++i) colours.push_back({"cmbDebugColors", i, "lblDebugColor"});
  for (int red = 100; const Choice& choice : colours) {
    const auto shown = [=] {
      if (choice.list != nullptr) The<QComboBox>(choice.list).setCurrentIndex(choice.entry);
      QWidget& label = The<QWidget>(choice.swatch);
      return label.grab().toImage().pixelColor(label.rect().center());
    };
    std::string what = choice.swatch;
    if (choice.list != nullptr) what = choice.list + std::string(" ") + DecimalText(choice.entry);
    change(
        what,
        [=, this] {
          shown();
          Pick(choice.swatch, QColor(red, 1, 2));
          return shown();
        },
        shown);
    ++red;
  }
  ExpectGolden("options_stored", stored);
}

TEST_F(OptionsDialogTest, ChangeStoreAndWindowsWithOkAlone) {
  Settings.DebugFontName = "Font of a hand";
  frmMain::TextEditor().SetText("[BILLET X20 Z40");
  frmMain::FillDebugWindow();
  auto expected = Settings;
  const std::string store = Bytes("turnbay/CNC.ini");
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_TRUE(expected == Settings && store == Bytes("turnbay/CNC.ini"));
    EXPECT_EQ("", frmMain::TextEditor().TextRTF().runs.front().format.fontName);
    WhenShown([this, key](QWidget* dialog) {
      ChangeAllOptions();
      dialog->activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
      The<QWidget>("cmdEditorCancel").setFocus();
      The<QTabWidget>("SSTab").tabBar()->setFocus();
      QTest::keyClick(dialog, key);
    });
    frmMain::mnuToolsOptions_Click();
  }
  expected.EditorFontName = "Arial";
  expected.EditorBackColor = Rgb(1, 2, 3);
  expected.DebugLineNumbers = 0;
  expected.DebugFontSize = 12;
  expected.EffectColor = Rgb(4, 5, 6);
  EXPECT_TRUE(expected == Settings) << "with the hidden width and the font that is in no list";
  EXPECT_EQ("Arial", frmMain::TextEditor().TextRTF().runs.front().format.fontName);
  EXPECT_EQ(12, frmMain::DebugWindow.Format(0, 2).FontSize);
  EXPECT_EQ(0, frmMain::DebugWindow.ColWidth(0));
  WhenShown([](QWidget*) {
    auto& tabs = The<QTabWidget>("SSTab");
    tabs.setCurrentIndex(1);
    const GridTable& sample = SampleRows();
    for (const int size : {10, 9, 8}) {
      Choose("cmbDebugFontSize", QString::number(size));
      EXPECT_EQ(size, sample.Format(1, 2).FontSize);
      EXPECT_EQ(size > 9 ? size - 2 : size, sample.Format(1, 0).FontSize);
    }
    auto& grid = The<QAbstractScrollArea>("DebugSample");
    QWidget* cells = grid.viewport();
    for (const auto& [from, to, shape] :
         {std::tuple{QPoint(20, 10), QPoint(24, 10), Qt::SplitHCursor},
          {QPoint(60, 2 * 19), QPoint(60, 2 * 19 + 8), Qt::SplitVCursor}}) {
      QTest::mouseMove(cells, from);
      EXPECT_EQ(shape, cells->cursor().shape());
      QTest::mousePress(cells, Qt::LeftButton, {}, from);
      QTest::mouseMove(cells, to);
      QTest::mouseRelease(cells, Qt::LeftButton, {}, to);
    }
    EXPECT_EQ(285, sample.RowHeight(3));
    QTest::mouseDClick(cells, Qt::LeftButton, {}, {60, 25});
    EXPECT_EQ(285 + 8 * 15, sample.RowHeight(3));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Right,
                              Qt::Key_Right, Qt::Key_Left}) {
      QTest::keyClick(&grid, key, Qt::ControlModifier);
    }
    for (const char* name : {"cmdEditorDefault", "cmdDebugDefault", "cmdSimDefaults", "cmdOK"}) {
      Press(name);
    }
  });
  frmMain::TextEditor().SetText("");
  frmMain::TextEditor().SetSelFontSize(30);
  frmMain::mnuToolsOptions_Click();
  expected = GlobalVariables::DefaultSettings();
  expected.DebugRowHeight = 285 + 9 * 15;
  expected.DebugC1Width = 300 + 4 * 15;
  expected.DebugC2Width = 3500 + 2 * 15;
  EXPECT_TRUE(expected == Settings);
  EXPECT_EQ(expected.EditorFontSize, frmMain::TextEditor().SelFontSize()) << "without a text, too";
}

TEST_F(OptionsDialogTest, OnAScreenThatIsTooLowThePagesScrollAndTheButtonsStay) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(40);
  QApplication::setFont(large);
  WhenShown([](QWidget* dialog) {
    EXPECT_LT(dialog->height(), dialog->screen()->availableGeometry().height());
    EXPECT_FALSE(The<QWidget>("cmdEditorCancel").visibleRegion().isEmpty());
    EXPECT_TRUE(The<QWidget>("cmdEditorDefault").visibleRegion().isEmpty());
  });
  frmMain::mnuToolsOptions_Click();
  QApplication::setFont(usual);
}

}  // namespace
