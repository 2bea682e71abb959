#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

// Finds known secrets inside of other texts, also percent-encoded, as base64, and as they stand in JSON and
// XML. One thread at a time.
class SecretFinder final {
 public:
  // Whether the text is a name that stands for a secret: "secret-1" and so on.
  static bool isName(const QString& text);

  // A secret of fewer than four characters would be found in texts that have nothing to do with it: it is
  // left alone, and so is one that is a name itself.
  void add(const QString& secret, const QString& name);

  // The names in the secrets' places. The names that stand in the text already stay.
  QString replaced(const QString& text) const;

  // Whether base64, which may be part of something longer, hides a secret.
  bool isInBase64(const QString& word) const;
  bool isIn(const QByteArray& bytes) const;

 private:
  struct Form {
    QString text;
    QString name;
  };

  // The longest that begins there: one secret may begin another.
  const Form* formAt(const QString& text, qsizetype place) const;

  QList<Form> m_forms;  // the longest first
  QSet<QChar> m_firstSigns;
  QList<QByteArray> m_secrets;
};
