#include "companion/exchange/BoundedXml.h"

#include <QXmlStreamReader>
#include <algorithm>

namespace {

constexpr qsizetype kDeepestLevel = 64;

}  // namespace

bool walkBoundedXml(const QByteArray& xml, const XmlElementStart& start, const XmlElementEnd& end) {
  QXmlStreamReader reader(xml);
  QStringList path;
  QString text;
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return false;
      case QXmlStreamReader::StartElement:
        if (path.size() >= kDeepestLevel) return false;
        path.append(reader.name().toString());
        text.clear();
        start(path);
        break;
      case QXmlStreamReader::Characters:
        text += reader.text();
        break;
      case QXmlStreamReader::EndElement:
        end(path, text.trimmed());
        path.removeLast();
        text.clear();
        break;
      default:
        break;
    }
  }
  return !reader.hasError();
}

bool endsWithNames(const QStringList& path, std::initializer_list<QStringView> names) {
  const auto size = static_cast<qsizetype>(names.size());
  if (path.size() < size) return false;
  return std::equal(names.begin(), names.end(), path.end() - size);
}
