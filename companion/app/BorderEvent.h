#pragma once

#include <QString>
#include <QTime>

#include "companion/runtime/Crossing.h"

// One thing that crossed the border between the host and its plug-in, as text that is fit to show: without
// secrets and of bounded length.
struct BorderEvent {
  using Kind = Crossing::Kind;

  Kind kind = Kind::Trace;
  QString name;
  QString content;
  QTime time = QTime::currentTime();

  static BorderEvent of(const Crossing& crossing);
};

QString kindText(BorderEvent::Kind kind);

// Compact JSON without secrets; "none" where there is no content.
QString shownContent(const Content& content);
QString shortened(const QString& text);
