#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <memory>

// prefs-session with the real plug-in as a program on a desktop.
class LiveSession final {
 public:
  explicit LiveSession(const QProcessEnvironment& environment);
  // Closes its input and waits for its end.
  ~LiveSession();
  Q_DISABLE_COPY_MOVE(LiveSession)

  // Plays the steps and returns the lines that were printed meanwhile.
  QStringList play(const QStringList& steps);

  // Ends it and returns its exit status, -1 when it crashed.
  int end();

 private:
  std::unique_ptr<QProcess> m_process;
  int m_marker = 0;
};
