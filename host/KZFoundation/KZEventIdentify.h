#pragma once

#include <QtGlobal>

// Names an event of one plug-in: which plug-in, and which of its commands or notifications.
struct KZEventIdentify {
  quint32 m_componentNameIndex = 0;
  quint32 m_componentEventIndex = 0;

  static KZEventIdentify monitorwith(quint32 nameIndex, quint64 event) {
    return {.m_componentNameIndex = nameIndex, .m_componentEventIndex = static_cast<quint32>(event)};
  }
};
