#pragma once

#include <QtGlobal>

// This process's memory as the kernel counts it, in KiB; 0 where it does not report it.
struct MemoryUse {
  qint64 resident = 0;
  qint64 mostResident = 0;
  qint64 proportional = 0;
  qint64 dirty = 0;

  static MemoryUse now();
};
