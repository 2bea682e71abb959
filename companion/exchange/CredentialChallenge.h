#pragma once

#include <QByteArray>
#include <QString>

#include "companion/network/NetworkFailure.h"

// The purpose of the credential that an Exchange server requests. The challenge is posted in the process's
// notification centre, and the plug-in responds to it.
enum class CredentialPurpose { Discovery = 1, MeetingListing = 2 };

// The Authorization header, or why there is none.
struct Authorization {
  QByteArray header = {};
  FailureKind missing = FailureKind::NoCredential;
  QString username = {};
};

// Posts the challenge and returns the answer, which comes before the post returns. Main thread only.
Authorization askForCredential(CredentialPurpose purpose);

// Reports that the credential that was offered last was refused. The answer is not used.
void reportRefusedCredential(CredentialPurpose purpose);
