#pragma once

#include <QtGlobal>
#include <span>

#include "host/KZFoundation/KZHostExport.h"

// One numbering serves both directions; a command that the plug-in only sends is ignored when received.
enum class KZCommand : quint64 {
  KZCmdInitGuestPreference = 1,
  KZCmdShowPreference = 2,
  KZCmdDestroyPreference = 3,
  KZCmdUpdateGeneralSetting = 4,
  KZCmdCheckForUpdates = 8,
  KZCmdCheckForUpdatesAutomatically = 9,
  KZCmdJoinByNumber = 10,
  KZCmdRequireLink = 11,
  KZCmdPreferenceChanged = 13,
  KZCmdChangeSite = 14,
  KZCmdApplyOutlookAccount = 15,
  KZCmdCancelApplyOutlookAccount = 16,
  KZCmdRequireChangeCalendarIntegration = 17,
  KZCmdCalendarIntegrationSourceChanged = 18,
  KZCmdSetVideoDevicePrefs = 19,
  KZCmdProximity = 20,
  KZCmdListExchMeetingAuthFailure = 21,
  KZCmdExchDiscoverAuthFailure = 22,
  KZCmdWriteTelemetry = 23,
  KZCmdSinkOutlookAccountCredential = 27,
  KZCmdGetExchOnlineToken = 28,
  KZCmdExchOnlineTokenGot = 29,
};

enum class KZNotify : quint32 {
  KZNotifyGetPreferenceDone = 7,
  KZNotifyCheckForUpdatesDone = 8,
  KZNotifyRefreshPreferenceDone = 12,
  KZNotifyResolveExchangeDone = 15,
  KZNotifyO365LoginRequesting = 25,
  KZNotifyExchangeResolvingNeedCredential = 26,
};

enum class KZDirection { ToPlugin, ToHost };

// Every command and notification between host and plug-in, with its printed name and its row in the host
// guide's tables. A command that is sent both ways has two rows.
struct KZCommandRow {
  KZCommand number;
  const char* name;
  KZDirection direction;
  const char* meaning;
  const char* content;
};

struct KZNotifyRow {
  KZNotify index;
  const char* name;
  const char* meaning;
  const char* content;
};

KZ_HOST_EXPORT std::span<const KZCommandRow> kzCommandTable();
KZ_HOST_EXPORT std::span<const KZNotifyRow> kzNotifyTable();

// The command's name; "" for an unknown number.
KZ_HOST_EXPORT const char* kzCommandName(quint64 number);
