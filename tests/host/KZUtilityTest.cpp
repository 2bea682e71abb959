#include "host/KZUtility/KZUtility.h"

#include <gtest/gtest.h>

#include "host/KZUtility/KZWorkspace.h"

TEST(KZUtility, LimitsALengthWithoutSplittingACharacter) {
  const QString smile = "\U0001F600";
  const QString accented = QString("e") + QChar(0x0301);
  const std::pair<QString, qsizetype> rows[] = {
      {QString(128, 'x'), 128},
      {QString(129, 'x'), 128},
      {QString(127, 'x') + smile, 127},
      {QString(126, 'x') + smile + 'x', 128},
      {QString(127, 'x') + accented, 127},
      {'e' + QString(500, QChar(0x0301)), 128},
      {QString(1000000, 'x'), 128},
  };
  for (const auto& [text, length] : rows) {
    EXPECT_EQ(KZUtility::getLengthLimitationStringValue(text), text.left(length))
        << text.left(5).toStdString();
  }
  EXPECT_TRUE(KZUtility::getLengthLimitationStringValue(QString()).isNull());
}

TEST(KZUtility, ValidatesAnEmail) {
  for (const char* good : {"a@b.c", "first.last+tag@mail.example.com", "müller@bücher.example", "a:b@c.d"}) {
    EXPECT_TRUE(KZUtility::validateEmail(good)) << good;
  }
  for (const char* bad : {"", "@", "a", "a@b", "@b.c", "a@.c", "a@b.", "a@b..c", "a@b@c.d", "a b@c.d",
                          " a@b.c", "a@b.c\n", "a\t@b.c", "a\x7f@b.c", "a@b.c\xc2\xa0"}) {
    EXPECT_FALSE(KZUtility::validateEmail(QString::fromUtf8(bad))) << bad;
  }
}

TEST(KZUtility, ForgetsAMissingMemoryValue) {
  KZUtility& utility = KZUtility::sharedInstance();
  utility.setKZMemCacheData("key", QString(""));
  EXPECT_TRUE(utility.getKZMemCacheData("key").isValid());
  utility.setKZMemCacheData("key", QString());
  EXPECT_FALSE(utility.getKZMemCacheData("key").isValid());
}

TEST(KZWorkspace, AsksTheOpenerAboutEveryValidAddress) {
  QList<QUrl> opened;
  KZWorkspace& workspace = KZWorkspace::sharedWorkspace();
  workspace.setOpener([&](const QUrl& url) {
    opened.append(url);
    return !url.isRelative();
  });
  for (const char* refused : {"", "http://[bad", "www.example.com"}) {
    EXPECT_FALSE(workspace.openURL(QUrl(refused))) << refused;
  }
  EXPECT_TRUE(workspace.openURL(QUrl("https://example.com/a")));
  EXPECT_EQ(opened, (QList<QUrl>{QUrl("www.example.com"), QUrl("https://example.com/a")}));
  workspace.setOpener({});
  EXPECT_FALSE(workspace.openURL(QUrl("/etc/passwd")));
}
