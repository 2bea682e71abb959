#pragma once

#include <QByteArray>
#include <QString>

// What the credential is for that an Exchange server asks for. The challenge goes through the process's
// notification centre; the plug-in answers it.
enum class CredentialPurpose { Discovery = 1, MeetingListing = 2 };

struct OfferedCredential {
  QString username;
  QString password;

  bool isEmpty() const { return username.isEmpty() || password.isEmpty(); }
};

// Posts the challenge and returns the answer, which comes before the post returns; empty without an answer.
// Main thread only.
OfferedCredential askForCredential(CredentialPurpose purpose);

// Reports that the credential that was offered last was refused. The answer is not used.
void reportRefusedCredential(CredentialPurpose purpose);

// The Authorization header; empty where the user name cannot be sent in it.
QByteArray basicAuthorization(const OfferedCredential& credential);
