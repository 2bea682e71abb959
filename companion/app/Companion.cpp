#include "companion/app/Companion.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <chrono>

#include "companion/app/MeetingsView.h"
#include "companion/app/TelemetryView.h"
#include "companion/inspector/InspectorView.h"
#include "companion/runtime/SaveDialog.h"
#include "companion/texts/CompanionText.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

using namespace std::chrono_literals;

// A window may start out of sight.
constexpr auto kLongestFirstFrame = 500ms;
constexpr auto kPaintTime = 100ms;
const QString kSignedInUri = QStringLiteral("http://127.0.0.1/signed-in");

QString introduction(NetworkReach reach) {
  if (reach == NetworkReach::Network) {
    return companionText(
        "Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.");
  }
  return companionText("Meeting sites and Exchange are played by a sandbox on this computer.");
}

// Beside the settings where those have a folder of their own.
QString ownFolder(const CompanionOptions& options, QStandardPaths::StandardLocation location,
                  const QString& name) {
  if (!options.stateFolder.isEmpty()) return QDir(options.stateFolder).absoluteFilePath(name);
  return QDir(QStandardPaths::writableLocation(location))
      .filePath(QStringLiteral("brenn-mivra-meetings/") + name);
}

CompanionServices::Settings serviceSettings(const CompanionOptions& options,
                                            const ExchangeConfiguration& exchange) {
  QStringList arguments;
  if (!options.stateFolder.isEmpty()) {
    arguments = {QStringLiteral("--state"), QFileInfo(options.stateFolder).absoluteFilePath()};
  }
  return {.reach = options.reach,
          .exchange = exchange,
          .record = demouser::record(),
          .dataFolder = ownFolder(options, QStandardPaths::GenericDataLocation, QStringLiteral("telemetry")),
          .autostart = AutostartEntry(AutostartEntry::userFolder(), QCoreApplication::applicationFilePath(),
                                      arguments)};
}

}  // namespace

Companion::Companion(const CompanionOptions& options)
    : m_host([](const QUrl& url) { return !url.isRelative() && QDesktopServices::openUrl(url); }),
      m_logging(m_host.addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
        if (phase == PluginHost::Phase::Begin) m_log.record(event);
      })),
      m_recording(&m_host),
      m_window(&m_host),
      m_options(options) {
  m_window.showNotice(introduction(options.reach));
  connectSandbox();
  connectRecording();
}

Companion::~Companion() {
  m_recording.stop();
  // The plug-in sends events while it is shut down, so the observers must still exist.
  m_host.shutDown();
}

void Companion::createPages() {
  m_window.addPage(companionText("&Meetings"), [this] { return new MeetingsView(&m_services->meetings()); });
  m_window.addPage(companionText("&Try out"), [this] { return createTryOut(); });
  m_window.addPage(companionText("&Inspector"), [this] {
    auto* inspector = new InspectorView(&m_log);
    connect(inspector, &InspectorView::message, &m_window, &CompanionWindow::showNotice);
    return inspector;
  });
  m_window.addPage(companionText("Telemetr&y"),
                   [this] { return new TelemetryView(&m_services->telemetry()); });
}

QWidget* Companion::createTryOut() {
  m_tryOut = new TryOutView;
  connect(m_tryOut, &TryOutView::siteChosen, &m_window, &CompanionWindow::useSite);
  connect(m_tryOut, &TryOutView::copied, &m_window,
          [this](const QString& text) { m_window.showNotice(companionText("Copied: %1").arg(text)); });
  offer(m_offered);
  return m_tryOut;
}

void Companion::offer(const SandboxDescription& sandbox) {
  m_offered = sandbox;
  if (!m_tryOut) return;
  m_tryOut->setAccounts(sandbox.accounts);
  m_tryOut->setSites(sandbox.sites);
}

void Companion::connectSandbox() {
  connect(&m_sandbox, &Sandbox::ready, this, [this](const SandboxDescription& description) {
    m_services->network().useSandbox(description);
    offer(description);
  });
  connect(&m_sandbox, &Sandbox::failed, this, [this](const QString& reason) {
    m_services->network().loseSandbox(reason);
    m_window.showNotice(reason);
    offer({});
  });
}

void Companion::connectRecording() {
  connect(&m_recording, &Recording::message, &m_window, &CompanionWindow::showNotice);
  connect(&m_recording, &Recording::changed, &m_window, &CompanionWindow::showRecording);
  connect(&m_window, &CompanionWindow::recordingToggled, this, &Companion::toggleRecording);
}

void Companion::toggleRecording() {
  if (m_recording.isRunning()) return m_recording.stop();
  QFileDialog* dialog =
      createSaveDialog(&m_window, companionText("Record to"), QStringLiteral("meetings-record"));
  dialog->setNameFilter(companionText("Records (*.jsonl)"));
  connect(dialog, &QFileDialog::fileSelected, this, &Companion::recordAnew);
  dialog->open();
}

// A record begins with a fresh Preferences window, because it must contain the steps that open the window.
void Companion::recordAnew(const QString& path) {
  if (m_recording.start(path)) m_window.startOver();
}

void Companion::comeToFront() {
  m_window.comeToFront();
  m_window.showPreferences();
}

void Companion::showWindow() {
  // The desktop's colours may have come by now; the first frame has them then.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
  m_window.show();
  KZApplicationHelper::sharedInstance().setMainWindow(&m_window);
  QTimer patience;
  patience.setSingleShot(true);
  patience.start(kLongestFirstFrame);
  while (!m_window.windowHandle()->isExposed() && patience.isActive()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
  }
}

bool Companion::loadPlugin(const QString& path) {
  createServices();
  createPages();
  return m_host.load(path);
}

void Companion::createServices() {
  m_services = std::make_unique<CompanionServices>(
      &m_host, serviceSettings(m_options, productionExchange(m_options.clientId, kSignedInUri)));
  m_exchange = std::make_unique<CompanionExchange>(&m_host, &m_services->network());
  connect(m_exchange.get(), &CompanionExchange::message, &m_window, &CompanionWindow::showNotice);
  connect(m_services.get(), &CompanionServices::message, &m_window, &CompanionWindow::showNotice);
  m_window.useServices(m_services.get());
}

void Companion::start(demouser::Variant variant) {
  m_window.become(variant);
  m_window.showPreferences();
  m_services->start();
  // Later, so that it takes no processor time from the first paint of the windows.
  QTimer::singleShot(kPaintTime, &m_sandbox, [this] { m_sandbox.start(Sandbox::programPath()); });
}
