#include "host/KZUtility/KZStringTable.h"

#include <QDir>

namespace {

const QString kEnglish = QStringLiteral("en");

QString tableLanguage(const QString& wanted) {
  const QLocale locale(wanted);
  if (locale.language() != QLocale::Chinese) return QLocale::languageToCode(locale.language());
  return locale.script() == QLocale::SimplifiedHanScript ? QStringLiteral("zh_CN") : QString();
}

}  // namespace

KZStringTable::KZStringTable(const QString& folder, const QString& name) : m_folder(folder), m_name(name) {}

QString KZStringTable::text(const char* english) {
  follow();
  const QString text = m_translator.translate(m_name.toUtf8().constData(), english);
  return text.isEmpty() ? QString::fromUtf8(english) : text;
}

QString KZStringTable::language() {
  follow();
  return m_language;
}

QString KZStringTable::choose(const QStringList& wanted, const QStringList& available) {
  for (const QString& name : wanted) {
    const QString language = tableLanguage(name);
    if (language == kEnglish || available.contains(language)) return language;
  }
  return kEnglish;
}

void KZStringTable::follow() {
  const QLocale locale;
  if (locale == m_locale) return;
  m_locale = locale;
  QStringList available;
  for (const QString& file : QDir(m_folder).entryList({m_name + "_*.qm"}))
    available.append(file.sliced(m_name.size() + 1).chopped(3));
  m_language = choose(locale.uiLanguages(), available);
  // Without a file, as for English, the translator is empty.
  (void)m_translator.load(m_name + QLatin1Char('_') + m_language, m_folder);
}
