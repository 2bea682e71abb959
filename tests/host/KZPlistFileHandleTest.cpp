#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QSignalSpy>
#include <QXmlStreamReader>
#include <cmath>

#include "tests/kit/StoreFolder.h"
#include "tests/kit/TraceCollector.h"

namespace {

struct stat stateOf(const QString& path) {
  struct stat state = {};
  EXPECT_EQ(::lstat(path.toUtf8().constData(), &state), 0);
  return state;
}

}  // namespace

TEST(KZPlistFileHandle, KeepsEveryTypeFromRunToRun) {
  const QVariant values[] = {
      QString(""),
      QString("line\r\nline\r"),
      QString("  a\n\t<&>\"' \U0001F600 "),
      true,
      false,
      qlonglong{0},
      qlonglong{-5},
      std::numeric_limits<qlonglong>::max(),
      std::numeric_limits<qlonglong>::min(),
      std::numeric_limits<qulonglong>::max(),
      0.1,
      -1e300,
      1.0,
      QByteArray("\0\xff\x80", 3),
      QByteArray(""),
      QDateTime::fromString("4001-01-02T03:04:05Z", Qt::ISODate),
      QDateTime::fromString("0001-01-01T00:00:00Z", Qt::ISODate),
      QVariantList(),
      Dictionary(),
      QVariantList{qlonglong{1}, QString("a"), QVariantList{true}},
      Dictionary{{"", QString("empty key")}, {" k<&\U0001F600", Dictionary{{"inner", QVariantList{1.5}}}}}};
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  int number = 0;
  for (const QVariant& value : values) store.setValue(QString::number(number++), value);
  folder.reopen();
  // Also when the file is written anew.
  store.setSiteName("site");
  folder.reopen();
  number = 0;
  for (const QVariant& value : values) {
    const QVariant read = store.value(QString::number(number++));
    EXPECT_EQ(read.metaType(), value.metaType()) << number;
    EXPECT_EQ(read, value) << number;
    EXPECT_FALSE(isMissing(read)) << number;
  }
}

TEST(KZPlistFileHandle, RemovesMissingValuesAndReadsWrongTypesAsAbsent) {
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  EXPECT_FALSE(store.isPlistKeyExist("KZLaunchAtLogin"));
  store.setLaunchAtLogin(false);
  store.setSiteName("site");
  store.setValue("userName", 5);
  store.setVideoDevice({{"kept", 1}, {"null", QVariant()}});
  folder.reopen();
  EXPECT_TRUE(store.isPlistKeyExist("KZLaunchAtLogin"));
  EXPECT_TRUE(store.userName().isNull());
  EXPECT_EQ(store.videoDevice()->keys(), QStringList{"kept"});
  store.setSiteName(QString());
  folder.reopen();
  EXPECT_FALSE(store.isPlistKeyExist("siteName"));
  EXPECT_TRUE(store.siteName().isNull());
  EXPECT_FALSE(store.calendarIntegration());
}

TEST(KZPlistFileHandle, WritesAndReportsOnlyADifference) {
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  QSignalSpy changed(&store, &KZPlistFileHandle::valueChanged);
  store.setMeetingNotification({{"flag", true}});
  const auto written = stateOf(folder.file());
  EXPECT_EQ(written.st_mode & 0777U, 0600U);
  EXPECT_EQ(stateOf(folder.folder()).st_mode & 0777U, 0700U);
  store.setMeetingNotification({{"flag", true}});
  store.setSiteName(QString());
  EXPECT_EQ(stateOf(folder.file()).st_ino, written.st_ino);
  EXPECT_EQ(changed.size(), 1);
  // A number is a different value than an equal flag.
  store.setMeetingNotification({{"flag", 1}});
  ASSERT_EQ(changed.size(), 2);
  EXPECT_EQ(changed[1][1].toMap().value("flag"), QVariant(true));
  folder.reopen();
  EXPECT_EQ(store.meetingNotification()->value("flag").metaType(), QMetaType::fromType<qlonglong>());
  EXPECT_EQ(folder.names(), QStringList{"preferences.plist"});
}

TEST(KZPlistFileHandle, StaysReadableForOthersWhateverATextHolds) {
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  const QString odd = QString("a") + QChar(0) + "b" + QChar(1) + "c" + QChar(0xD800) + "d" + QChar(0xFFFF);
  const TraceCollector watch;
  store.setValue("odd" + QString(QChar(2)), odd);
  EXPECT_EQ(store.value("odd" + QString(QChar(2))), QVariant(odd));
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
  QXmlStreamReader xml(folder.bytes());
  while (!xml.atEnd()) xml.readNext();
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  folder.reopen();
  const QChar replaced(0xFFFD);
  EXPECT_EQ(store.value(QString("odd") + replaced),
            QVariant(QString("a") + replaced + "b" + replaced + "c" + replaced + "d" + replaced));
}

TEST(KZPlistFileHandle, NeverWritesWhatItCouldNotReadAgain) {
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  const TraceCollector watch;
  store.setSiteName("kept");
  QVariant deep = true;
  for (int level = 0; level < 200; ++level) deep = QVariantList{deep};
  store.setValue("deep", deep);
  store.setCdnUrl(QString(9 * 1024 * 1024, 'x'));
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 2);
  folder.reopen();
  EXPECT_EQ(store.siteName(), "kept");
  EXPECT_TRUE(store.cdnUrl().isNull());
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 2);
}

TEST(KZPlistFileHandle, StaysInMemoryWhileAnotherProcessHasTheFolder) {
  const StoreFolder folder;
  KZPlistFileHandle& store = StoreFolder::store();
  store.setSiteName("theirs");
  store.close();
  const QTemporaryDir before;
  ASSERT_TRUE(store.open(before.path()));
  // For the system, a lock on another descriptor is like another process's.
  const int theirs = ::open(folder.folder().toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_EQ(::flock(theirs, LOCK_EX | LOCK_NB), 0);
  EXPECT_FALSE(store.open(folder.folder()));
  EXPECT_TRUE(store.siteName().isNull());
  EXPECT_TRUE(store.filePath().isNull());
  store.setSiteName("memory");
  ::close(theirs);
  ASSERT_TRUE(store.open(folder.folder()));
  EXPECT_EQ(store.siteName(), "theirs");
  // Only the open folder stays locked.
  const int next = ::open(before.path().toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  EXPECT_EQ(::flock(next, LOCK_EX | LOCK_NB), 0);
  ::close(next);
}

TEST(KZPlistFileHandle, IsInMemoryUntilOpenedAndAfterClosing) {
  KZPlistFileHandle& store = StoreFolder::store();
  store.setSiteName("memory");
  EXPECT_EQ(store.siteName(), "memory");
  EXPECT_TRUE(store.filePath().isNull());
  const StoreFolder folder;
  EXPECT_TRUE(store.siteName().isNull());
  EXPECT_EQ(store.filePath(), folder.file());
  store.setSiteName("file");
  store.close();
  EXPECT_FALSE(store.isPlistKeyExist("siteName"));
  store.setSiteName("memory");
  EXPECT_TRUE(folder.bytes().contains("file"));
}
