#include "companion/exchange/MeetingMessage.h"

#include <QXmlStreamWriter>
#include <algorithm>

#include "companion/exchange/BoundedXml.h"

namespace {

constexpr int kMostMeetings = 100;
constexpr int kLongestSubject = 200;

const QString kSoap = QStringLiteral("http://schemas.xmlsoap.org/soap/envelope/");
const QString kMessages = QStringLiteral("http://schemas.microsoft.com/exchange/services/2006/messages");
const QString kTypes = QStringLiteral("http://schemas.microsoft.com/exchange/services/2006/types");

QString soapTime(const QDateTime& time) {
  return time.toUTC().toString(Qt::ISODate);
}

void writeShape(QXmlStreamWriter& writer) {
  writer.writeStartElement(kMessages, QStringLiteral("ItemShape"));
  writer.writeTextElement(kTypes, QStringLiteral("BaseShape"), QStringLiteral("IdOnly"));
  writer.writeStartElement(kTypes, QStringLiteral("AdditionalProperties"));
  for (const char* const field : {"item:Subject", "calendar:Start"}) {
    writer.writeEmptyElement(kTypes, QStringLiteral("FieldURI"));
    writer.writeAttribute(QStringLiteral("FieldURI"), QLatin1String(field));
  }
  writer.writeEndElement();
  writer.writeEndElement();
}

class MeetingReader final {
 public:
  void start(const QStringList& path) {
    if (endsWithNames(path, {u"CalendarItem"})) m_meeting = {};
  }

  void end(const QStringList& path, const QString& text) {
    if (endsWithNames(path, {u"ResponseCode"})) m_isAnswered = text == QLatin1String("NoError");
    if (endsWithNames(path, {u"CalendarItem", u"Subject"})) m_meeting.subject = text.left(kLongestSubject);
    if (endsWithNames(path, {u"CalendarItem", u"Start"})) {
      m_meeting.start = QDateTime::fromString(text, Qt::ISODate).toUTC();
    }
    const bool isMeeting = endsWithNames(path, {u"CalendarItem"}) && m_meeting.start.isValid();
    if (isMeeting && m_meetings.size() < kMostMeetings) m_meetings.append(m_meeting);
  }

  std::optional<QList<ExchangeMeeting>> meetings() {
    if (!m_isAnswered) return {};
    std::stable_sort(
        m_meetings.begin(), m_meetings.end(),
        [](const ExchangeMeeting& left, const ExchangeMeeting& right) { return left.start < right.start; });
    return m_meetings;
  }

 private:
  ExchangeMeeting m_meeting;  // the one that is being read
  QList<ExchangeMeeting> m_meetings;
  bool m_isAnswered = false;
};

}  // namespace

QByteArray meetingRequest(const QDateTime& from, const QDateTime& to) {
  QByteArray xml;
  QXmlStreamWriter writer(&xml);
  writer.writeStartDocument();
  writer.writeNamespace(kSoap, QStringLiteral("s"));
  writer.writeNamespace(kMessages, QStringLiteral("m"));
  writer.writeNamespace(kTypes, QStringLiteral("t"));
  writer.writeStartElement(kSoap, QStringLiteral("Envelope"));
  writer.writeStartElement(kSoap, QStringLiteral("Body"));
  writer.writeStartElement(kMessages, QStringLiteral("FindItem"));
  writer.writeAttribute(QStringLiteral("Traversal"), QStringLiteral("Shallow"));
  writeShape(writer);
  writer.writeEmptyElement(kMessages, QStringLiteral("CalendarView"));
  writer.writeAttribute(QStringLiteral("MaxEntriesReturned"), QString::number(kMostMeetings));
  writer.writeAttribute(QStringLiteral("StartDate"), soapTime(from));
  writer.writeAttribute(QStringLiteral("EndDate"), soapTime(to));
  writer.writeStartElement(kMessages, QStringLiteral("ParentFolderIds"));
  writer.writeEmptyElement(kTypes, QStringLiteral("DistinguishedFolderId"));
  writer.writeAttribute(QStringLiteral("Id"), QStringLiteral("calendar"));
  writer.writeEndDocument();
  return xml;
}

std::optional<QList<ExchangeMeeting>> readMeetings(const QByteArray& xml) {
  MeetingReader reader;
  const bool isRead = walkBoundedXml(
      xml, [&reader](const QStringList& path) { reader.start(path); },
      [&reader](const QStringList& path, const QString& text) { reader.end(path, text); });
  return isRead ? reader.meetings() : std::nullopt;
}
