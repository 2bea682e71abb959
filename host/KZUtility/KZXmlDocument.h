#pragma once

#include <QString>
#include <QStringList>

#include "host/KZFoundation/KZHostExport.h"

// Reads XML from outside in bounded time and memory: at most 1 MiB and 256 levels, with the root's
// start in the first 16 KiB. A document type is skipped, so there are no entities beyond the five of XML.
class KZ_HOST_EXPORT KZXmlDocument {
 public:
  // The string value of the first element found by `path` below the first child of the root named `first`.
  // Null when the text is not well-formed, is refused, or has no such element.
  static QString firstText(const QString& xml, const QString& first, const QStringList& path);
};
