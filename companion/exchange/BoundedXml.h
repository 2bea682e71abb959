#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

// The text of an element that ends, with the local names of its ancestors and its own, the root's first.
using XmlElementEnd = std::function<void(const QStringList& path, const QString& text)>;
using XmlElementStart = std::function<void(const QStringList& path)>;

// Walks through XML from outside: at most 64 levels, no document type, no entities beyond the five of XML
// itself. False when it is refused or not well-formed; what was told until then is to be thrown away.
[[nodiscard]] bool walkBoundedXml(const QByteArray& xml, const XmlElementStart& start,
                                  const XmlElementEnd& end);

// Whether the path ends with these names.
bool endsWithNames(const QStringList& path, std::initializer_list<QStringView> names);
