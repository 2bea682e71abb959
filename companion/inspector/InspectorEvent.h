#pragma once

#include <QByteArray>
#include <QString>

#include "companion/runtime/PluginEvent.h"

// One event between the host and its plug-in, as text that is fit to show: without secrets and of bounded
// length.
struct InspectorEvent {
  // What a reader shows and hides together.
  enum class Group { Commands, Notifications, SignIn, Warnings, Store, Telemetry, Traces };
  // Compact JSON ("none" where there is no content), text, or the lines of a difference, which begin with "-"
  // or "+".
  enum class Form { Json, Text, Difference };
  static constexpr qsizetype mostBytes = 64 * 1024;  // of the content

  static InspectorEvent of(const PluginEvent& event);

  qsizetype bytes() const;
  QString title() const;         // number and name
  QString kindTitle() const;     // with a trace's level
  QString wholeContent() const;  // JSON in lines, unless that makes it much longer
  // A JSON object with "time" (ISO 8601, UTC), "kind", "name", and what applies of "number", "level",
  // "content" (JSON), "difference" (lines) and "text".
  QByteArray exportedLine() const;

  Group group = Group::Traces;
  QString kind = QStringLiteral("Trace");
  bool isFromPlugin = false;
  KZTraceLevel level = KZTraceLevel::Info;  // of a trace
  quint64 number = 0;                       // of a command or notification
  qint64 time = 0;                          // milliseconds since 1970
  QString name = {};
  Form form = Form::Text;
  QString content = {};
};
