#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

class PluginCommandSender;

// Turns the user's choices in the panes into telemetry records for the host. Before a delegate is set,
// records go nowhere. Main thread only.
class PreferenceTelemetry {
 public:
  static PreferenceTelemetry& sharedInstance();

  // Not owned; nullptr detaches.
  void setTelemetryDelegate(PluginCommandSender* preference) { m_preference = preference; }

  // A null name leaves the name out and ends the record there; a missing value leaves its key out.
  void writeFeatrueName(const QString& name);
  void writeFeatrueName(const QString& name, const QString& key, const QVariant& value);

  // The record around a values dictionary.
  static Dictionary recordWithValues(const Dictionary& values);

 private:
  PreferenceTelemetry() = default;

  PluginCommandSender* m_preference = nullptr;
};
