#include "mainwindow/notifications.h"

#include "platform/host/notifications.h"

namespace frmInfo {

Label lblInfo;
DisplayTimer Timer4;

void ResetNotifications() {
  lblInfo = {};
  Timer4 = {};
}

}  // namespace frmInfo

namespace frmMain {

void ShowInfoWindow(std::int16_t modal, std::int16_t time) {
  frmInfo::Timer4.Interval = time;
  Desktop::ShowNotification(frmInfo::lblInfo.Caption, time, modal != 0);
}

}  // namespace frmMain
