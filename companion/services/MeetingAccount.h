#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

// The account to list meetings of, from the settings store.
struct MeetingAccount {
  QString missing = {};      // why nothing is listed, in a sentence; empty where something is
  Dictionary exchange = {};  // the applied account
  bool isOnline = false;
  int days = 0;
};

MeetingAccount readMeetingAccount();

// What to do about an account whose saved password is refused.
QString refusedPasswordText();

// The minutes before its start in which a meeting is announced; 0: none is.
int announcedMinutes();
