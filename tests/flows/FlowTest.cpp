#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "tests/kit/SessionRun.h"

namespace {

QStringList linesOf(const QString& name) {
  QFile file(QDir(FLOWS).filePath(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

// "..." in an expected line matches any text.
bool isLike(const QString& line, const QString& expected) {
  const QStringList parts = expected.split(QStringLiteral("..."));
  if (parts.size() == 1) return line == expected;
  if (!line.startsWith(parts.first()) || !line.endsWith(parts.last())) return false;
  qsizetype place = 0;
  for (const QString& part : parts) {
    place = line.indexOf(part, place);
    if (place < 0) return false;
    place += part.size();
  }
  return true;
}

std::vector<std::string> scripts() {
  std::vector<std::string> names;
  for (const QString& name : QDir(FLOWS).entryList({"*.jsonl"}))
    names.push_back(name.chopped(6).toStdString());
  return names;
}

class FlowTest : public testing::TestWithParam<std::string> {};

TEST_P(FlowTest, PrintsWhatIsExpected) {
  const QString name = QString::fromStdString(GetParam());
  const QStringList expected = linesOf(name + ".expected");
  const SessionRun run = runSession(linesOf(name + ".jsonl"));
  EXPECT_EQ(run.status, 0) << qPrintable(run.complaints);
  ASSERT_FALSE(expected.isEmpty());
  for (qsizetype at = 0; at < qMax(expected.size(), run.lines.size()); ++at) {
    const QString line = run.lines.value(at);
    ASSERT_TRUE(isLike(line, expected.value(at))) << "line " << at + 1 << "\n  " << qPrintable(line)
                                                  << "\nis not\n  " << qPrintable(expected.value(at));
  }
}

INSTANTIATE_TEST_SUITE_P(Scripts, FlowTest, testing::ValuesIn(scripts()), [](const auto& script) {
  return QString::fromStdString(script.param).remove(u'-').toStdString();
});

TEST(Languages, TheFirstOfTheDesktopsThatHasATable) {
  const std::pair<const char*, const char*> rows[] = {
      {"en_US:de", "Preferences"},
      {"xx:de:en", "Einstellungen"},
      {"zh_SG", "偏好设置"},
      {"zh_TW:fr", "Préférences"},
  };
  for (const auto& [languages, title] : rows) {
    qputenv("LANGUAGE", languages);
    const SessionRun run = runSession({R"({"command": 2})", R"({"get": "window"})"});
    EXPECT_EQ(run.result().value("title"), QString::fromUtf8(title)) << languages;
  }
  qunsetenv("LANGUAGE");
}

}  // namespace
