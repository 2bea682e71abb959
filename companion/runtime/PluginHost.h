#pragma once

#include <QPluginLoader>
#include <QString>
#include <functional>

#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZFoundation/KZTokenLookup.h"

// The host's end of the border: loads the plug-in, forwards commands and notifications to its core, and hears
// the commands that it sends. The application object must outlive it. Main thread only.
class PluginHost final : private KZPluginDelegate {
 public:
  using CommandHandler = std::function<void(quint64 number, const Content& content)>;

  PluginHost() = default;
  ~PluginHost() override;

  // False when the file is no plug-in of ours; `errorText` tells why. Load at most once.
  [[nodiscard]] bool load(const QString& path);
  const QString& errorText() const { return m_errorText; }

  // Called for every command that the plug-in sends, from within the call that made it send.
  void setCommandHandler(CommandHandler handler) { m_handler = std::move(handler); }

  // Only after a successful load.
  void triggerCommand(quint64 number, const Content& content);
  void notify(quint32 index, const Content& content);
  KZPluginCoreMgr& core() const { return *m_core; }
  KZTokenLookup* tokenLookup() const { return m_tokenLookup; }  // nullptr when the plug-in has none

  // Destroys the plug-in's core and windows; what they still send is dropped. The destructor does it too.
  void shutDown();

 private:
  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

  QPluginLoader m_loader;
  KZPluginFactory* m_factory = nullptr;
  KZPluginCoreMgr* m_core = nullptr;
  KZTokenLookup* m_tokenLookup = nullptr;
  CommandHandler m_handler;
  QString m_errorText;
};
