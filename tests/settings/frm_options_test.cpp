#include "settings/frm_options.h"

#include "debugger/debug_grid.h"
#include "mainwindow/control_surface.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
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
  static std::vector<std::string> StoredTexts() {
    std::vector<std::string> texts;
    for (const auto& row : GlobalVariables::kSettingRows) {
      texts.push_back(GetSetting(GlobalVariables::kApplication, row.section, row.key));
    }
    return texts;
  }
};

TEST_F(OptionsDialogTest, ShowsItsPagesWithTheirControls) {
  WhenShown([](QWidget* dialog) { ExpectGolden("options", Describe(*dialog)); });
  frmMain::mnuToolsOptions_Click();
}

TEST_F(OptionsDialogTest, EveryControlStoresItsSettingAndShowsItTheNextTime) {
  std::string stored;
  const auto change = [&](const std::string& what, const std::function<QVariant()>& act,
                          const std::function<QVariant()>& shown) {
    const auto before = StoredTexts();
    QVariant chosen;
    WhenShown([&](QWidget*) {
      chosen = act();
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
    const auto& sample = dynamic_cast<frmOptions::DebugPage&>(*tabs.widget(1)).Sample();
    for (const int size : {10, 9, 8}) {
      Choose("cmbDebugFontSize", QString::number(size));
      EXPECT_EQ(size, sample.Format(1, 2).FontSize);
      EXPECT_EQ(size > 9 ? size - 2 : size, sample.Format(1, 0).FontSize);
    }
    QWidget* cells = The<QAbstractScrollArea>("DebugSample").viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, {60, 2 * 19});
    QTest::mouseMove(cells, {60, 2 * 19 + 8});
    for (const char* name : {"cmdEditorDefault", "cmdDebugDefault", "cmdSimDefaults", "cmdOK"}) {
      Press(name);
    }
  });
  frmMain::TextEditor().SetText("");
  frmMain::TextEditor().SetSelFontSize(30);
  frmMain::mnuToolsOptions_Click();
  expected = GlobalVariables::DefaultSettings();
  expected.DebugRowHeight = 285 + 8 * 15;
  EXPECT_TRUE(expected == Settings);
  EXPECT_EQ(expected.EditorFontSize, frmMain::TextEditor().SelFontSize()) << "without a text, too";
}

}  // namespace
