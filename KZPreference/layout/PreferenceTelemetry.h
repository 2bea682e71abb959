#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

class PluginCommandSender;

// Sends the user's choices in the panes to the host as telemetry records. Without a delegate they are
// dropped. Main thread only.
class PreferenceTelemetry {
 public:
  static PreferenceTelemetry& sharedInstance();

  // Not owned; nullptr detaches.
  void setTelemetryDelegate(PluginCommandSender* preference) { m_preference = preference; }

  // A null name ends the record before the name; an invalid value leaves its key out.
  void writeFeatrueName(const QString& name);
  void writeFeatrueName(const QString& name, const QString& key, const QVariant& value);

  // The record around a values dictionary.
  static Dictionary recordWithValues(const Dictionary& values);

 private:
  PreferenceTelemetry() = default;

  PluginCommandSender* m_preference = nullptr;
};
