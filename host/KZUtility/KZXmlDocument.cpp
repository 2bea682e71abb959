#include "host/KZUtility/KZXmlDocument.h"

#include <QXmlStreamReader>

namespace {

constexpr qsizetype kLargestXml = 1024 * 1024;
constexpr qsizetype kDeepestXml = 256;

// Follows the path while the document goes by.
class PathText final {
 public:
  explicit PathText(const QStringList& path) : m_path(path) {}

  void startElement(const QXmlStreamReader& xml) {
    ++m_depth;
    if (m_state != State::Seeking || m_depth != m_matched) return;
    const bool isStep = xml.namespaceUri().isEmpty() && xml.name() == m_path.at(m_matched);
    if (isStep) enterStep();
  }

  void endElement() {
    if (m_depth == m_matched - 1) leaveStep();
    --m_depth;
  }

  void characters(QStringView text) {
    if (m_state == State::Reading) m_text += text;
  }

  QString text() const { return m_state == State::Done ? m_text : QString(); }

 private:
  enum class State { Seeking, Reading, Done };

  void enterStep() {
    if (++m_matched < m_path.size()) return;
    m_state = State::Reading;
    m_text = QLatin1String("");
  }

  void leaveStep() {
    if (m_state == State::Reading) m_state = State::Done;
    if (m_state == State::Done) return;
    // Only the first child of the root counts, so that once it has gone nothing can be found any more.
    if (m_matched == 2) m_state = State::Done;
    --m_matched;
  }

  const QStringList m_path;
  qsizetype m_depth = -1;
  qsizetype m_matched = 1;
  State m_state = State::Seeking;
  QString m_text;
};

}  // namespace

QString KZXmlDocument::firstText(const QString& xml, const QString& first, const QStringList& path) {
  if (xml.size() > kLargestXml || !xml.isValidUtf16()) return {};
  QXmlStreamReader reader(xml);
  // The root may have any name.
  PathText found(QStringList{QString(), first} + path);
  qsizetype depth = 0;
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return {};
      case QXmlStreamReader::StartElement:
        if (++depth > kDeepestXml) return {};
        found.startElement(reader);
        break;
      case QXmlStreamReader::EndElement:
        --depth;
        found.endElement();
        break;
      case QXmlStreamReader::Characters:
        found.characters(reader.text());
        break;
      default:
        break;
    }
  }
  return reader.hasError() ? QString() : found.text();
}
