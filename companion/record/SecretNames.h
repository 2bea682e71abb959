#pragma once

#include <QHash>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QVariant>

// Replaces every secret by a name: "secret-1" and so on. A secret that is such a name keeps it, so that a
// record of a played record has the same names. One thread at a time.
class SecretNames final {
 public:
  // The secret's name; from then on the secret is also replaced inside other texts. An empty text is no
  // secret.
  QString nameOf(const QString& secret);

  // The value of a line's member without secrets: those that kzReplaceSecrets finds, and known ones. The
  // names of steps, controls and items are never replaced.
  QJsonValue withoutSecrets(const QString& member, const QJsonValue& value);

 private:
  QVariant named(const QVariant& secret);
  QVariant namedData(const QString& base64);
  QString withoutKnown(const QString& text) const;

  QHash<QString, QString> m_names;             // by secret
  QHash<quint64, QList<qsizetype>> m_lengths;  // of the secrets that begin alike, longest first
  int m_lastNumber = 0;
};
