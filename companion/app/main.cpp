#include <QDeadlineTimer>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTranslator>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>

#include "companion/app/Appearance.h"
#include "companion/app/Companion.h"
#include "companion/app/Demonstration.h"
#include "companion/app/DesktopColors.h"
#include "companion/app/Display.h"
#include "companion/runtime/Application.h"
#include "companion/runtime/SingleInstance.h"
#include "companion/texts/CompanionText.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kAlreadyRunning = 1;
constexpr int kUnusable = 2;
constexpr int kPluginFailed = 3;
constexpr std::chrono::milliseconds kAnswerPatience = std::chrono::seconds(5);
constexpr std::chrono::milliseconds kBetweenAttempts(20);

void complain(const QString& text) {
  std::fprintf(stderr, "companion: %s\n", qPrintable(text));
}

// Qt does not tell whether its style comes from this option.
StyleChoice styleChoice(int argc, char** argv) {
  for (int place = 1; place < argc; ++place) {
    const std::string_view argument = argv[place];
    if (argument == "-style" || argument == "--style" || argument.starts_with("-style=") ||
        argument.starts_with("--style="))
      return StyleChoice::Asked;
  }
  return StyleChoice::Look;
}

QString stateFolderOf(const CompanionOptions& options) {
  if (!options.stateFolder.isEmpty()) return options.stateFolder;
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath("brenn-mivra-meetings");
}

int playDemo(Companion* companion, const CompanionOptions& options) {
  QTemporaryDir fresh(QDir(QDir::tempPath()).filePath("brenn-mivra-demo-XXXXXX"));
  fresh.setAutoRemove(false);
  if (!options.outFolder.isEmpty()) fresh.remove();
  const QString folder = options.outFolder.isEmpty() ? fresh.path() : QDir(options.outFolder).absolutePath();
  std::printf("%s: a demonstration plays offscreen; its pictures are\n",
              options.isDemoAsked ? "As asked" : "There is no display");
  const QStringList paths = playDemonstration(companion->host(), companion->window(), folder);
  for (const QString& path : paths) std::printf("%s\n", qPrintable(path));
  if (!paths.isEmpty()) return 0;
  complain(QStringLiteral("the pictures could not be written to %1").arg(folder));
  return 1;
}

// Opens the state folder. When another companion uses it, brings that one to the front and returns this one's
// exit status.
std::optional<int> openOrAskFirst(SingleInstance* instance, const QString& folder) {
  const QDeadlineTimer deadline(kAnswerPatience);
  do {
    // Before the lock: a companion whose folder was removed and made again, or cannot be locked, answers too.
    if (instance->askFirst(std::chrono::milliseconds(deadline.remainingTime()))) {
      std::printf("Brenn Mivra Meetings is running already; it shows its Preferences.\n");
      return 0;
    }
    if (KZPlistFileHandle::sharedInstance().open(folder)) {
      instance->listen();
      return std::nullopt;
    }
    // The first one is only starting, or about to end.
    QThread::msleep(kBetweenAttempts.count());
  } while (!deadline.hasExpired());
  complain(
      QStringLiteral("Brenn Mivra Meetings is running already, but it does not answer. End it, or name "
                     "another folder with --state."));
  return kAlreadyRunning;
}

// After the painted frame has reached the display. Flushed at once: a benchmark waits for the line.
void sayWhenShown(const char* line) {
  QCoreApplication::processEvents();
  qGuiApp->sync();
  std::puts(line);
  std::fflush(stdout);
}

void chooseKeychain(const CompanionOptions& options) {
  using Storage = KZKeyChainHandle::Storage;
  using Unlocking = KZKeyChainHandle::Unlocking;
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  if (options.isDemo) return keychain.useStorage(Storage::Memory);
  // Nobody sees a prompt elsewhere.
  const QString platform = QGuiApplication::platformName();
  const bool isOnDisplay = platform == "xcb" || platform.startsWith("wayland");
  keychain.useStorage(Storage::System, isOnDisplay ? Unlocking::AskOnce : Unlocking::Never);
}

int runFirst(const CompanionOptions& options, const SingleInstance& instance) {
  chooseKeychain(options);
  Companion companion(options);
  if (!options.recordPath.isEmpty() && !companion.record(options.recordPath)) {
    complain(QStringLiteral("cannot record to %1").arg(options.recordPath));
    return kUnusable;
  }
  if (!options.isDemo) companion.showWindow();
  if (options.saysWhenShown) sayWhenShown("first frame");
  if (!companion.loadPlugin(options.pluginPath)) {
    complain(companion.errorText());
    return kPluginFailed;
  }
  if (options.isDemo) return playDemo(&companion, options);
  QObject::connect(&instance, &SingleInstance::asked, &companion, &Companion::comeToFront);
  companion.start(options.isGuest ? demouser::Variant::Guest : demouser::Variant::SignedIn);
  if (!options.saysWhenShown) return QApplication::exec();
  sayWhenShown("ready");
  return 0;
}

int runCompanion(CompanionOptions options) {
  const QTemporaryDir demoState;
  if (options.isDemo && options.stateFolder.isEmpty()) options.stateFolder = demoState.path();
  const QString folder = stateFolderOf(options);
  SingleInstance instance(folder);
  const std::optional<int> status = openOrAskFirst(&instance, folder);
  return status ? *status : runFirst(options, instance);
}

}  // namespace

int main(int argc, char** argv) {
  const DisplayChoice display = chooseDisplay(argc, argv);
  Application application(argc, argv);
  QApplication::setApplicationName("companion");
  QApplication::setApplicationVersion(KZ_VERSION);
  QGuiApplication::setDesktopFileName("brenn-mivra-companion");
  QApplication::setWindowIcon(QIcon(":/companion/companion.png"));
  QApplication::setQuitOnLastWindowClosed(false);
  const CompanionOptions options = CompanionOptions::read(Application::arguments(), display);
  if (display == DisplayChoice::Session && QGuiApplication::platformName() == "offscreen") {
    complain(displayProblem());
    return kUnusable;
  }
  DesktopColors desktop;
  if (!applyAppearance(options.appearance, styleChoice(argc, argv))) {
    complain(QStringLiteral("there is no appearance %1").arg(options.appearance));
    return kUnusable;
  }
  if (options.appearance == "system" && !options.isDemo) {
    QObject::connect(&desktop, &DesktopColors::changed, [&desktop] { applyScheme(desktop.scheme()); });
    desktop.follow(QDBusConnection::sessionBus());
  }
  if (!options.language.isEmpty()) QLocale::setDefault(QLocale(options.language));
  // Qt's own texts: context menus, file dialogs, buttons. Without the file they are English.
  QTranslator qtTexts;
  if (qtTexts.load("qtbase_" + companionLanguage(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&qtTexts);
  return runCompanion(options);
}
