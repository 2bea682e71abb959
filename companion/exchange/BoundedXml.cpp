#include "companion/exchange/BoundedXml.h"

#include <QXmlStreamReader>

namespace {

constexpr qsizetype kLongestPath = 1000;

}  // namespace

bool walkBoundedXml(const QByteArray& xml, const XmlElementEnd& end) {
  QXmlStreamReader reader(xml);
  QString path;
  QString text;
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return false;
      case QXmlStreamReader::StartElement:
        path += QLatin1Char('/');
        path += reader.name();
        if (path.size() > kLongestPath) return false;
        text.clear();
        break;
      case QXmlStreamReader::Characters:
        text += reader.text();
        break;
      case QXmlStreamReader::EndElement:
        end(path, text.trimmed());
        path.truncate(path.lastIndexOf(QLatin1Char('/')));
        text.clear();
        break;
      default:
        break;
    }
  }
  return !reader.hasError();
}
