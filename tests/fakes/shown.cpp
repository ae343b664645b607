#include "tests/fakes/shown.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <span>
#include <sstream>
#include <variant>

#include "debugger/row_edit.h"
#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/numbers.h"
#include "settings/settings.h"
#include "tests/fakes/fakes.h"
#include "toollib/tool_files.h"

using namespace frmMain;

namespace {

const GlobalVariables::SettingsRecord& settings = GlobalVariables::Settings;

std::string Joined(auto... parts) {
  std::ostringstream text;
  text.precision(4);
  ((text << parts), ...);
  return text.str();
}

// Of what is too long to read only the beginning.
std::string Shortened(const std::string& text) {
  return text.size() > 400 ? Joined(text.substr(0, 40), "... of ", text.size()) : text;
}

// With the menu entry that shows and hides it, if there is one: its mark must tell the same.
std::string Place(const ControlBounds& at, bool visible, const MenuEntry* entry = nullptr) {
  EXPECT_EQ(entry != nullptr ? entry->Checked.Get() : visible, visible);
  return Joined(at.Left, ' ', at.Top, ' ', at.Width, ' ', at.Height, visible ? "" : ", hidden");
}

// By what the settings call it.
std::string ColourName(Colour colour) {
  if (colour == settings.EditorCharacterColor) return "c";
  if (colour == settings.EditorCommentColor) return "m";
  if (colour == settings.EditorIntegerColor) return "i";
  return Joined('(', colour, ')');
}

std::string TextFormats() {
  const FormattedText formatted = TextEditor().TextRTF();
  std::string colours;
  std::string fonts;
  std::string font;
  for (auto run = formatted.runs.begin(); run != formatted.runs.end(); ++run) {
    const auto next = run + 1;
    const std::size_t end = next == formatted.runs.end() ? formatted.text.size() : next->start;
    const std::string colour = ColourName(run->format.color);
    for (std::size_t i = run->start; i < std::min(end, run->start + 40); ++i) colours += colour;
    const std::string former =
        std::exchange(font, Joined(", ", run->format.fontName, ' ', run->format.fontSize,
                                   run->format.bold ? " bold" : ""));
    if (font != former) fonts += font;
  }
  return Shortened(colours) + fonts;
}

std::string Grid() {
  std::set<std::string> looks;
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    const CellFormat& text = DebugWindow.Format(row, kTextColumn);
    looks.insert(Joined(DebugWindow.FontNameOf(text), ' ', text.FontSize, " in ",
                        DebugWindow.RowHeight(row), ", marks on ",
                        DebugWindow.Format(row, kMarkColumn).BackColor));
  }
  std::string grid =
      Joined(DebugWindow.FontName(), ", lines ", DebugWindow.GridLines(), ", columns");
  for (int column = 0; column < GridTable::kColumns; ++column) {
    grid += Joined(' ', DebugWindow.ColWidth(column));
  }
  for (const std::string& look : looks) grid += "; " + look;
  return grid;
}

std::string Registers() {
  std::string registers;
  for (const auto& [name, value, isReported] : ModCNC::kRegisters) {
    // The row under execution is shown by its mark.
    if (value == &GlobalVariables::CurrentRow) continue;
    if (*value != 0) registers += Joined(name, ' ', *value, ' ');
  }
  return registers;
}

// Radii, "t" where the taper mark is, and equal neighbours as one: "80t x 20, 100".
std::string Profile() {
  const auto& columns = Graphics::StockProfile;
  std::string radii;
  for (auto column = columns.begin(); column != columns.end();) {
    const auto next =
        std::find_if(column, columns.end(), [&](const auto& c) { return c != *column; });
    radii += Joined(radii.empty() ? "" : ", ", column->Radius, column->TaperMark == 1 ? "t" : "");
    if (next - column > 1) radii += Joined(" x ", next - column);
    column = next;
  }
  return radii;
}

// How many pixels have which colour, and a check sum.
std::string Picture() {
  const Raster& surface = Graphics::StockDC.Read();
  int part = 0;
  int shoulders = 0;
  int other = 0;
  std::uint32_t sum = 0;
  for (int y = 0; y < surface.Height(); ++y) {
    for (const Colour colour :
         std::span(surface.Row(y), static_cast<std::size_t>(surface.Width()))) {
      sum = sum % 30'000'000 * 31 + colour % 1'000'003;
      const bool isBack = colour == settings.SimBackColor;
      (colour == settings.WorkPieceColor ? part
       : colour == settings.EffectColor  ? shoulders
                                         : other) += isBack ? 0 : 1;
    }
  }
  return Joined(surface.Width(), " x ", surface.Height(), ": part ", part, ", shoulders ",
                shoulders, ", other ", other, "; ", sum);
}

std::string Recovered(const std::string& bytes) {
  const auto document = DecodeRecovery(bytes);
  if (!document) return bytes.empty() ? "none" : "damaged";
  return Joined('"', document->path, '"', document->isUtf8 ? " (UTF-8): " : ": ",
                Quoted(document->text));
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(text.front());
    const bool isLineEnd = text.starts_with("\r\n");
    if (isLineEnd) {
      quoted += " / ";
    } else if (byte < ' ' || byte > '~') {
      quoted += Joined("\\x", kDigits[byte / 16], kDigits[byte % 16]);
    } else {
      quoted += text.front();
    }
    text.remove_prefix(isLineEnd ? 2 : 1);
  }
  return Shortened(quoted + '"');
}

// Commands that are open, then "Menus" where those that a run closes are. A menu entry must agree
// with its button, and the menus with each other.
static std::string OpenCommandNames() {
  std::string open;
  for (const ToolButton& button : Toolbar) {
    const MenuEntry* entry = kCommands[RowOf(kCommands, button.Key)].Entry;
    EXPECT_TRUE(entry == nullptr || entry->Enabled == button.Enabled) << button.Key;
    if (button.Enabled) open += std::string(button.Key) + ' ';
  }
  for (const MenuEntry* menu : {&mnuView, &mnuTools, &mnuHelp}) {
    EXPECT_EQ(mnuFile.Enabled, menu->Enabled);
  }
  return mnuFile.Enabled ? open + "Menus" : open;
}

// "3 [*]> G01 X20" is row 2 with a break point and the run on it. Break flag, picture, colours and
// weight must belong to one and the same state.
static std::string ShownRow(int row) {
  const CellFormat& text = DebugWindow.Format(row, kTextColumn);
  const CellFormat& mark = DebugWindow.Format(row, kMarkColumn);
  const GridPicture picture = mark.Picture;
  EXPECT_TRUE(picture == GridPicture::None || mark.PictureAlignment == 4) << "in the middle";
  const bool runs = picture == GridPicture::Step || picture == GridPicture::Both;
  const bool breaks = picture == GridPicture::Break || picture == GridPicture::Both;
  EXPECT_EQ(breaks ? "BP" : "", DebugWindow.TextMatrix(row, kBreakColumn)) << "row " << row;
  EXPECT_EQ(breaks, text.FontBold) << "row " << row;
  const auto colours =
      breaks ? std::pair{settings.BreakPointColor, settings.BreakPointTextColor}
      : runs ? std::pair{settings.ExecutionPointColor, settings.ExecutionPointTextColor}
             : std::pair{settings.NormalBackColor, settings.NormalTextColor};
  EXPECT_EQ(colours, std::pair(text.BackColor, text.ForeColor)) << "row " << row;
  return DebugWindow.TextMatrix(row, kLineNumberColumn) + (breaks ? " [*]" : " [ ]") +
         (runs ? "> " : "  ") + DebugWindow.TextMatrix(row, kTextColumn);
}

// The row that carries the execution mark, -1 for none.
static int ExecutingRow() {
  int found = -1;
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    if (ShownRow(row).find("]>") == std::string::npos) continue;
    EXPECT_EQ(-1, found) << "two rows are marked";
    found = row;
  }
  return found;
}

Shown LookAround() {
  Shown shown;
  const auto add = [&](const std::string& name, const std::string& text) {
    shown.emplace_back(name, text);
  };
  add("commands", OpenCommandNames());
  for (const StatusPanel& panel : StatusBar) add(std::string(panel.Key), panel.Text);

  const RichText& editor = TextEditor();
  add("text", Quoted(editor.Text()));
  add("format", TextFormats());
  add("selection", Joined(editor.SelStart(), " + ", editor.SelLength(), ' ',
                          Quoted(editor.SelText()), ' ', ColourName(editor.SelColor())));
  add("editor", Place(TextEditorBounds, editor.Visible, &mnuViewTextEditor));
  add("typing", editor.Locked ? "locked" : "open");
  add("paper", Joined(editor.BackColor.Get(), ", ", editor.Font.Name.Get()));

  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    const std::string line = ShownRow(row);
    const std::size_t mark = line.find(" [");
    const std::string number = line.substr(0, mark);
    add("row " + number, line.substr(mark + 1, 3) + Quoted(line.substr(mark + 6)));
  }
  add("rows", Joined(DebugWindow.Rows(), ", first in view ", DebugWindow.TopRow.Get() + 1));
  add("tip", Quoted(DebugWindow.ToolTipText.Get()));
  add("grid", Place(DebugWindow.Bounds, DebugWindow.Visible, &mnuViewDebugWindow));
  add("grid format", Grid());
  add("row edit", !txtDebug.Visible
                      ? std::string("closed")
                      : Joined("of row ", EditRow + 1, ' ', Quoted(txtDebug.Text.Get()), " at ",
                               Place(txtDebug.Bounds, true), ", ", txtDebug.FontName.Get(), ' ',
                               txtDebug.FontSize.Get(), ", caret ", txtDebug.SelStart.Get()));

  add("tool bar", Place(Toolbar.Bounds, Toolbar.Visible, &mnuViewToolBar) +
                      (Toolbar.Buttons("New").Caption.Get().empty() ? ", without labels" : ""));
  EXPECT_NE(mnuToolBarShowLabels.Checked, Toolbar.Buttons("New").Caption.Get().empty());
  add("status bar", Place(StatusBar.Bounds, StatusBar.Visible, &mnuViewStatusBar));
  add("picture area", Place(picSim.Bounds, picSim.Visible) + Joined(", ", picSim.BackColor.Get()));
  add("progress bar", Place(ProgressBar.Bounds, ProgressBar.Visible));
  add("slider", Place(Slider.Bounds, Slider.Visible));
  EXPECT_EQ(mnuRunStepInto.Checked ? 1 : 0, Toolbar.Buttons("Step").Value);
  add("step", mnuRunStepInto.Checked ? "on" : "off");
  add("window", Joined(WindowState.Get()));
  add("focus", std::string(ActiveControl.Get()));

  add("run", Joined("row ", ExecutingRow() + 1, ", ", ProgressBar.Value.Get(), " of ",
                    ProgressBar.Max.Get()));
  constexpr const char* kOutcomes[] = {"none", "syntax fault", "no billet", "played"};
  add("last run", kOutcomes[static_cast<std::size_t>(GlobalVariables::LastRun)]);
  add("registers", Registers());
  add("profile", Profile());
  add("picture", Picture());
  add("tool", Joined(Graphics::ToolWidth, " x ", Graphics::ToolHeight, ", picture ",
                     Graphics::ToolDC.sprite.Width()));

  std::string recent;
  for (const RecentFileEntry& entry : mnuFileRecentFiles) {
    if (entry.Loaded) recent += entry.Caption.Get() + (entry.Enabled ? " |" : " (closed) |");
  }
  add("recent files", recent);
  for (const auto& [path, bytes] : Fakes::world.files) add("file " + path, Quoted(bytes));
  std::string paths;
  for (const auto& [key, value] : Fakes::world.settings) {
    if (key.starts_with("RecentFilePaths/")) paths += Joined(value, ' ');
  }
  add("recent paths", paths);
  add("recovery file", Recovered(Fakes::world.recoveryFile));
  std::string left;
  for (const std::string& bytes : Fakes::world.endedRecoveryFiles) left += Recovered(bytes) + "; ";
  add("left behind", left);
  for (const auto& row : GlobalVariables::kSettingRows) {
    add(Joined("setting ", row.section, '/', row.key),
        std::visit([](auto member) { return Joined(settings.*member); }, row.field));
  }
  std::string tools;
  for (std::size_t n = 0; n < GlobalVariables::ToolFiles.size(); ++n) {
    const std::string& name = GlobalVariables::ToolFiles.at(n);
    if (!name.empty()) tools += Joined(n, '=', Quoted(name), ' ');
  }
  add("tool files", tools);
  std::string offered;
  for (const std::string& item : frmToolSelect::cmbTools.List.Get()) offered += item + ", ";
  for (const int number : frmToolSelect::cmbTools.ItemData) offered += Joined(number, ' ');
  add("tools offered", offered);
  return shown;
}
