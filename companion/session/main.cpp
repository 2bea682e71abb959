#include <QBuffer>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <cstdio>
#include <optional>

#include "companion/record/RecordCheck.h"
#include "companion/record/RecordFile.h"
#include "companion/record/Recorder.h"
#include "companion/runtime/Application.h"
#include "companion/session/Session.h"
#include "companion/session/SessionOptions.h"
#include "companion/session/WriteWatch.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kPlayed = 0;
constexpr int kDifferent = 1;
constexpr int kUnusable = 2;
constexpr int kPluginFailed = 3;

void complain(const QString& text) {
  std::fprintf(stderr, "prefs-session: %s\n", qPrintable(text));
}

bool openScript(const QString& path, QFile* script) {
  if (path == "-") return script->open(stdin, QIODevice::ReadOnly);
  script->setFileName(path);
  return script->open(QIODevice::ReadOnly);
}

// Where the lines of the record go that is made while a script is played.
class RecordLines final {
 public:
  // False when the record cannot be made.
  [[nodiscard]] bool open(const QString& path) {
    if (path.isEmpty()) return true;
    m_isWritten = m_file.open(path);
    if (!m_isWritten) complain(QStringLiteral("cannot record to %1: %2").arg(path, m_file.errorText()));
    return m_isWritten;
  }
  void checkAgainst(const QByteArray& record) { m_check.emplace(record); }

  bool isWanted() const { return m_isWritten || m_check; }
  bool isWhole() const { return m_isWhole; }

  bool take(const QByteArray& line) {
    if (m_check) m_check->hear(line);
    if (!m_isWritten || m_file.write(line)) return true;
    complain(QStringLiteral("the record ends early: %1").arg(m_file.errorText()));
    m_isWritten = false;
    m_isWhole = false;
    return m_check.has_value();
  }

  // After the last line.
  void finish(Recorder* recorder) {
    if (!m_isWritten) return;
    const auto revised = [recorder](const QByteArray& line) { return recorder->revised(line); };
    m_isWhole = m_file.finish(revised) && m_isWhole;
    if (!m_isWhole)
      complain(QStringLiteral("the record cannot be read once more: %1").arg(m_file.errorText()));
  }

  // What to exit with after a script that was played to its end.
  int status(LineWriter* writer) {
    const auto difference = m_check ? m_check->difference() : std::nullopt;
    if (!difference) return m_isWhole ? kPlayed : kUnusable;
    const QJsonValue line =
        difference->line > 0 ? QJsonValue(difference->line) : QJsonValue(QJsonValue::Null);
    writer->print(
        {{"different",
          QJsonObject{{"line", line}, {"expected", difference->expected}, {"got", difference->got}}}});
    return kDifferent;
  }

 private:
  RecordFile m_file;
  std::optional<RecordCheck> m_check;
  bool m_isWritten = false;
  bool m_isWhole = true;
};

int playSession(const SessionOptions& options, QIODevice* script, RecordLines* lines) {
  PluginHost host;
  LineWriter writer(stdout);
  std::optional<WriteWatch> writes;
  if (options.isPrintingWrites) writes.emplace(&writer);
  // What is traced while the plug-in is loaded is heard, what the end traces is not part of the script.
  std::optional<Session> session(std::in_place, &host, &writer, options.trace);
  std::optional<Recorder> recorder;
  if (lines->isWanted()) {
    recorder.emplace(
        &host, [lines](const QByteArray& line) { return lines->take(line); },
        Recorder::Options{.clock = [&session] { return session->waited(); },
                          .hostPoster = session->poster()});
  }
  if (!host.load(options.pluginPath)) {
    complain(host.errorText());
    return kPluginFailed;
  }
  const Session::End end = session->play(script);
  if (recorder) {
    recorder->stop();
    lines->finish(&*recorder);
  }
  recorder.reset();
  session.reset();
  writes.reset();
  return end == Session::End::Played ? lines->status(&writer) : static_cast<int>(end);
}

int runSession(const SessionOptions& options) {
  QFile file;
  if (!openScript(options.scriptPath, &file)) {
    complain(QStringLiteral("cannot read %1: %2").arg(options.scriptPath, file.errorString()));
    return kUnusable;
  }
  RecordLines lines;
  if (!options.isCheck)
    return lines.open(options.recordPath) ? playSession(options, &file, &lines) : kUnusable;
  // What is expected is read before anything is played.
  QByteArray record = file.readAll();
  lines.checkAgainst(record);
  if (!lines.open(options.recordPath)) return kUnusable;
  QBuffer script(&record);
  return script.open(QIODevice::ReadOnly) ? playSession(options, &script, &lines) : kUnusable;
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argv);
  Application::setQuitOnLastWindowClosed(false);
  Application::setApplicationName("prefs-session");

  SessionOptions options;
  QString reason;
  if (!options.read(Application::commandLine(argc, argv), &reason)) {
    complain(reason);
    return kUnusable;
  }
  const QTemporaryDir freshFolder;
  const QString stateFolder = options.stateFolder.isEmpty() ? freshFolder.path() : options.stateFolder;
  if (!KZPlistFileHandle::sharedInstance().open(stateFolder)) {
    complain(QStringLiteral("%1 is used by another program").arg(stateFolder));
    return kUnusable;
  }
  KZKeyChainHandle::sharedInstance().useStorage(options.keychain);
  return runSession(options);
}
