#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <functional>

#include "KZPreference/contract/PluginCommandSender.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"

class Window;

// The way out for objects that a test makes by itself.
class CoreSender final : public PluginCommandSender {
 public:
  explicit CoreSender(KZPluginCoreMgr* core) : m_core(core) {}
  quint64 sendPluginCommand(KZCommand number, const Content& content) override {
    return m_core->sendPluginCommand(static_cast<quint64>(number), content);
  }

 private:
  KZPluginCoreMgr* m_core;
};

// A test with a plug-in and a host around it: an empty store in a file, no secrets, and a record of all that
// the plug-in sends, shows and traces.
class RecordingHost : public testing::Test, public KZPluginDelegate {
 public:
  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

 protected:
  RecordingHost();
  ~RecordingHost() override;

  void command(quint64 number, const Content& content = std::nullopt);
  void notify(quint32 index, const Content& content);
  // What waits in the event loop, deferred deletions included.
  static void settle();

  static Window* window();  // nullptr when there is none
  static QString controllerClass();
  template <typename T>
  static T* find(const char* name) {
    return qobject_cast<T*>(findObject(name));
  }
  static void clickPane(const QString& label, Qt::KeyboardModifiers modifiers = {});

  // `4 {"kLaunchAtLogin":true}`, or `14 nil`, since the last call.
  QStringList takeSent() { return std::exchange(m_sent, {}); }
  QStringList takeTrace() { return std::exchange(m_trace, {}); }  // `Class::method text`

  KZPluginCoreMgr* m_core;
  std::function<void(quint32 number)> m_onSent;
  QStringList m_warnings;

 private:
  static QObject* findObject(const char* name);

  QTemporaryDir m_folder;
  QStringList m_sent;
  QStringList m_trace;
};
