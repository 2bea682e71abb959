#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVersionNumber>
#include <memory>
#include <optional>

#include "companion/services/ServiceNetwork.h"
#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// The version that a site offers for download.
struct UpdateManifest {
  QVersionNumber version;
  QUrl page = {};  // where the user gets it; empty where the site names none that may be opened
};

// Nothing where the text is no manifest. `address` is where it was read.
std::optional<UpdateManifest> readUpdateManifest(const QUrl& address, const QByteArray& json);

// Checks whether a newer version is available, for commands 8 and 9. Main thread only.
class UpdateService final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this.
  UpdateService(PluginHost* host, ServiceNetwork* network);

  // Checks for the user, through the plug-in.
  void check();
  // Now and then once a day; reports only a newer version.
  void checkQuietly();
  // Ends a check: its result would be of another site.
  void abandon();

  // The newer version that has a page to get it from; empty while there is none.
  QString offeredVersion() const;
  // Opens that page in the user's browser.
  void openPage();

 Q_SIGNALS:
  void message(const QString& text);  // for the user
  void offerChanged();

 private:
  enum class Check { None, Asked, Quiet };

  void start(Check check, const Dictionary& content);
  void read(const HttpResponse& response);
  void setOffer(const std::optional<UpdateManifest>& manifest);
  void fail(const NetworkFailure& failure);

  PluginHost* m_host;
  ServiceNetwork* m_network;
  QTimer m_daily;
  Check m_check = Check::None;
  std::unique_ptr<HttpCall> m_fetch;
  std::optional<UpdateManifest> m_offer;
};
