#pragma once

#include <QHash>
#include <QString>

#include "companion/record/SecretFinder.h"
#include "companion/runtime/PluginEvent.h"

// Gives every secret a name of its own, "secret-1" and so on, and puts the names in the secrets' places. A
// text that is such a name already stands for itself, so that a record of a record has the same names. One
// thread at a time.
class SecretVault final {
 public:
  // The secret's name; from then on the secret is recognised wherever it stands. An empty text is none.
  QString nameOf(const QString& secret);

  // Without the secrets: what stands under a secret's key, and what is known as one. What holds none keeps
  // its identity.
  Content withoutSecrets(const Content& content);
  QVariant withoutSecrets(const QVariant& value);
  QString withoutSecrets(const QString& text);
  // Only without what is known as a secret, whatever its key.
  QVariant withoutKnown(const QVariant& value);
  // Also without what makes an address of a sign-in another one each time.
  QString addressWithoutSecrets(const QString& address);

 private:
  QByteArray nameOfBytes(const QByteArray& secret);
  QVariant nameUnderKey(const QVariant& secret);
  QString nameInCredential(const QString& text);
  QString withoutKnown(const QString& text);
  QString itemsWithoutSecrets(const QString& items);

  QHash<QString, QString> m_names;  // by secret
  SecretFinder m_finder;
  int m_lastNumber = 0;
};
