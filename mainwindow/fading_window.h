#pragma once

#include <QDialog>
#include <QTimer>
#include <cstdint>

// A small window without a frame that fades in as it appears, and out at a click or Esc; where the
// platform has no window opacity, it comes and goes at once. Its owner is the main window, once
// that is on the screen. It deletes itself when it has faded out, and behind exec when that returns
// for another reason, such as the end of the program.
class FadingWindow : public QDialog {
 public:
  // The opacity that the next step applies, 0 to 255.
  std::int16_t Alpha = 0;
  // The steps of the fade-in, which begins as the window is made, and of the fade-out.
  QTimer Timer1{this};
  QTimer Timer2{this};

 protected:
  FadingWindow(const QString& name, Qt::WindowType type, const QSize& size);

  // From wherever the opacity stands.
  void FadeIn();
  void FadeOut();

  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void Timer1_Timer();
  void Timer2_Timer();
  // Without a compositor the window is opaque all the time.
  void SetWindowAlpha(std::int16_t alpha);
};
