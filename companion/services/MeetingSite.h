#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

// What a meeting site says of itself.
struct MeetingSite {
  QString site;            // its host name
  QString name = {};       // null where it has none
  QString downloads = {};  // the address of its updates; null: its own
  std::optional<bool> isOutlookEnabled = {};
  QUrl meetingSettings = {};  // empty where there is no such page, or none that may be opened
  QUrl joinByNumber = {};
  Dictionary preference = {};  // the user's record, as the plug-in wants it
};

// Nothing where the text is no such record. What it says beyond its rights is left out.
std::optional<MeetingSite> readMeetingSite(const QString& site, const QByteArray& json);
