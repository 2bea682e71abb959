#pragma once

#include <QMutex>
#include <QObject>
#include <QUrl>
#include <functional>
#include <memory>
#include <vector>

#include "companion/runtime/BorderWatch.h"
#include "companion/runtime/Crossing.h"
#include "companion/runtime/PluginHost.h"

// A host's side of the border: every command and notification goes through here, and whoever wants to know
// hears of all that crosses. One at a time in a process. Main thread only; what is posted and traced may come
// from any thread.
class Border final : public QObject {
  Q_OBJECT

 public:
  using Opener = std::function<bool(const QUrl&)>;
  using Observer = std::function<void(const Crossing&)>;
  // The observer hears nothing any more when the last copy goes.
  using Token = std::shared_ptr<const Observer>;

  // `opener` opens the addresses that the plug-in wants opened.
  explicit Border(Opener opener);
  ~Border() override;

  // Called on the thread on which it happens, in that order, before it has its effect.
  [[nodiscard]] Token addObserver(Observer observer);

  // False when the plug-in cannot be loaded; the reason is in `errorText`. Load at most once.
  [[nodiscard]] bool loadPlugin(const QString& path);
  const QString& errorText() const { return m_host.errorText(); }
  void shutDown() { m_host.shutDown(); }

  // Only after a successful load.
  void triggerCommand(quint64 number, const Content& content = {});
  void notify(quint32 index, const Content& content);
  void setPersonalRoom(const QString& joinUrl, const QString& sipUrl);  // null: not given
  KZPluginCoreMgr& core() const { return m_host.core(); }
  KZTokenLookup* tokenLookup() const { return m_host.tokenLookup(); }  // nullptr when the plug-in has none

 Q_SIGNALS:
  // The plug-in sent a command; the observers have heard of it.
  void commandSent(quint64 number, const Content& content);
  void loading();  // the plug-in is about to be loaded
  // The latest of these that had not returned has had its effect: the loading, a command in either direction,
  // a notification, a personal room, a challenge on the main thread. They nest.
  void returned();

 private:
  BorderWatch::Handlers handlers(Opener opener);
  void tell(const Crossing& crossing);

  QMutex m_mutex;
  std::vector<std::weak_ptr<const Observer>> m_observers;
  PluginHost m_host;
  BorderWatch m_watch;
  KZNotificationCenter::Token m_challengesEnd;
};
