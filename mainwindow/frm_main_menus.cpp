#include "mainwindow/frm_main_menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "debugger/run_commands.h"
#include "editor/documents.h"
#include "editor/reformat.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_help.h"
#include "mainwindow/frm_main_tool_bar.h"
#include "mainwindow/frm_splash.h"
#include "mainwindow/print_listing.h"
#include "mainwindow/view_toggles.h"
#include "settings/frm_options.h"
#include "toollib/frm_tool_select.h"
#include "view3d/frm_3d.h"

namespace frmMain {

namespace {

constexpr bool kCheckable = true;

// The caption of a line between entries.
constexpr const char* kSeparator = "-";

struct EntryRow {
  const char* name;
  const char* caption = kSeparator;
  const char* shortcut = "";
  Command click = nullptr;
  // Of an entry that isn't that of a command.
  MenuEntry* entry = nullptr;
  bool checkable = false;
  // The key of the command whose entry it is.
  const char* command = nullptr;
};

struct MenuRow {
  const char* name;
  const char* caption;
  // Null for a menu that is never closed.
  MenuEntry* entry;
  std::span<const EntryRow> entries;
};

// Stands for the entries of the recent files.
constexpr const char* kRecentFiles = "mnuFileRecentFiles";

constexpr EntryRow kFileEntries[] = {
    {.name = "mnuFileNew",
     .caption = "&New",
     .shortcut = "Ctrl+N",
     .click = mnuFileNew_Click,
     .command = "New"},
    {.name = "mnuFileOpen",
     .caption = "&Open...",
     .shortcut = "Ctrl+O",
     .click = mnuFileOpen_Click,
     .command = "Open"},
    {.name = "mnuFileSave",
     .caption = "&Save",
     .shortcut = "Ctrl+S",
     .click = mnuFileSave_Click,
     .command = "Save"},
    {.name = "mnuFileSaveAS", .caption = "Save &As...", .click = mnuFileSaveAS_Click},
    {.name = "mnuFileLine1"},
    {.name = "mnuFilePrint",
     .caption = "&Print...",
     .shortcut = "Ctrl+P",
     .click = mnuFilePrint_Click,
     .command = "Print"},
    {.name = "mnuFileLine2"},
    {.name = kRecentFiles},
    {.name = "mnuFileLine3"},
    {.name = "mnuFileExit", .caption = "E&xit", .click = mnuFileExit_Click},
};

constexpr EntryRow kViewEntries[] = {
    {.name = "mnuViewStatusBar",
     .caption = "&Status Bar",
     .click = Command::BesideEdit(mnuViewStatusBar_Click),
     .entry = &mnuViewStatusBar,
     .checkable = kCheckable},
    {.name = "mnuViewToolBar",
     .caption = "&Tool Bar",
     .click = Command::BesideEdit(mnuViewToolBar_Click),
     .entry = &mnuViewToolBar,
     .checkable = kCheckable},
    {.name = "mnuViewTextEditor",
     .caption = "&Text Editor",
     .shortcut = "Ctrl+T",
     .click = mnuViewTextEditor_Click,
     .entry = &mnuViewTextEditor,
     .checkable = kCheckable},
    {.name = "mnuViewDebugWindow",
     .caption = "&Debug Window",
     .shortcut = "Ctrl+D",
     .click = mnuViewDebugWindow_Click,
     .entry = &mnuViewDebugWindow,
     .checkable = kCheckable},
    {.name = "mnuViewLine1"},
    {.name = "mnuView3DWindow",
     .caption = "&3D Window",
     .shortcut = "F12",
     .click = Command::BesideEdit(mnuView3DWindow_Click)},
};

constexpr EntryRow kRunEntries[] = {
    {.name = "mnuRunStart",
     .caption = "&Start",
     .shortcut = "F5",
     .click = mnuRunStart_Click,
     .command = "Start"},
    {.name = "mnuRunPause",
     .caption = "&Pause",
     .shortcut = "F6",
     .click = Command::BesideEdit(mnuRunPause_Click),
     .command = "Pause"},
    {.name = "mnuRunStop",
     .caption = "S&top",
     .shortcut = "F7",
     .click = Command::BesideEdit(mnuRunStop_Click),
     .command = "Stop"},
    {.name = "mnuRunLine1"},
    {.name = "mnuRunStepInto",
     .caption = "St&ep",
     .shortcut = "F8",
     .click = Command::BesideEdit(mnuRunStepInto_Click),
     .checkable = kCheckable,
     .command = "Step"},
    {.name = "mnuRunRunToBreakpoint",
     .caption = "&Run To Breakpoint",
     .shortcut = "Ctrl+F5",
     .click = mnuRunRunToBreakpoint_Click},
};

constexpr EntryRow kToolsEntries[] = {
    {.name = "mnuToolLibrary",
     .caption = "&Tool Library...",
     .click = Command::BesideEdit(mnuToolLibrary_Click)},
    {.name = "mnuToolsPlaySound",
     .caption = "&Play Sound",
     .click = Command::BesideEdit(mnuToolsPlaySound_Click),
     .entry = &mnuToolsPlaySound,
     .checkable = kCheckable},
    {.name = "mnuToolsReformatText",
     .caption = "&Reformat Text",
     .click = mnuToolsReformatText_Click},
    {.name = "mnuToolsLine1"},
    {.name = "mnuToolsOptions",
     .caption = "Options...",
     .click = mnuToolsOptions_Click,
     .command = "Options"},
};

constexpr EntryRow kHelpEntries[] = {
    {.name = "mnuHelpContents",
     .caption = "&Contents...",
     .shortcut = kHelpKey,
     .click = Command::BesideEdit(mnuHelpContents_Click)},
    {.name = "mnuHelpLine1"},
    {.name = "mnuHelpAbout",
     .caption = "&About Turnbay...",
     .click = Command::BesideEdit(mnuHelpAbout_Click)},
};

constexpr MenuRow kMenus[] = {
    {"mnuFile", "&File", &mnuFile, kFileEntries}, {"mnuView", "&View", &mnuView, kViewEntries},
    {"mnuRun", "&Run", nullptr, kRunEntries},     {"mnuTools", "&Tools", &mnuTools, kToolsEntries},
    {"mnuHelp", "&Help", &mnuHelp, kHelpEntries},
};

constexpr EntryRow kShowLabels = {.name = "mnuToolBarShowLabels",
                                  .caption = "&Show Labels",
                                  .click = Command::BesideEdit(mnuToolBarShowLabels_Click),
                                  .entry = &mnuToolBarShowLabels,
                                  .checkable = kCheckable};

MenuEntry* EntryOf(const EntryRow& row) {
  return row.command != nullptr ? kCommands[RowOf(kCommands, row.command)].Entry : row.entry;
}

constexpr const EntryRow* FindCommand(std::string_view key) {
  for (const MenuRow& menu : kMenus) {
    for (const EntryRow& row : menu.entries) {
      if (row.command != nullptr && row.command == key) return &row;
    }
  }
  return nullptr;
}
static_assert(std::ranges::all_of(kCommands, [](const CommandRow& command) {
  return FindCommand(command.Key) != nullptr;
}));

void AddEntry(QMenu& menu, const EntryRow& row, Bindings& bindings) {
  QAction* action = menu.addAction(row.caption);
  action->setObjectName(row.name);
  action->setShortcut(QKeySequence(row.shortcut));
  action->setCheckable(row.checkable);
  // A mark stands where the picture would.
  if (row.command != nullptr && !row.checkable) action->setIcon(CommandIcon(row.command));
  QObject::connect(action, &QAction::triggered, action, [click = row.click] { click.Choose(); });
  MenuEntry* entry = EntryOf(row);
  if (entry != nullptr) {
    bindings.Bind(entry->Enabled, [action](bool enabled) { action->setEnabled(enabled); });
  }
  if (row.checkable) {
    bindings.Bind(entry->Checked, [action](bool checked) { action->setChecked(checked); });
  }
}

// The number is the access key; an ampersand in the file's name is one to be seen.
QString ShownCaption(const std::string& caption) {
  QString shown = QString::fromStdString(caption);
  if (!shown.startsWith('&')) return shown;
  return '&' + shown.mid(1).replace('&', "&&");
}

void AddRecentFiles(QMenu& menu, Bindings& bindings) {
  for (std::size_t i = 0; i < mnuFileRecentFiles.size(); ++i) {
    RecentFileEntry& entry = mnuFileRecentFiles.at(i);
    QAction* action = menu.addAction(QString());
    action->setObjectName(QString("%1(%2)").arg(kRecentFiles).arg(i));
    QObject::connect(action, &QAction::triggered, action,
                     [i] { mnuFileRecentFiles_Click(static_cast<std::int16_t>(i)); });
    bindings.Bind(entry.Loaded, [action](bool loaded) { action->setVisible(loaded); });
    bindings.Bind(entry.Caption,
                  [action](const std::string& caption) { action->setText(ShownCaption(caption)); });
    bindings.Bind(entry.Enabled, [action](bool enabled) { action->setEnabled(enabled); });
  }
}

void AddEntries(QMenu& menu, std::span<const EntryRow> rows, Bindings& bindings) {
  for (const EntryRow& row : rows) {
    if (row.name == kRecentFiles) {
      AddRecentFiles(menu, bindings);
    } else if (row.caption == kSeparator) {
      menu.addSeparator()->setObjectName(row.name);
    } else {
      AddEntry(menu, row, bindings);
    }
  }
}

}  // namespace

Command MenuCommand(std::string_view key) {
  return FindCommand(key)->click;
}

void MakeMenus(QMainWindow& window, Bindings& bindings) {
  for (const MenuRow& row : kMenus) {
    QMenu* menu = window.menuBar()->addMenu(row.caption);
    menu->setObjectName(row.name);
    AddEntries(*menu, row.entries, bindings);
    if (row.entry == nullptr) continue;
    bindings.Bind(row.entry->Enabled,
                  [menu](bool enabled) { menu->menuAction()->setEnabled(enabled); });
  }
}

QMenu* MakeToolBarMenu(QWidget& owner, Bindings& bindings, std::function<void()> customize) {
  auto* menu = new QMenu("ToolBar", &owner);
  menu->setObjectName("mnuToolBar");
  AddEntry(*menu, kShowLabels, bindings);
  menu->addSeparator()->setObjectName("mnuToolBarLine1");
  QAction* action = menu->addAction("&Customize...");
  action->setObjectName("mnuToolBarCustomize");
  QObject::connect(action, &QAction::triggered, menu, std::move(customize));
  return menu;
}

}  // namespace frmMain
