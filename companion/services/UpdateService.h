#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>
#include <optional>

#include "companion/services/ServiceNetwork.h"
#include "companion/services/UpdateDownload.h"
#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// Looks for newer versions and fetches them; nothing is installed. Main thread only.
class UpdateService final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this. Packages go to `folder`.
  UpdateService(PluginHost* host, ServiceNetwork* network, const QString& folder);

  // As the user asks for it, through the plug-in.
  void check();
  // Looks soon and then once a day, and only offers what it finds.
  void checkQuietly();
  // The user wants to go on with something else.
  void cancel();
  // Ends what is under way: it would tell of another site.
  void abandon();

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user
  void started();
  void progressed(qint64 bytes, qint64 ofBytes);
  void offered(const QString& text);  // the user may want to check
  void ended();                       // nothing is under way or offered

 private:
  enum class Check { None, Asked, Quiet };

  void look(Check check, const Dictionary& content);
  void readManifest(const WebAnswer& answer);
  void download(const UpdateManifest& manifest);
  void succeed(const QString& text);
  void fail(const QString& reason);
  void end();

  PluginHost* m_host;
  ServiceNetwork* m_network;
  const QString m_folder;
  QTimer m_day;
  Check m_check = Check::None;
  std::unique_ptr<WebFetch> m_look;
  std::unique_ptr<UpdateDownload> m_download;
};
