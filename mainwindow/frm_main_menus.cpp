#include "mainwindow/frm_main_menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <span>
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

// An entry without a name is a line.
struct EntryRow {
  const char* name = nullptr;
  const char* caption = "";
  const char* shortcut = "";
  void (*click)() = nullptr;
  MenuEntry* entry = nullptr;
  bool checkable = false;
  const char* icon = nullptr;
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
     .icon = "New"},
    {.name = "mnuFileOpen",
     .caption = "&Open...",
     .shortcut = "Ctrl+O",
     .click = mnuFileOpen_Click,
     .icon = "Open"},
    {.name = "mnuFileSave",
     .caption = "&Save",
     .shortcut = "Ctrl+S",
     .click = mnuFileSave_Click,
     .entry = &mnuFileSave,
     .icon = "Save"},
    {.name = "mnuFileSaveAS", .caption = "Save &As...", .click = mnuFileSaveAS_Click},
    {},
    {.name = "mnuFilePrint",
     .caption = "&Print...",
     .shortcut = "Ctrl+P",
     .click = mnuFilePrint_Click,
     .entry = &mnuFilePrint,
     .icon = "Print"},
    {},
    {.name = kRecentFiles},
    {},
    {.name = "mnuFileExit", .caption = "E&xit", .click = mnuFileExit_Click},
};

constexpr EntryRow kViewEntries[] = {
    {.name = "mnuViewStatusBar",
     .caption = "&Status Bar",
     .click = mnuViewStatusBar_Click,
     .entry = &mnuViewStatusBar,
     .checkable = kCheckable},
    {.name = "mnuViewToolBar",
     .caption = "&Tool Bar",
     .click = mnuViewToolBar_Click,
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
    {},
    {.name = "mnuView3DWindow",
     .caption = "&3D Window",
     .shortcut = "F12",
     .click = mnuView3DWindow_Click},
};

constexpr EntryRow kRunEntries[] = {
    {.name = "mnuRunStart",
     .caption = "&Start",
     .shortcut = "F5",
     .click = mnuRunStart_Click,
     .entry = &mnuRunStart,
     .icon = "Start"},
    {.name = "mnuRunPause",
     .caption = "&Pause",
     .shortcut = "F6",
     .click = mnuRunPause_Click,
     .entry = &mnuRunPause,
     .icon = "Pause"},
    {.name = "mnuRunStop",
     .caption = "S&top",
     .shortcut = "F7",
     .click = mnuRunStop_Click,
     .entry = &mnuRunStop,
     .icon = "Stop"},
    {},
    {.name = "mnuRunStepInto",
     .caption = "St&ep",
     .shortcut = "F8",
     .click = mnuRunStepInto_Click,
     .entry = &mnuRunStepInto,
     .checkable = kCheckable},
    {.name = "mnuRunRunToBreakpoint",
     .caption = "&Run To Breakpoint",
     .shortcut = "Ctrl+F5",
     .click = mnuRunRunToBreakpoint_Click},
};

constexpr EntryRow kToolsEntries[] = {
    {.name = "mnuToolLibrary", .caption = "&Tool Library...", .click = mnuToolLibrary_Click},
    {.name = "mnuToolsPlaySound",
     .caption = "&Play Sound",
     .click = mnuToolsPlaySound_Click,
     .entry = &mnuToolsPlaySound,
     .checkable = kCheckable},
    {.name = "mnuToolsReformatText",
     .caption = "&Reformat Text",
     .click = mnuToolsReformatText_Click},
    {},
    {.name = "mnuToolsOptions",
     .caption = "Options...",
     .click = mnuToolsOptions_Click,
     .icon = "Options"},
};

constexpr EntryRow kHelpEntries[] = {
    {.name = "mnuHelpContents",
     .caption = "&Contents...",
     .shortcut = "Ctrl+F1",
     .click = mnuHelpContents_Click},
    {},
    {.name = "mnuHelpAbout", .caption = "&About Turnbay...", .click = mnuHelpAbout_Click},
};

constexpr MenuRow kMenus[] = {
    {"mnuFile", "&File", &mnuFile, kFileEntries}, {"mnuView", "&View", &mnuView, kViewEntries},
    {"mnuRun", "&Run", nullptr, kRunEntries},     {"mnuTools", "&Tools", &mnuTools, kToolsEntries},
    {"mnuHelp", "&Help", &mnuHelp, kHelpEntries},
};

constexpr EntryRow kShowLabels = {.name = "mnuToolBarShowLabels",
                                  .caption = "&Show Labels",
                                  .click = mnuToolBarShowLabels_Click,
                                  .entry = &mnuToolBarShowLabels,
                                  .checkable = kCheckable};

QAction* AddEntry(QMenu& menu, const EntryRow& row, Bindings& bindings) {
  QAction* action = menu.addAction(row.caption);
  action->setObjectName(row.name);
  action->setShortcut(QKeySequence(row.shortcut));
  action->setCheckable(row.checkable);
  if (row.icon != nullptr) action->setIcon(CommandIcon(row.icon));
  QObject::connect(action, &QAction::triggered, action, [click = row.click] { click(); });
  if (row.entry != nullptr) {
    bindings.Bind(row.entry->Enabled, [action](bool enabled) { action->setEnabled(enabled); });
  }
  if (row.checkable) {
    bindings.Bind(row.entry->Checked, [action](bool checked) { action->setChecked(checked); });
  }
  return action;
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
    if (row.name == nullptr) {
      menu.addSeparator();
    } else if (row.name == kRecentFiles) {
      AddRecentFiles(menu, bindings);
    } else {
      AddEntry(menu, row, bindings);
    }
  }
}

}  // namespace

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
  menu->addSeparator();
  QAction* action = menu->addAction("&Customize...");
  action->setObjectName("mnuToolBarCustomize");
  QObject::connect(action, &QAction::triggered, menu, std::move(customize));
  return menu;
}

}  // namespace frmMain
