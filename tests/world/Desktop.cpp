#include "tests/world/Desktop.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <csignal>

#include "tests/kit/Input.h"

namespace {

constexpr int kStartMilliseconds = 20'000;

const QStringList& helperFolders() {
  static const QStringList folders = {"/usr/libexec", "/usr/lib/at-spi2-core"};
  return folders;
}

QString busLauncher() {
  return QStandardPaths::findExecutable("at-spi-bus-launcher", helperFolders());
}

}  // namespace

QString Desktop::missingPrograms() {
  QStringList missing;
  for (const char* program : {"Xvfb", "openbox", "dbus-daemon", "weston"})
    if (QStandardPaths::findExecutable(program).isEmpty()) missing.append(program);
  if (busLauncher().isEmpty()) missing.append("at-spi-bus-launcher");
  return missing.join(", ");
}

std::unique_ptr<QProcess> Desktop::ownedProcess(const QProcessEnvironment& environment) {
  auto process = std::make_unique<QProcess>();
  process->setProcessEnvironment(environment);
  process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
  return process;
}

Desktop::Desktop(const Options& options) {
  // The folder itself is for its owner only, as programs require it of a runtime folder.
  QFile configuration(m_folder.filePath("bus.conf"));
  EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
  configuration.write(R"(<busconfig><type>session</type><listen>unix:dir=)" + QFile::encodeName(folder()) +
                      R"(</listen><policy context="default"><allow send_destination="*" eavesdrop="true"/>)"
                      R"(<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>)");
  configuration.close();

  const QString screen = QStringLiteral("%1x%2x24").arg(options.screen.width()).arg(options.screen.height());
  QProcess& server = start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"});
  QProcess& bus =
      start("dbus-daemon", {"--config-file", configuration.fileName(), "--print-address", "--nofork"});
  m_display = ":" + firstLineOf(server);
  m_sessionBus = QString::fromUtf8(firstLineOf(bus));
  start(busLauncher(), {"--launch-immediately"});
  if (options.manager == Manager::Openbox) startManager();
}

Desktop::~Desktop() {
  // The last started first, so that none sees its server go.
  while (!m_processes.empty()) {
    QProcess& process = *m_processes.back();
    process.terminate();
    if (!process.waitForFinished(5000)) process.kill();
    process.waitForFinished();
    m_processes.pop_back();
  }
}

QProcessEnvironment Desktop::environment(const QString& platform) const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS", "XDG_CURRENT_DESKTOP", "QT_SCALE_FACTOR"})
    environment.remove(QLatin1String(name));
  environment.insert("HOME", folder());
  environment.insert("XDG_RUNTIME_DIR", folder());
  environment.insert("GSETTINGS_BACKEND", "memory");
  environment.insert("DISPLAY", QString::fromLatin1(m_display));
  environment.insert("DBUS_SESSION_BUS_ADDRESS", m_sessionBus);
  environment.insert("QT_QPA_PLATFORM", platform);
  environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  return environment;
}

// A window that is mapped while openbox starts may stay without a frame for good, and on a busy machine
// openbox now and then never ends its start.
void Desktop::startManager() {
  const QString ready = m_folder.filePath("manager-ready");
  for (int attempt = 0; attempt < 3; ++attempt) {
    QProcess& manager = start("openbox", {"--sm-disable", "--startup", "touch " + ready});
    if (kit::waitUntil([&] { return QFile::exists(ready); })) return;
    manager.kill();
    manager.waitForFinished();
  }
  ADD_FAILURE() << "openbox does not start";
}

QProcess& Desktop::start(const QString& program, const QStringList& arguments) {
  m_processes.push_back(ownedProcess(environment()));
  QProcess& process = *m_processes.back();
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForStarted(kStartMilliseconds)) << program.toStdString();
  return process;
}

QByteArray Desktop::firstLineOf(QProcess& process) {
  while (!process.canReadLine() && process.waitForReadyRead(kStartMilliseconds)) continue;
  const QByteArray line = process.readLine().trimmed();
  EXPECT_FALSE(line.isEmpty()) << process.program().toStdString() << " does not start";
  return line;
}
