#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZTrace.h"

// One thing that crossed the border between the host and its plug-in, as it was: secrets included.
struct Crossing {
  enum class Kind {
    CommandToPlugin,
    CommandToHost,
    Notification,
    PersonalRoom,  // `content` holds "join" and "sip", each when given
    Challenge,     // posted process-wide by a host that wants a credential
    Answer,        // posted process-wide to give one
    Address,       // the plug-in asked to open `text`
    Warning,       // the warning window: title and text
    Trace,         // method and text
  };

  Kind kind = Kind::Trace;
  quint64 number = 0;                       // of a command or notification
  QString name = {};                        // of what was posted; a warning's title; a trace's method
  Content content = {};                     // of a command or notification; what was posted
  QString text = {};                        // an address, a warning's or a trace's text
  KZTraceLevel level = KZTraceLevel::Info;  // of a trace
  const void* poster = nullptr;             // of what was posted; only to be compared
};
