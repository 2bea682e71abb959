#pragma once

#include <QByteArray>
#include <QString>

#include "companion/runtime/PluginEvent.h"

// One event between the host and its plug-in, as text that is fit to show: without secrets and of bounded
// length.
struct InspectorEvent {
  // The groups of events that a user shows and hides.
  enum class Group { Commands, Notifications, SignIn, Warnings, Store, Telemetry, Traces };
  static constexpr qsizetype mostBytes = 64 * 1024;  // of the content

  static InspectorEvent of(const PluginEvent& event);

  qsizetype bytes() const;
  QString wholeContent() const;  // JSON in lines, unless that makes it much longer
  // A JSON object with "time" (ISO 8601, UTC), "kind", "name" and "content", which is an object or a text.
  QByteArray exportedLine() const;

  Group group;
  QString kind;     // with the level of a trace that is a warning or an error
  QString title;    // number and name
  QString content;  // compact JSON, a text, or the lines of a difference: "- path: old" and "+ path: new"
  bool isFromPlugin = false;
  bool isError = false;
  qint64 time = 0;  // milliseconds since 1970
};
