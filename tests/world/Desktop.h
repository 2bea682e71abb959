#pragma once

#include <QProcess>
#include <QSize>
#include <QTemporaryDir>
#include <memory>
#include <vector>

// A desktop of its own for one test: an X server without a screen, a window manager, a session bus and the
// accessibility bus. Everything ends with it, or with the test program.
class Desktop final {
 public:
  enum class Manager { None, Openbox };

  struct Options {
    QSize screen{1366, 768};
    Manager manager = Manager::Openbox;
  };

  // What is not installed; empty when all is there.
  static QString missingPrograms();

  explicit Desktop(const Options& options);
  explicit Desktop() : Desktop(Options{}) {}
  ~Desktop();
  Q_DISABLE_COPY_MOVE(Desktop)

  // Of a program that runs on it; with this platform of Qt's.
  QProcessEnvironment environment(const QString& platform = QStringLiteral("xcb")) const;
  QByteArray display() const { return m_display; }
  QString sessionBus() const { return m_sessionBus; }
  QString folder() const { return m_folder.path(); }

  // Starts a program that ends with the desktop.
  QProcess& start(const QString& program, const QStringList& arguments);

  // Ends with this program, also when it is killed.
  static std::unique_ptr<QProcess> ownedProcess(const QProcessEnvironment& environment);

 private:
  void startManager();
  QByteArray firstLineOf(QProcess& process);

  QTemporaryDir m_folder;
  QByteArray m_display;
  QString m_sessionBus;
  std::vector<std::unique_ptr<QProcess>> m_processes;
};
