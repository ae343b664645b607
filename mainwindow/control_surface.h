#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/controls.h"
#include "platform/grid_table.h"
#include "platform/host/dialogs.h"
#include "platform/rich_text.h"

// The main window's controls. They are the only store of much of the program's state: a run's
// state is the Enabled of the buttons "Pause" and "Stop", a document's modified mark the Enabled
// of "Save", and the rows of DebugWindow are the program that a run plays.
namespace frmMain {

// Inner size of the window in pixels, written by the window before it calls Form_Resize.
extern int ScaleWidth;
extern int ScaleHeight;

inline constexpr int kNormal = 0;
inline constexpr int kMinimized = 1;
inline constexpr int kMaximized = 2;
// State of the window, one of the above.
extern Property<int> WindowState;

extern MenuEntry mnuFile;
extern MenuEntry mnuFileSave;
extern MenuEntry mnuFilePrint;
// Caption of the first entry while there is no recent file.
inline constexpr std::string_view kNoRecentFiles = "Recent Files";
// Entry k stands for key k of the recent list.
extern std::array<RecentFileEntry, 4> mnuFileRecentFiles;
extern MenuEntry mnuView;
extern MenuEntry mnuViewStatusBar;
extern MenuEntry mnuViewToolBar;
extern MenuEntry mnuViewTextEditor;
extern MenuEntry mnuViewDebugWindow;
extern MenuEntry mnuRunStart;
extern MenuEntry mnuRunPause;
extern MenuEntry mnuRunStop;
// Its check mark is the master of the Value of the button "Step".
extern MenuEntry mnuRunStepInto;
extern MenuEntry mnuTools;
// Sound wanted. Starts checked, never stored.
extern MenuEntry mnuToolsPlaySound;
extern MenuEntry mnuHelp;
extern MenuEntry mnuToolBarShowLabels;

// A command: a button, and the menu entry that follows its Enabled; null where the entry stays as
// it is. Picture, label and tool tip of the button go by the key.
struct CommandRow {
  std::string_view Key;
  MenuEntry* Entry;
};
inline constexpr CommandRow kCommands[] = {
    {"New", nullptr},         {"Open", nullptr},         {"Save", &mnuFileSave},
    {"Print", &mnuFilePrint}, {"Step", &mnuRunStepInto}, {"Start", &mnuRunStart},
    {"Pause", &mnuRunPause},  {"Stop", &mnuRunStop},     {"Options", nullptr},
};
using CommandKey = KeyOf<kCommands>;

// A command changes only through EnableCommands. The height in Bounds is the control's own: a
// window that shows labels of another height writes it as soon as the captions change.
class ToolBar : public Control, public KeyedItems<ToolButton, kCommands> {
 public:
  ToolBar();
  ToolButton& Buttons(CommandKey key) { return (*this)[key]; }
};
extern ToolBar Toolbar;

struct PanelRow {
  std::string_view Key;
  // Pixels.
  double Width;
  const char* Tip;
};
inline constexpr PanelRow kPanels[] = {
    {"FileName", 96, "Current File Name"},
    {"FeedRate", 96, "FeedRate"},
    {"Dim", 30, "Measurment Unit"},
    {"SpindleSpeed", 70, "Spindle Speed"},
    {"SpindleDirection", 40, "Spindle Direction"},
    {"Coolant", 106, "Coolant"},
    {"ProgressBar", 96, "Program Progress"},
    {"Slider", 96, "Simulation Speed"},
    {"ToolPosition", 150, "Tool Position"},
};
using PanelKey = KeyOf<kPanels>;

// Its height in Bounds is the control's own, as that of the tool bar.
class StatusBarControl : public Control, public KeyedItems<StatusPanel, kPanels> {
 public:
  StatusBarControl();
  StatusPanel& Panels(PanelKey key) { return (*this)[key]; }
};
extern StatusBarControl StatusBar;

// The rows of the program: Max is their count, Value the rows begun.
extern ProgressGauge ProgressBar;
// The speed of a run; set by the user, read by PlayPath.
extern SliderControl Slider;
extern PictureBox picSim;
extern CommonDialog com;
// What a dialog leaves for the command that opened it: "OK", or empty.
extern std::string Tag;
// Name of the control with the focus. Written by the window as the user moves the focus, and by
// the logic to move it.
extern Property<std::string_view> ActiveControl;

using ::kBreakColumn;
using ::kLineNumberColumn;
using ::kMarkColumn;
using ::kTextColumn;
// What the break column of a row with a break point holds; else it is empty.
inline constexpr std::string_view kBreakPoint = "BP";

// The program store of a run, at most 32,767 rows.
extern GridTable DebugWindow;

// Lies over the row that is edited in place.
extern TextBox txtDebug;

// Holds the program text.
RichText& TextEditor();
// Calls `handler` at every change of the editor's text, whichever body it has. One at a time.
void WatchTextEditor(void (*handler)());
// Its place; the grid shares it.
extern Property<ControlBounds> TextEditorBounds;

// Scratch control of ColourText, never shown.
RichText& TextBuffer();

// Makes `body` the text editor, or the one in memory when it is null. What the former body held
// goes along, unheard by the one who watches its text. A body must be taken out before it is
// destroyed.
void SetTextEditor(RichText* body);

// Commands by their keys, divided by commas, without blanks. A list with another word in it doesn't
// compile.
class CommandList {
 public:
  consteval CommandList(const char* names) : names_(names) {
    for (std::string_view rest = names_;;) {
      const std::size_t comma = rest.find(',');
      if (RowOf(kCommands, rest.substr(0, comma)) == std::size(kCommands)) throw "no command";
      if (comma == std::string_view::npos) return;
      rest.remove_prefix(comma + 1);
    }
  }
  constexpr std::string_view Names() const { return names_; }

 private:
  std::string_view names_;
};

// Closed without a program.
inline constexpr CommandList kProgramCommands = "Save,Print,Step,Start,Pause,Stop";
// Open with a program that has just been loaded, and with one that has changes to save.
inline constexpr CommandList kLoadedProgramCommands = "Start,Print,Step";
inline constexpr CommandList kChangedProgramCommands = "Save,Print,Start,Step";
// Closed by a run, open after it whatever it was before, and open in it alone.
inline constexpr CommandList kCommandsClosedByRun = "New,Open,Save,Print,Start,Step,Options";
inline constexpr CommandList kCommandsOpenAfterRun = "New,Open,Print,Start,Step,Options";
inline constexpr CommandList kRunCommands = "Pause,Stop";

// Opens or closes commands: each button first, then the menu entry that follows it.
void EnableCommands(CommandList commands, bool enable);

// Which commands are open, in the order of kCommands; and back to that.
using CommandStates = std::array<bool, std::size(kCommands)>;
CommandStates OpenCommands();
void RestoreCommands(const CommandStates& states);

// Flag: the state of the "Save" command at Start, given back at Stop. An edit of a row during the
// run sets it.
extern std::int16_t SaveWasEnabled;

// Flag: the rows of the grid may be behind the editor's text. Set by every change of the text,
// cleared by whoever has brought the two together.
extern std::int16_t TextChanged;

// Flag: the window has closed, and the process ends as soon as the handlers that run, and a run
// with them, have returned. Written by Form_Unload.
extern std::int16_t WindowClosed;

// True when the buttons say so: "Pause" closed and "Stop" open. There is no other sign of it.
bool IsRunPaused();

// Nobody watches the editor's text afterwards.
void ResetControlSurface();

}  // namespace frmMain

namespace GlobalVariables {

// Inner size of picSim in pixels, 0 or more. Written by ResizeControls.
extern std::int16_t SimWidth;
extern std::int16_t SimHeight;

}  // namespace GlobalVariables
