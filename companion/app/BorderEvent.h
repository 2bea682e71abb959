#pragma once

#include <QString>
#include <QTime>

#include "host/KZFoundation/Dictionary.h"

// One thing that crossed the border between the host and its plug-in, as text that is fit to show: without
// secrets and of bounded length.
struct BorderEvent {
  enum class Kind { CommandToPlugin, CommandToHost, Notification, Posted, Address, Warning, Trace };

  Kind kind = Kind::Trace;
  QString name;
  QString content;
  QTime time = QTime::currentTime();

  static BorderEvent command(Kind kind, quint64 number, const Content& content);
  static BorderEvent notification(quint32 index, const Content& content);
};

QString kindText(BorderEvent::Kind kind);

// Compact JSON without secrets; "none" where there is no content.
QString shownContent(const Content& content);
QString shortened(const QString& text);
