#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// Called at the end of each element, with its text. `path` has its local name and those of its ancestors, the
// root's first: "/Autodiscover/Response/Account".
using XmlElementEnd = std::function<void(const QString& path, const QString& text)>;

// Reads XML from outside: at most 1000 characters of a path, no document type, no entities beyond the five of
// XML itself. False when it is refused or not well-formed; discard what was reported until then.
[[nodiscard]] bool walkBoundedXml(const QByteArray& xml, const XmlElementEnd& end);
