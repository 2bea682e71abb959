#include <gtest/gtest.h>

#include "companion/inspector/ValueDifference.h"
#include "host/KZFoundation/Dictionary.h"

namespace {

TEST(ValueDifference, TellsWhatWasAddedRemovedAndChangedAndNothingElse) {
  const Dictionary account{{"email", "ada@example.com"}, {"days", 7}};
  const Dictionary edited{{"email", "ada@example.com"}, {"days", 14}, {"room", true}};
  struct Row {
    const char* what;
    QVariant before;
    QVariant after;
    const char* lines;
  };
  const Row rows[] = {
      {"new", {}, "a", "+ key: \"a\""},
      {"removed", 5, {}, "- key: 5"},
      {"equal", account, account, ""},
      {"nested", account, edited, "- key.days: 7|+ key.days: 14|+ key.room: true"},
      {"back", edited, account, "- key.days: 14|+ key.days: 7|- key.room: true"},
      {"deeper", Dictionary{{"a", account}}, Dictionary{{"a", edited}},
       "- key.a.days: 7|+ key.a.days: 14|+ key.a.room: true"},
      {"lists", QVariantList{1, account}, QVariantList{1, edited, 3},
       "- key[1].days: 7|+ key[1].days: 14|+ key[1].room: true|+ key[2]: 3"},
      {"another type", account, "text", "- key: {\"days\":7,\"email\":\"ada@example.com\"}|+ key: \"text\""},
      {"bytes", QByteArray("a"), QByteArray("b"), "- key: {\"$data\":\"YQ==\"}|+ key: {\"$data\":\"Yg==\"}"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(valueDifference("key", row.before, row.after).join('|').toStdString(), row.lines) << row.what;
  }
}

TEST(ValueDifference, SecretsShowThatTheyChangedAndNoMore) {
  const auto holder = [](const char* secret) {
    return Dictionary{{"accessToken", QVariantList{Dictionary{{"value", secret}}}},
                      {"json", QStringLiteral(R"({"password":"%1","user":"ada"})").arg(secret)},
                      {"list", QVariantList{Dictionary{{"password", secret}}}}};
  };
  const QString lines = valueDifference("key", holder("0ld-s3cret"), holder("n3w-s3cret")).join('|');
  EXPECT_FALSE(lines.contains("s3cret")) << qPrintable(lines);
  EXPECT_TRUE(lines.contains("- key.accessToken: \"***\"|+ key.accessToken: \"***\"")) << qPrintable(lines);
  EXPECT_TRUE(lines.contains("- key.list[0].password: \"***\"")) << qPrintable(lines);
  EXPECT_TRUE(lines.contains("ada"));
  const QStringList whole = valueDifference("password", Dictionary{{"a", "s3cret"}}, Dictionary{{"a", "b"}});
  EXPECT_EQ(whole, (QStringList{"- password: \"***\"", "+ password: \"***\""}));
}

TEST(ValueDifference, EndsAtBottomlessValues) {
  QVariant before = "left";
  QVariant after = "right";
  for (int depth = 0; depth < 200; ++depth) {
    before = Dictionary{{"a", before}};
    after = Dictionary{{"a", after}};
  }
  EXPECT_EQ(valueDifference("key", before, after).size(), 2);
}

}  // namespace
