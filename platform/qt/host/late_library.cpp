#include "platform/qt/host/late_library.h"

#include <QCoreApplication>
#include <QLibrary>

QFunctionPointer LateRoutine(const char* library, const char* routine, std::string& reason) {
  QLibrary part(QCoreApplication::applicationDirPath() + "/" TURNBAY_PARTS_FROM_PROGRAMS "/" +
                library);
  const QFunctionPointer found = part.resolve(routine);
  if (found == nullptr) {
    reason = "A part of Turnbay can't be loaded: " + part.errorString().toStdString() +
             ". Install Turnbay again.";
  }
  return found;
}
