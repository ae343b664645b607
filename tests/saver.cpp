// Saves one kind of file again and again, for tests/reliability: saver KIND FOLDER COUNT; a COUNT
// of 0 goes on until it is killed. The kinds are program, settings, tools and recovery. Each save
// differs from the one before, and begins and ends with a call that a trace shows. Exit status 1
// when a save failed.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <unistd.h>

#include "editor/program_file.h"
#include "mainwindow/control_surface.h"
#include "platform/host/recovery_files.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "platform/qt/host/settings_trouble.h"
#include "toollib/tool_files.h"
#include "toollib/tool_folder.h"

namespace {

// A text that tells where it was cut off, or mixed with another one.
std::string VersionText(int version) {
  std::string text;
  for (int row = 0; row < 1'000; ++row) {
    text += 'N' + DecimalText(row) + " G01 X" + DecimalText(version) + "\r\n";
  }
  return text;
}

bool Save(std::string_view kind, const std::string& folder, int version, std::string& reason) {
  if (kind == "program") {
    frmMain::TextEditor().SetText(VersionText(version));
    return frmMain::SaveFile(folder + "/part.cnc", reason);
  }
  if (kind == "settings") {
    WatchSettingsTrouble([&](const std::string& trouble) { reason = trouble; });
    SaveSetting("CNC", "General", "Version", DecimalText(version));
    return reason.empty();
  }
  if (kind == "recovery") {
    if (!WriteRecoveryFile(VersionText(version))) reason = "No recovery file";
    return reason.empty();
  }
  for (std::string& name : GlobalVariables::ToolFiles) name = 'v' + DecimalText(version) + ".bmp";
  return frmToolSelect::WriteToolList(reason);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const std::string folder = argv[2];
  const int count = ParseInt16(argv[3]).value_or(0);
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  setenv("XDG_STATE_HOME", folder.c_str(), 1);
  // The file of the one that was killed, so that its name stays the same.
  VisitEndedRecoveryFiles([](const std::string&) { return RecoveryFate::BecomesOwn; });
  GlobalVariables::SetToolFolder(folder);
  int status = 0;
  for (int i = 1; count == 0 || i <= count; ++i) {
    std::string reason;
    static_cast<void>(access("save-begins", F_OK));
    const bool saved = Save(argv[1], folder, i % 10'000, reason);
    static_cast<void>(access("save-ends", F_OK));
    if (!saved) {
      status = 1;
      std::fprintf(stderr, "%s\n", reason.c_str());
    }
  }
  return status;
}
