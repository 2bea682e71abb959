#include "companion/exchange/MeetingMessage.h"

#include <QXmlStreamWriter>
#include <algorithm>
#include <utility>

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

// Collects the meetings of a response.
class MeetingReader final {
 public:
  void read(const QString& path, const QString& text) {
    if (path.endsWith(QLatin1String("/ResponseCode"))) m_isSuccess = text == QLatin1String("NoError");
    if (path.endsWith(QLatin1String("/CalendarItem/Subject"))) m_meeting.subject = text.left(kLongestSubject);
    if (path.endsWith(QLatin1String("/CalendarItem/Start"))) {
      m_meeting.start = QDateTime::fromString(text, Qt::ISODate).toUTC();
    }
    if (!path.endsWith(QLatin1String("/CalendarItem"))) return;
    const ExchangeMeeting meeting = std::exchange(m_meeting, {});
    if (meeting.start.isValid() && m_meetings.size() < kMostMeetings) m_meetings.append(meeting);
  }

  std::optional<QList<ExchangeMeeting>> meetings() {
    if (!m_isSuccess) return {};
    std::stable_sort(
        m_meetings.begin(), m_meetings.end(),
        [](const ExchangeMeeting& left, const ExchangeMeeting& right) { return left.start < right.start; });
    return m_meetings;
  }

 private:
  ExchangeMeeting m_meeting;  // the one that is being read
  QList<ExchangeMeeting> m_meetings;
  bool m_isSuccess = false;
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
  const bool isRead =
      walkBoundedXml(xml, [&reader](const QString& path, const QString& text) { reader.read(path, text); });
  return isRead ? reader.meetings() : std::nullopt;
}
