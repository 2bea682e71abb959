#include "companion/services/CompanionServices.h"

CompanionServices::CompanionServices(PluginHost* host, const Settings& settings)
    : m_network(settings.reach, settings.exchange.network),
      m_site(host, &m_network, settings.record),
      m_updates(host, &m_network, settings.packageFolder),
      m_telemetry(host, TelemetryFile(settings.dataFolder)),
      m_general(host, settings.autostart),
      m_meetings(host, &m_network, settings.exchange),
      m_changes(host) {
  connect(&m_site, &SiteService::noticed, this, &CompanionServices::noticed);
  connect(&m_updates, &UpdateService::noticed, this, &CompanionServices::noticed);
  connect(&m_telemetry, &TelemetryService::noticed, this, &CompanionServices::noticed);
  connect(&m_general, &GeneralSettings::noticed, this, &CompanionServices::noticed);
  connect(&m_changes, &ChangeNotices::noticed, this, &CompanionServices::noticed);
  connect(&m_site, &SiteService::changed, &m_updates, &UpdateService::abandon);
  connect(&m_site, &SiteService::refreshed, &m_updates, &UpdateService::checkQuietly);
}

void CompanionServices::start() {
  m_general.apply();
  m_site.refresh();
}

void CompanionServices::useSandbox(const QJsonObject& site, const QJsonObject& exchange) {
  m_meetings.useSandbox(exchange);
  m_network.useSandbox(site);
}

void CompanionServices::loseSandbox() {
  m_meetings.useSandbox({});
  m_network.loseSandbox();
}
