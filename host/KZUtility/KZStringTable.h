#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <optional>

#include "host/KZFoundation/KZHostExport.h"

// Texts for users in their language, from compiled tables in the resources: FOLDER/NAME_de.qm for German,
// with NAME as the context. English needs no table, since the English text is the key. Main thread only.
class KZ_HOST_EXPORT KZStringTable {
 public:
  KZStringTable(const QString& folder, const QString& name);

  // The text in language(); the English text where the table lacks it.
  QString text(const char* english);

  // The language of the texts, as in the tables' names: the first one of the default locale's that has a
  // table, or "en". Follows QLocale::setDefault.
  QString language();

  // The first of the languages in QLocale::uiLanguages' spelling that is available; "en" always is. Chinese
  // is told by its script: "zh_CN" serves all places that write simplified characters, and no others.
  static QString choose(const QStringList& wanted, const QStringList& available);

 private:
  void follow();

  QString m_folder;
  QString m_name;
  std::optional<QLocale> m_locale;
  QString m_language;
  QTranslator m_translator;
};
