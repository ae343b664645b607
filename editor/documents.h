#pragma once

#include <cstdint>
#include <string>

// The life of the one document that is edited at a time. Its text is that of TextEditor, its name
// the panel "FileName", its path key "0" of the recent list, its modified mark the Enabled of the
// button "Save".
namespace frmMain {

struct RecoveryText;

// What the panel "FileName" shows for a document without a file; the only sign of it.
inline constexpr const char* kUntitled = "Untitled";

// What it shows for a document with this file; an empty path for one without.
std::string NameOfDocument(const std::string& path);

// Why the window closes.
inline constexpr std::int16_t kClosedByUser = 0;
inline constexpr std::int16_t kClosedByProgram = 1;

// New, Open, a recent file and closing ask first whether changes are to be saved; Cancel, or a save
// that didn't happen, ends them.
void mnuFileNew_Click();
void mnuFileOpen_Click();
// As Open, with a file that the user has chosen elsewhere.
void OpenProgram(const std::string& path);
// Makes a text that was recovered the document, with its changes still to be saved. False when the
// user keeps the one that is open.
bool OpenRecovery(const RecoveryText& document);
// The entry `index` of mnuFileRecentFiles.
void mnuFileRecentFiles_Click(std::int16_t index);
void mnuFileSave_Click();
void mnuFileSaveAS_Click();
// Closes the window, as its close box does.
void mnuFileExit_Click();

// Asked before the window closes: sets `cancel` when it has to stay, else unloads it.
void Form_QueryUnload(std::int16_t& cancel, std::int16_t unloadMode);
// What is typed is at most as far ahead of the recovery file as the calls are apart.
void RecoveryTimer_Timer();

// Asks a run to stop and ends the process.
void Form_Unload();

void ResetDocuments();

}  // namespace frmMain
