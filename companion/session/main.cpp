#include <QBuffer>
#include <QCommandLineParser>
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

struct CommandLine {
  QString stateFolder;  // empty: a fresh one
  KZKeyChainHandle::Storage keychain;
  Session::Options printed;
  QString pluginPath;
  QString scriptPath;  // "-": standard input
  QString recordPath;  // empty: nothing is recorded
  bool isCheck;
};

// Nothing when it cannot be followed. Ends the program where help is asked for.
std::optional<CommandLine> readCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Loads the preferences plug-in, plays one step a line, and prints what came back, one JSON object a "
      "line.\n"
      "Windows are drawn offscreen unless QT_QPA_PLATFORM says otherwise.");
  parser.addHelpOption();
  parser.addOptions(
      {{"state", "Where the settings store lives; left out, a fresh folder.", "DIR"},
       {"keychain", "Where secrets are kept: memory (the default) or system.", "KIND", "memory"},
       {"trace", "Print trace lines too."},
       {"writes", "Print what is written into the settings store and the keychain."},
       {"record", "Write what is played and what comes out as a record.", "RECORD"},
       {"check", "Compare what comes out with what the script, a record, says came out."},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.addPositionalArgument("FILE", "The script, \"-\" or left out: standard input.", "[FILE | -]");
  parser.process(arguments);
  const QString keychain = parser.value("keychain");
  if (keychain != "memory" && keychain != "system") {
    complain(QStringLiteral("--keychain is memory or system, not %1").arg(keychain));
    return {};
  }
  if (parser.positionalArguments().size() > 1) {
    complain(QStringLiteral("one script at a time"));
    return {};
  }
  using Storage = KZKeyChainHandle::Storage;
  return CommandLine{
      .stateFolder = parser.value("state"),
      .keychain = keychain == "system" ? Storage::System : Storage::Memory,
      .printed = {.isPrintingTrace = parser.isSet("trace"), .isPrintingWrites = parser.isSet("writes")},
      .pluginPath = parser.value("plugin"),
      .scriptPath = parser.positionalArguments().value(0, "-"),
      .recordPath = parser.value("record"),
      .isCheck = parser.isSet("check")};
}

// The record that is made while a script is played: written to a file, compared with an earlier one, or both.
struct Record {
  RecordFile file = {};
  std::optional<RecordCheck> check = {};
  bool isWritten = false;  // up to now

  bool isWanted() const { return isWritten || check; }

  // Takes the next line. False when no more are wanted.
  bool take(const QByteArray& line) {
    if (check) check->compare(line);
    if (isWritten && !file.write(line)) {
      complain(QStringLiteral("the record ends early: %1").arg(file.errorText()));
      isWritten = false;
    }
    return isWanted();
  }
};

bool openScript(const QString& path, QFile* script) {
  if (path == "-") return script->open(stdin, QIODevice::ReadOnly);
  script->setFileName(path);
  return script->open(QIODevice::ReadOnly);
}

// What to exit with. What the plug-in does while it is unloaded belongs to no step: it is neither printed nor
// recorded.
int playScript(const CommandLine& commandLine, QIODevice* script, Record* record) {
  PluginHost host;
  Session session(&host, commandLine.printed);
  std::optional<Recorder> recorder;
  if (record->isWanted()) {
    recorder.emplace(
        &host, [record](const QByteArray& line) { return record->take(line); },
        Recorder::Options{.clock = [&session] { return session.waited(); }, .hostPoster = session.poster()});
  }
  if (!host.load(commandLine.pluginPath)) {
    complain(host.errorText());
    return kPluginFailed;
  }
  return session.play(script) ? kPlayed : kUnusable;
}

void printDifference(const RecordCheck::Difference& difference) {
  const QJsonValue line = difference.line > 0 ? QJsonValue(difference.line) : QJsonValue::Null;
  printLine({{"different",
              QJsonObject{{"line", line}, {"expected", difference.expected}, {"got", difference.got}}}});
}

int runSession(const CommandLine& commandLine) {
  QFile file;
  if (!openScript(commandLine.scriptPath, &file)) {
    complain(QStringLiteral("cannot read %1: %2").arg(commandLine.scriptPath, file.errorString()));
    return kUnusable;
  }
  Record record;
  QBuffer checked;
  if (commandLine.isCheck) {
    // What is expected is read before anything is played: the new record may take the file's place.
    checked.setData(file.readAll());
    checked.open(QIODevice::ReadOnly);
    record.check.emplace(checked.data());
  }
  if (!commandLine.recordPath.isEmpty()) {
    record.isWritten = record.file.open(commandLine.recordPath);
    if (!record.isWritten) {
      complain(
          QStringLiteral("cannot record to %1: %2").arg(commandLine.recordPath, record.file.errorText()));
      return kUnusable;
    }
  }
  QIODevice* script = &file;
  if (commandLine.isCheck) script = &checked;
  const int status = playScript(commandLine, script, &record);
  if (status != kPlayed) return status;
  if (const auto difference = record.check ? record.check->difference() : std::nullopt) {
    printDifference(*difference);
    return kDifferent;
  }
  return commandLine.recordPath.isEmpty() || record.isWritten ? kPlayed : kUnusable;
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argv);
  Application::setQuitOnLastWindowClosed(false);
  Application::setApplicationName("prefs-session");

  const auto commandLine = readCommandLine(Application::commandLine(argc, argv));
  if (!commandLine) return kUnusable;
  const QTemporaryDir freshFolder;
  const QString folder = commandLine->stateFolder.isEmpty() ? freshFolder.path() : commandLine->stateFolder;
  if (!KZPlistFileHandle::sharedInstance().open(folder)) {
    complain(QStringLiteral("%1 is used by another program").arg(folder));
    return kUnusable;
  }
  KZKeyChainHandle::sharedInstance().useStorage(commandLine->keychain);
  return runSession(*commandLine);
}
