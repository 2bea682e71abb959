#pragma once

#include <QString>
#include <memory>

#include "companion/app/CompanionExchange.h"
#include "companion/app/CompanionOptions.h"
#include "companion/app/CompanionWindow.h"
#include "companion/app/Recording.h"
#include "companion/app/Sandbox.h"
#include "companion/app/TryOutView.h"
#include "companion/inspector/InspectorLog.h"
#include "companion/runtime/PluginHost.h"
#include "companion/services/CompanionServices.h"

// The parts of the companion, put together. Open the settings store and choose the keychain
// before; the application object must outlive it. Main thread only.
class Companion final : public QObject {
  Q_OBJECT

 public:
  explicit Companion(const CompanionOptions& options);
  ~Companion() override;

  // Returns when the window is on the screen, or after half a second. Input waits until the event loop runs:
  // load the plug-in before.
  void showWindow();

  // False when the plug-in cannot be loaded; the reason is in `errorText`.
  [[nodiscard]] bool loadPlugin(const QString& path);
  const QString& errorText() const { return m_host.errorText(); }

  // Records from now on; call it before loading, so that the record is whole. False when the file cannot be
  // made.
  [[nodiscard]] bool record(const QString& path) { return m_recording.start(path); }

  // Preferences first, then the sandbox. After a successful load.
  void start(demouser::Variant variant);

  // Both windows, over those of other programs.
  void comeToFront();

  PluginHost* host() { return &m_host; }
  CompanionWindow* window() { return &m_window; }

 private:
  void createPages();
  void createServices();
  QWidget* createTryOut();
  void offer(const SandboxDescription& sandbox);
  void connectSandbox();
  void connectRecording();
  void toggleRecording();
  void recordAnew(const QString& path);

  PluginHost m_host;
  InspectorLog m_log;
  PluginHost::Token m_logging;
  Recording m_recording;
  std::unique_ptr<CompanionServices> m_services;  // before the window, whose pages use them
  CompanionWindow m_window;
  const CompanionOptions m_options;
  SandboxDescription m_offered;
  TryOutView* m_tryOut = nullptr;  // owned by the window; nullptr until it is shown
  std::unique_ptr<CompanionExchange> m_exchange;
  Sandbox m_sandbox;
};
