#pragma once

#include <QProcess>

// Runs a Secret Service on the test's bus while it exists.
class ServiceProcess final {
 public:
  // The fake one; it prints a line once it owns the name.
  explicit ServiceProcess(const QString& fault);
  // gnome-keyring, its login keyring unlocked.
  ServiceProcess();
  ~ServiceProcess();
  Q_DISABLE_COPY_MOVE(ServiceProcess)

  void kill();
  // The output of the fake one since its start.
  QByteArray said();

 private:
  QProcess m_process;
  QByteArray m_said;
};
