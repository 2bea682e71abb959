#include "companion/exchange/ExchangeMeetings.h"

#include <algorithm>
#include <utility>

#include "companion/exchange/BoundedXml.h"
#include "companion/exchange/CredentialChallenge.h"
#include "companion/network/WebAddress.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

constexpr int kMostMeetings = 100;
constexpr int kLongestSubject = 200;

QByteArray meetingRequest(const QDateTime& from, const QDateTime& to) {
  return QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<s:Envelope xmlns:s="http://schemas.xmlsoap.org/soap/envelope/"
    xmlns:m="http://schemas.microsoft.com/exchange/services/2006/messages"
    xmlns:t="http://schemas.microsoft.com/exchange/services/2006/types">
  <s:Body>
    <m:FindItem Traversal="Shallow">
      <m:ItemShape>
        <t:BaseShape>IdOnly</t:BaseShape>
        <t:AdditionalProperties>
          <t:FieldURI FieldURI="item:Subject"/>
          <t:FieldURI FieldURI="calendar:Start"/>
        </t:AdditionalProperties>
      </m:ItemShape>
      <m:CalendarView MaxEntriesReturned="%1" StartDate="%2" EndDate="%3"/>
      <m:ParentFolderIds><t:DistinguishedFolderId Id="calendar"/></m:ParentFolderIds>
    </m:FindItem>
  </s:Body>
</s:Envelope>
)")
      .arg(QString::number(kMostMeetings), from.toString(Qt::ISODate), to.toString(Qt::ISODate))
      .toUtf8();
}

}  // namespace

QUrl meetingAddress(const Dictionary& exchange) {
  for (const QString& key :
       {kKZCalendarIntegrationExchangeExternalUrl, kKZCalendarIntegrationExchangeInternalUrl}) {
    const QUrl address(textValue(exchange, key), QUrl::StrictMode);
    if (isSafeAddress(address)) return address;
  }
  return {};
}

std::optional<QList<ExchangeMeeting>> readMeetings(const QByteArray& xml) {
  QList<ExchangeMeeting> meetings;
  ExchangeMeeting current;
  bool isSuccess = false;
  const bool isRead = walkBoundedXml(xml, [&](const QString& path, const QString& text) {
    if (path.endsWith(QLatin1String("/ResponseCode"))) isSuccess = text == QLatin1String("NoError");
    if (path.endsWith(QLatin1String("/CalendarItem/Subject"))) current.subject = text.left(kLongestSubject);
    if (path.endsWith(QLatin1String("/CalendarItem/Start"))) {
      current.start = QDateTime::fromString(text, Qt::ISODate).toUTC();
    }
    if (!path.endsWith(QLatin1String("/CalendarItem"))) return;
    const ExchangeMeeting meeting = std::exchange(current, {});
    if (meeting.start.isValid() && meetings.size() < kMostMeetings) meetings.append(meeting);
  });
  if (!isRead || !isSuccess) return {};
  std::stable_sort(
      meetings.begin(), meetings.end(),
      [](const ExchangeMeeting& left, const ExchangeMeeting& right) { return left.start < right.start; });
  return meetings;
}

void ExchangeMeetings::list(const Dictionary& exchange, const QString& token, int days) {
  m_address = meetingAddress(exchange);
  m_days = days;
  m_isOnline = isSet(exchange, kKZCalendarIntegrationIsOnline);
  if (m_address.isEmpty()) return fail(FailureKind::Unsafe);
  if (!m_isOnline) return request({});
  token.isEmpty() ? fail(FailureKind::TokenRefused) : request("Bearer " + token.toUtf8());
}

void ExchangeMeetings::request(const QByteArray& authorization) {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  m_call = std::make_unique<HttpCall>(m_configuration.network,
                                      HttpRequest{.address = m_address,
                                                  .body = meetingRequest(now, now.addDays(m_days)),
                                                  .authorization = authorization},
                                      [this, isAuthorized = !authorization.isEmpty()](
                                          const HttpResponse& response) { read(response, isAuthorized); });
}

void ExchangeMeetings::read(const HttpResponse& response, bool isAuthorized) {
  if (response.failure) return m_done({}, response.failure.message());
  if (response.isChallenge) return readChallenge(response, isAuthorized);
  const auto meetings = readMeetings(response.body);
  meetings ? m_done(*meetings, QString()) : fail(FailureKind::BadResponse);
}

void ExchangeMeetings::readChallenge(const HttpResponse& response, bool isAuthorized) {
  if (m_isOnline) return fail(FailureKind::TokenRefused);
  if (isAuthorized) {
    fail(FailureKind::CredentialRefused);
    return reportRefusedCredential(CredentialPurpose::MeetingListing);
  }
  if (!response.challengeSchemes.contains("basic")) return fail(FailureKind::UnsupportedSignIn);
  const Authorization saved = askForCredential(CredentialPurpose::MeetingListing);
  saved.header.isEmpty() ? fail(saved.missing) : request(saved.header);
}

void ExchangeMeetings::fail(FailureKind kind) {
  m_done({}, NetworkFailure{.kind = kind, .host = m_address.host()}.message());
}
