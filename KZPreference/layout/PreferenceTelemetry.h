#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

class PluginCommandSender;

// Sends the user's choices in the panes to the host as telemetry records. Without a delegate, records are
// dropped. Main thread only.
class PreferenceTelemetry {
 public:
  static PreferenceTelemetry& sharedInstance();

  // Not owned; nullptr detaches.
  void setTelemetryDelegate(PluginCommandSender* preference) { m_preference = preference; }

  // A null name is left out with all that follows it; an invalid value is left out with its key.
  void writeFeatrueName(const QString& name);
  void writeFeatrueName(const QString& name, const QString& key, const QVariant& value);

  // The record around a values dictionary.
  static Dictionary recordWithValues(const Dictionary& values);

 private:
  PreferenceTelemetry() = default;

  PluginCommandSender* m_preference = nullptr;
};
