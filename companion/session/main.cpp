#include <QBuffer>
#include <QCommandLineParser>
#include <QEventLoop>
#include <QFile>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <cstdio>
#include <optional>

#include "companion/record/RecordCheck.h"
#include "companion/record/RecordFile.h"
#include "companion/record/Recorder.h"
#include "companion/runtime/Application.h"
#include "companion/session/Session.h"
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

void addOptions(QCommandLineParser* options) {
  options->setApplicationDescription(
      "Loads the preferences plug-in, plays one step a line, and prints what came back, one JSON object a "
      "line.\n"
      "Windows are drawn offscreen unless QT_QPA_PLATFORM says otherwise.");
  options->addHelpOption();
  options->addOptions(
      {{"state", "Where the settings store lives; left out, a fresh folder.", "DIR"},
       {"keychain", "Where secrets are kept: memory (the default) or system.", "KIND", "memory"},
       {"trace", "Print trace lines too."},
       {"live", "Handle events while waiting for the next line of standard input."},
       {"writes", "Print what is written into the settings store and the keychain."},
       {"record", "Write what is played and what comes out as a record.", "RECORD"},
       {"check", "Compare what comes out with what the script, a record, says came out."},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  options->addPositionalArgument("FILE", "The script, \"-\" or left out: standard input.", "[FILE | -]");
}

// The record that is made while a script is played: written to a file, kept to be compared, or both.
struct Record {
  RecordFile file = {};
  bool isWritten = false;  // up to now
  bool isKept = false;
  QByteArray kept = {};

  bool isWanted() const { return isWritten || isKept; }

  // Takes the next line. False when no more are wanted.
  bool take(const QByteArray& line) {
    if (isKept) kept += line + '\n';
    if (isWritten && !file.write(line)) {
      complain(QStringLiteral("the record ends early: %1").arg(file.errorText()));
      isWritten = false;
    }
    return isWanted();
  }
};

// Handles events until standard input can be read or is at its end.
void runUntilInput() {
  QEventLoop loop;
  QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
  loop.exec();
}

bool openScript(const QString& path, QFile* script) {
  if (path == "-") return script->open(stdin, QIODevice::ReadOnly);
  script->setFileName(path);
  return script->open(QIODevice::ReadOnly);
}

// Returns the exit status. Events while the plug-in is unloaded belong to no step: they are neither printed
// nor recorded.
int playScript(const QCommandLineParser& options, QIODevice* script, Record* record) {
  PluginHost host;
  Session::Options sessionOptions{.isPrintingTrace = options.isSet("trace"),
                                  .isPrintingWrites = options.isSet("writes")};
  if (options.isSet("live")) {
    // What was read ahead could not be waited for.
    std::setvbuf(stdin, nullptr, _IONBF, 0);
    sessionOptions.awaitLine = runUntilInput;
  }
  Session session(&host, sessionOptions);
  std::optional<Recorder> recorder;
  if (record->isWanted()) {
    recorder.emplace(
        &host, [record](const QByteArray& line) { return record->take(line); },
        Recorder::Options{.clock = [&session] { return session.waited(); }, .hostPoster = session.poster()});
  }
  if (!host.load(options.value("plugin"))) {
    complain(host.errorText());
    return kPluginFailed;
  }
  const bool isPlayed = session.play(script);
  // While its events are still printed.
  KZKeyChainHandle::sharedInstance().finish();
  return isPlayed ? kPlayed : kUnusable;
}

void printDifference(const RecordDifference& difference) {
  const QJsonValue line = difference.line > 0 ? QJsonValue(difference.line) : QJsonValue::Null;
  printLine({{"different",
              QJsonObject{{"line", line}, {"expected", difference.expected}, {"got", difference.got}}}});
}

int runSession(const QCommandLineParser& options) {
  QFile file;
  const QString path = options.positionalArguments().value(0, "-");
  if (!openScript(path, &file)) {
    complain(QStringLiteral("cannot read %1: %2").arg(path, file.errorString()));
    return kUnusable;
  }
  Record record;
  record.isKept = options.isSet("check");
  // The expected results are read before the first step, because the new record may replace the file.
  QBuffer checked;
  if (record.isKept) checked.setData(file.readAll());
  const QString recordPath = options.value("record");
  if (!recordPath.isEmpty()) {
    record.isWritten = record.file.open(recordPath);
    if (!record.isWritten) {
      complain(QStringLiteral("cannot record to %1: %2").arg(recordPath, record.file.errorText()));
      return kUnusable;
    }
  }
  QIODevice* script = &file;
  if (record.isKept && checked.open(QIODevice::ReadOnly)) script = &checked;
  const int status = playScript(options, script, &record);
  if (status != kPlayed) return status;
  if (const auto difference = firstDifference(checked.data(), record.kept)) {
    printDifference(*difference);
    return kDifferent;
  }
  return recordPath.isEmpty() || record.isWritten ? kPlayed : kUnusable;
}

// For the lack of a session bus, Qt would start one and leave it running.
void keepToKnownBus() {
  const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const bool hasBus = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                      (!runtimeFolder.isEmpty() && QFile::exists(runtimeFolder + "/bus"));
  if (!hasBus) qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  keepToKnownBus();
  Application application(argc, argv);
  Application::setQuitOnLastWindowClosed(false);
  Application::setApplicationName("prefs-session");

  QCommandLineParser options;
  addOptions(&options);
  options.process(Application::arguments());
  const QString keychain = options.value("keychain");
  if (keychain != "memory" && keychain != "system") {
    complain(QStringLiteral("--keychain is memory or system, not %1").arg(keychain));
    return kUnusable;
  }
  if (options.positionalArguments().size() > 1) {
    complain(QStringLiteral("one script at a time"));
    return kUnusable;
  }
  const QTemporaryDir freshFolder;
  const QString folder = options.value("state").isEmpty() ? freshFolder.path() : options.value("state");
  if (!KZPlistFileHandle::sharedInstance().open(folder)) {
    complain(QStringLiteral("%1 is used by another program").arg(folder));
    return kUnusable;
  }
  using Storage = KZKeyChainHandle::Storage;
  KZKeyChainHandle::sharedInstance().useStorage(keychain == "system" ? Storage::System : Storage::Memory);
  return runSession(options);
}
