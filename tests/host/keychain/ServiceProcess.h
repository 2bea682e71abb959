#pragma once

#include <QProcess>

// Runs a Secret Service on the test's bus while it exists.
class ServiceProcess final {
 public:
  enum class Keyring { Unlocked, Locked };

  // The fake one; it prints a line once it owns the name.
  explicit ServiceProcess(const QString& fault);
  // gnome-keyring with its login keyring, which the first unlocked one in a home makes.
  explicit ServiceProcess(Keyring keyring = Keyring::Unlocked);
  ~ServiceProcess();
  Q_DISABLE_COPY_MOVE(ServiceProcess)

  void kill();
  void pause() const;
  void resume() const;
  // The output of the fake one since its start.
  QByteArray said();

 private:
  QProcess m_process;
  QByteArray m_said;
};
