#pragma once

#include <QByteArray>
#include <QString>

// The challenge that goes through the process when an Exchange server asks who is there.
enum class CredentialPurpose { Discovery = 1, MeetingListing = 2 };

struct OfferedCredential {
  QString username;
  QString password;

  bool isEmpty() const { return username.isEmpty() || password.isEmpty(); }
};

// Posts the challenge and returns what was answered before the post came back; empty when nobody answered.
// Main thread only.
OfferedCredential askForCredential(CredentialPurpose purpose);

// Says that what was offered last was refused. Whatever is answered is not used.
void reportRefusedCredential(CredentialPurpose purpose);

// For the Authorization header; empty where the user name cannot be sent in it.
QByteArray basicAuthorization(const OfferedCredential& credential);
