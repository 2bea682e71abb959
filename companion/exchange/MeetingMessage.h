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

// Asks the web service for the meetings of that time, the next first.
QByteArray meetingRequest(const QDateTime& from, const QDateTime& to);

// At most 100 meetings, by their start; those without a start are left out. Nothing when the answer is no
// answer of the web service, or says that something failed.
std::optional<QList<ExchangeMeeting>> readMeetings(const QByteArray& xml);
