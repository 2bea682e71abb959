#include "companion/services/CompanionServices.h"

CompanionServices::CompanionServices(PluginHost* host, const Settings& settings)
    : m_network(settings.reach, settings.exchange),
      m_site(host, &m_network, settings.record),
      m_updates(host, &m_network),
      m_telemetry(host, settings.dataFolder),
      m_general(host, settings.autostart),
      m_meetings(host, &m_network),
      m_changes(host) {
  connect(&m_site, &SiteService::message, this, &CompanionServices::message);
  connect(&m_updates, &UpdateService::message, this, &CompanionServices::message);
  connect(&m_telemetry, &TelemetryService::message, this, &CompanionServices::message);
  connect(&m_general, &GeneralSettings::message, this, &CompanionServices::message);
  connect(&m_changes, &ChangeNotices::message, this, &CompanionServices::message);
  connect(&m_site, &SiteService::changed, &m_updates, &UpdateService::abandon);
  connect(&m_site, &SiteService::refreshed, &m_updates, &UpdateService::checkQuietly);
}

void CompanionServices::start() {
  m_general.apply();
  m_site.refresh();
}
