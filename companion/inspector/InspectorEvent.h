#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include "companion/runtime/PluginEvent.h"

// One thing that happened between the host and its plug-in, as text that is fit to show: without secrets and
// of bounded length.
struct InspectorEvent {
  enum class Kind {
    CommandToPlugin,
    CommandToHost,
    Notification,
    PersonalRoom,
    Challenge,
    Answer,
    Address,
    Warning,
    Telemetry,
    StoreWrite,
    Keychain,
    Trace,
  };
  static constexpr qsizetype mostBytes = 64 * 1024;  // of the content

  Kind kind = Kind::Trace;
  KZTraceLevel level = KZTraceLevel::Info;  // of a trace
  quint64 number = 0;                       // of a command or notification
  qint64 time = 0;                          // milliseconds since 1970
  quint64 serial = 0;                       // the log's
  QString name = {};
  // Compact JSON ("none" where there is no content), the lines of a difference, or text.
  QString content = {};

  static InspectorEvent of(const PluginEvent& event);

  qsizetype bytes() const;
  QString title() const;           // number and name
  QString kindTitle() const;       // with a trace's level
  QString wholeContent() const;    // JSON in lines, unless it is nested deeply
  QStringList difference() const;  // a store write's lines; they begin with "-" or "+"
};

QString kindText(InspectorEvent::Kind kind);
