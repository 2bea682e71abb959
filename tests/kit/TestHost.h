#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <utility>

#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "tests/kit/TraceCollector.h"

class Window;

// A host for the plug-in's classes in this process, with an empty store in a file and no secrets. It collects
// what the plug-in sends, shows and traces, and shuts the plug-in down at its end.
class TestHost : public KZPluginDelegate {
 public:
  TestHost();
  ~TestHost() override;

  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

  void command(quint64 number, const Content& content = std::nullopt);
  void command(KZCommand number, const Content& content = std::nullopt);
  void notify(quint32 index, const Content& content);
  void notify(KZNotify index, const Content& content);

  static Window* window();  // nullptr when there is none

  // `4 {"kLaunchAtLogin":true}`, or `14 nil`, since the last call.
  QStringList takeSent() { return std::exchange(m_sent, {}); }
  QStringList takeTrace();  // `Class::method text`

  KZPluginCoreMgr* m_core;
  std::function<void()> m_onNextSent;  // called once, from within the next command that the host receives
  QStringList m_warnings;

 private:
  QTemporaryDir m_folder;
  TraceCollector m_trace;
  QStringList m_sent;
};
