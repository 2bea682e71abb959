#include "host/KZUtility/KZStringTable.h"

#include <gtest/gtest.h>

namespace {

// As QLocale lists the languages of the LANGUAGE variable, all their spellings one after the other.
QStringList languagesOf(const QString& variable) {
  QStringList all;
  for (const QString& name : variable.split(':')) {
    all.append(QString(name).replace('_', '-'));
    all.append(QLocale(name).uiLanguages());
  }
  return all;
}

}  // namespace

TEST(KZStringTable, TakesTheFirstLanguageThatHasATable) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "en"},         {"C", "en"},
      {"en_US:de", "en"}, {"en_US:en:fr", "en"},
      {"de:en", "de"},    {"de_AT", "de"},
      {"xx:yy:de", "de"}, {"pt:it", "en"},
      {"fr_CA:de", "fr"}, {"ja", "ja"},
      {"zh_CN", "zh_CN"}, {"zh", "zh_CN"},
      {"zh_SG", "zh_CN"}, {"zh_Hans_HK", "zh_CN"},
      {"zh_TW:fr", "fr"}, {"zh_Hant:fr", "fr"},
      {"zh_HK", "en"},    {"zh_TW:zh_CN:fr", "zh_CN"},
  };
  const QStringList tables = {"de", "es", "fr", "ja", "zh_CN"};
  for (const auto& [variable, language] : rows)
    EXPECT_EQ(KZStringTable::choose(languagesOf(variable), tables), language) << variable;
}

TEST(KZStringTable, FollowsTheDefaultLocale) {
  KZStringTable table(QStringLiteral(":/KZHost/translations"), QStringLiteral("KZHost"));
  const std::tuple<QLocale, const char*, const char*> rows[] = {
      {QLocale("es_MX"), "es", "Aceptar"}, {QLocale("zh_SG"), "zh_CN", "确定"},
      {QLocale("zh_TW"), "en", "OK"},      {QLocale("es"), "es", "Aceptar"},
      {QLocale::c(), "en", "OK"},
  };
  for (const auto& [locale, language, text] : rows) {
    QLocale::setDefault(locale);
    EXPECT_EQ(table.language(), language);
    EXPECT_EQ(table.text("OK"), QString::fromUtf8(text));
    EXPECT_EQ(table.text("not translated"), "not translated");
  }
}
