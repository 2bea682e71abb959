#pragma once

#include <QObject>
#include <QString>

#include "companion/services/ChangeNotices.h"
#include "companion/services/GeneralSettings.h"
#include "companion/services/NextMeetings.h"
#include "companion/services/ServiceNetwork.h"
#include "companion/services/SiteService.h"
#include "companion/services/TelemetryService.h"
#include "companion/services/UpdateService.h"

// Everything that the companion does for the plug-in, except finding an Exchange account. Main thread only.
class CompanionServices final : public QObject {
  Q_OBJECT

 public:
  struct Settings {
    NetworkReach reach = NetworkReach::Sandbox;
    ExchangeConfiguration exchange;  // for servers outside the sandbox
    Dictionary record;               // the user's, while no site has given one
    QString dataFolder;              // for telemetry
    AutostartEntry autostart;
  };

  CompanionServices(PluginHost* host, const Settings& settings);  // the host must outlive this

  // After the plug-in is loaded.
  void start();

  ServiceNetwork& network() { return m_network; }
  SiteService& site() { return m_site; }
  UpdateService& updates() { return m_updates; }
  TelemetryService& telemetry() { return m_telemetry; }
  NextMeetings& meetings() { return m_meetings; }

 Q_SIGNALS:
  void message(const QString& text);  // for the user

 private:
  ServiceNetwork m_network;
  SiteService m_site;
  UpdateService m_updates;
  TelemetryService m_telemetry;
  GeneralSettings m_general;
  NextMeetings m_meetings;
  ChangeNotices m_changes;
};
