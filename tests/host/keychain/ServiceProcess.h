#pragma once

#include <QProcess>

// A Secret Service on the test's bus for as long as it lives.
class ServiceProcess final {
 public:
  // The fake one; it prints a line once it owns the name.
  explicit ServiceProcess(const QString& fault);
  // gnome-keyring, its login keyring unlocked.
  ServiceProcess();
  ~ServiceProcess();
  Q_DISABLE_COPY_MOVE(ServiceProcess)

  void kill();
  // What the fake one said since it started.
  QByteArray said();

 private:
  QProcess m_process;
  QByteArray m_said;
};
