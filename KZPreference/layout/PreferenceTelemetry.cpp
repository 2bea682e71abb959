#include "KZPreference/layout/PreferenceTelemetry.h"

#include "KZPreference/contract/PluginCommandSender.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"

PreferenceTelemetry& PreferenceTelemetry::sharedInstance() {
  static PreferenceTelemetry telemetry;
  return telemetry;
}

void PreferenceTelemetry::writeFeatrueName(const QString& name) {
  writeFeatrueName(name, QString(), QVariant());
}

void PreferenceTelemetry::writeFeatrueName(const QString& name, const QString& key, const QVariant& value) {
  if (!m_preference) return;
  const Dictionary values = dictionaryWithPairs({{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP},
                                                 {TelemetryKey_FeatureName, name},
                                                 {key, value}});
  m_preference->sendPluginCommand(KZCommand::KZCmdWriteTelemetry, recordWithValues(values));
}

Dictionary PreferenceTelemetry::recordWithValues(const Dictionary& values) {
  return {{TelemetryKey_MetricName, TelemetryValue_MetricName_KZMetric}, {TelemetryKey_Values, values}};
}
