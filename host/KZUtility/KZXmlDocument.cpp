#include "host/KZUtility/KZXmlDocument.h"

#include <QXmlStreamReader>

namespace {

constexpr qsizetype kLargestXml = 1024 * 1024;
constexpr qsizetype kDeepestXml = 256;
constexpr qsizetype kLongestXmlProlog = 16 * 1024;  // Qt's time for a document type grows with its square

// Without its declarations no entity is expanded. Null when the prolog is too long.
QString withoutDocumentType(const QString& xml) {
  QXmlStreamReader prolog(xml.left(kLongestXmlProlog));
  while (!prolog.atEnd()) {
    const QXmlStreamReader::TokenType token = prolog.readNext();
    if (token == QXmlStreamReader::DTD) return xml.sliced(prolog.characterOffset());
    if (token == QXmlStreamReader::StartElement) return xml;
  }
  return {};
}

}  // namespace

QString KZXmlDocument::firstText(const QString& xml, const QString& first, const QStringList& path) {
  if (xml.size() > kLargestXml || !xml.isValidUtf16()) return {};
  const QStringList wanted = QStringList{QString(), first} + path;
  enum class State { Seeking, Reading, Done } state = State::Seeking;
  QStringList position;  // names from the root to here; null for the root, and for names in a namespace
  int firsts = 0;        // children of the root with that name
  QString text = QStringLiteral("");

  QXmlStreamReader reader(withoutDocumentType(xml));
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return {};
      case QXmlStreamReader::StartElement: {
        if (position.size() >= kDeepestXml) return {};
        const bool isNamed = !position.isEmpty() && reader.namespaceUri().isEmpty();
        position.append(isNamed ? reader.name().toString() : QString());
        if (position == wanted.first(2)) ++firsts;
        if (state == State::Seeking && firsts == 1 && position == wanted) state = State::Reading;
        break;
      }
      case QXmlStreamReader::EndElement:
        if (state == State::Reading && position == wanted) state = State::Done;
        position.removeLast();
        break;
      case QXmlStreamReader::Characters:
        if (state == State::Reading) text += reader.text();
        break;
      default:
        break;
    }
  }
  // A document that is not well-formed to its end has no text.
  return state == State::Done && !reader.hasError() ? text : QString();
}
