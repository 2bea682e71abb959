#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

// What a meeting site publishes about itself.
struct MeetingSite {
  QString site;            // its host name
  QString name = {};       // null where it has none
  QString downloads = {};  // the address of its updates; null: its own
  std::optional<bool> isOutlookEnabled = {};
  QUrl meetingSettings = {};  // empty where there is no such page, or none that may be opened
  QUrl joinByNumber = {};
  Dictionary preference = {};  // the user's record, as the plug-in wants it
};

// Nothing where the text is no such description. Addresses that the site may not name are left out.
std::optional<MeetingSite> readMeetingSite(const QString& site, const QByteArray& json);
