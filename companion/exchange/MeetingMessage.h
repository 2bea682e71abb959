#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

struct ExchangeMeeting {
  QString subject;
  QDateTime start;  // in UTC
};

// Requests the meetings between two times from the web service, the next first.
QByteArray meetingRequest(const QDateTime& from, const QDateTime& to);

// At most 100 meetings, by their start; those without a start are left out. Nothing for anything but a
// successful response of the web service.
std::optional<QList<ExchangeMeeting>> readMeetings(const QByteArray& xml);
