#pragma once

#include <QObject>
#include <functional>

#include "companion/app/BorderLog.h"
#include "companion/runtime/BorderWatch.h"
#include "companion/runtime/PluginHost.h"

// The companion's side of the border: every command and notification goes through here, and all that crosses
// is written down. Main thread only; traces and posted notifications may come from any thread.
class Border final : public QObject {
  Q_OBJECT

 public:
  Border();
  ~Border() override;

  // False when the plug-in cannot be loaded; the reason is in `errorText`.
  [[nodiscard]] bool loadPlugin(const QString& path) { return m_host.load(path); }
  const QString& errorText() const { return m_host.errorText(); }
  void shutDown() { m_host.shutDown(); }

  void triggerCommand(quint64 number, const Content& content = {});
  void notify(quint32 index, const Content& content);
  void setPersonalRoom(const QString& joinUrl, const QString& sipUrl) {
    m_host.core().setPMRJoinUrl(joinUrl, sipUrl);
  }

  BorderLog& log() { return m_log; }

 Q_SIGNALS:
  // The plug-in sent a command; the event is in the log already.
  void commandSent(quint64 number, const Content& content);

 private:
  BorderWatch::Handlers handlers();
  void record(const BorderEvent& event);

  BorderLog m_log;
  PluginHost m_host;
  BorderWatch m_watch;
};
