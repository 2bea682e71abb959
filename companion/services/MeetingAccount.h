#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

// Whose meetings are to be listed, as the settings store says.
struct MeetingAccount {
  QString missing = {};      // a sentence that says why nothing is listed; empty where something is
  Dictionary exchange = {};  // the applied account
  bool isOnline = false;
  int days = 0;
};

MeetingAccount readMeetingAccount();

// What to do about an account whose saved password is refused.
QString refusedPasswordText();

// The minutes before its start in which a meeting is announced; 0: none is.
int announcedMinutes();
