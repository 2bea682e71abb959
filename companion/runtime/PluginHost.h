#pragma once

#include <QMutex>
#include <QObject>
#include <QPluginLoader>
#include <QPointer>
#include <QUrl>
#include <functional>
#include <memory>
#include <vector>

#include "companion/runtime/PluginEvent.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZFoundation/KZTokenLookup.h"

// A host's side of the plug-in: loads it, triggers its commands, answers those that it sends, and reports
// every event to observers. One at a time in a process; the application object must outlive it. Main thread
// only; posted notifications and traces may come from any thread. Its end is the end of the keychain's run.
class PluginHost final : public QObject, public KZPluginDelegate {
  Q_OBJECT

 public:
  using Opener = std::function<bool(const QUrl&)>;
  using CommandHandler = std::function<void(const Content&)>;

  // Every event is reported when it begins, before it has its effect. A load, a command in either direction,
  // a notification, a personal room, and a credential request on the main thread are reported again when
  // they have ended; these nest.
  enum class Phase { Begin, End };
  using Observer = std::function<void(const PluginEvent&, Phase)>;
  // Holds the registration: without the last copy the observer is not called any more.
  using Token = std::shared_ptr<const Observer>;

  // `opener` opens addresses for the plug-in.
  explicit PluginHost(Opener opener = [](const QUrl&) { return true; });
  ~PluginHost() override;

  // False when the file is not such a plug-in; `errorText` has the reason. Load at most once.
  [[nodiscard]] bool load(const QString& path);
  const QString& errorText() const { return m_errorText; }
  // Destroys the plug-in's core and windows; commands that they send meanwhile are dropped. The destructor
  // does it too.
  void shutDown();

  // Called on the thread of the event, in the order of registration.
  [[nodiscard]] Token addObserver(Observer observer);
  // Registers a handler for a command of the plug-in. It runs after the observers, within the call that sends
  // the command, while `context` exists. A command may have several handlers.
  void handle(KZCommand command, const QObject* context, CommandHandler handler);

  // Without a loaded plug-in these are reported and have no effect.
  void trigger(KZCommand command, const Content& content = {});
  void notify(KZNotify index, const Content& content);
  void setPersonalRoom(const QString& joinUrl, const QString& sipUrl);  // null: not given

  // Only while the plug-in is loaded.
  KZPluginCoreMgr& core() const { return *m_core; }
  KZTokenLookup* tokenLookup() const { return m_tokenLookup; }  // nullptr when the plug-in has none

  // The plug-in calls it.
  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

 private:
  struct RegisteredHandler {
    KZCommand command;
    QPointer<const QObject> context;
    CommandHandler handler;
  };

  void observeHostLibrary(Opener opener);
  void report(const PluginEvent& event, Phase phase = Phase::Begin);

  QMutex m_mutex;
  std::vector<std::weak_ptr<const Observer>> m_observers;
  std::vector<RegisteredHandler> m_handlers;
  KZNotificationCenter::Token m_requests;
  KZNotificationCenter::Token m_requestEnds;
  KZNotificationCenter::Token m_responses;

  QPluginLoader m_loader;
  KZPluginFactory* m_factory = nullptr;
  KZPluginCoreMgr* m_core = nullptr;
  KZTokenLookup* m_tokenLookup = nullptr;
  QString m_errorText;
};

// The plug-in's path, relative to the program: beside it in a build folder, or below lib/ where it is
// installed. The first place when there is none, so that the loader's reason names it.
QString defaultPluginPath();
