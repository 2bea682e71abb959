#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include "tests/host/BrokenDisk.h"
#include "tests/kit/StoreFolder.h"
#include "tests/kit/TraceCollector.h"

TEST(KZPlistFileFault, SetsADamagedFileAsideAndGoesOn) {
  const QByteArray good = StoreFolder::plist("<key>siteName</key><string>a</string>");
  const QByteArray deep = QByteArray("<array>").repeated(1000000);
  const QByteArray rows[] = {
      "",
      "garbage",
      "bplist00",
      good.chopped(20),
      good + "trailing",
      good + good,
      QByteArray(good).replace("<string>", "<text>"),
      QByteArray(good).replace(">a<", QByteArray(">\0<", 3)),
      QByteArray(good).replace(">a<", ">\xff<"),
      QByteArray(good).replace(">a<", ">&unknown;<"),
      "<plist version=\"1.0\"><array/></plist>",
      "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">]><plist "
      "version=\"1.0\"><dict><key>a</key><string>&a;</string>"
      "</dict></plist>",
      StoreFolder::plist("<key>a</key>" + deep),
      StoreFolder::plist("<key>a</key>" + deep + QByteArray("</array>").repeated(1000000))
          .left(8 * 1024 * 1024),
      StoreFolder::plist("<key>a</key><string>" + QByteArray(8 * 1024 * 1024, 'x') + "</string>"),
  };
  for (const QByteArray& bytes : rows) {
    const StoreFolder folder;
    const TraceCollector watch;
    folder.openWith(bytes);
    EXPECT_EQ(watch.count(KZTraceLevel::Error), 1) << bytes.left(60).constData();
    EXPECT_EQ(folder.setAsideBytes(), bytes) << bytes.left(60).constData();
    StoreFolder::store().setSiteName("new");
    folder.reopen();
    EXPECT_EQ(StoreFolder::store().siteName(), "new");
    EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
    EXPECT_EQ(folder.names().size(), 2);
  }
}

TEST(KZPlistFileFault, SetsEachDamagedFileAsideUnderANameOfItsOwn) {
  const StoreFolder folder;
  const TraceCollector watch;
  for (int turn = 0; turn < 3; ++turn) folder.openWith("damaged");
  EXPECT_EQ(folder.names().size(), 3);
}

TEST(KZPlistFileFault, SetsAsideWhatIsNoFileThatCanBeRead) {
  using Maker = void (*)(const QByteArray&);
  const Maker makers[] = {
      [](const QByteArray& name) { ASSERT_EQ(::mkfifo(name.constData(), 0600), 0); },
      [](const QByteArray& name) { ASSERT_EQ(::mkdir(name.constData(), 0700), 0); },
      [](const QByteArray& name) { ASSERT_EQ(::symlink("/etc/passwd", name.constData()), 0); },
      [](const QByteArray& name) { ASSERT_GE(::open(name.constData(), O_CREAT | O_CLOEXEC, 0), 0); },
  };
  for (const Maker make : makers) {
    const OrdinaryUser user;
    const StoreFolder folder;
    const TraceCollector watch;
    make(folder.file().toUtf8());
    folder.reopen();
    StoreFolder::store().setSiteName("new");
    EXPECT_TRUE(folder.bytes().contains("new"));
    EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
    EXPECT_EQ(folder.names().size(), 2);
  }
}

TEST(KZPlistFileFault, NeverTouchesAnotherUsersFile) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  const StoreFolder folder;
  const QByteArray theirs = StoreFolder::plist("<key>siteName</key><string>theirs</string>");
  folder.replace(theirs);
  ASSERT_EQ(::chown(folder.file().toUtf8().constData(), 65534, 65534), 0);
  const TraceCollector watch;
  folder.reopen();
  StoreFolder::store().setSiteName("memory");
  EXPECT_EQ(StoreFolder::store().siteName(), "memory");
  EXPECT_EQ(folder.bytes(), theirs);
  EXPECT_EQ(folder.names().size(), 1);
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
}

TEST(KZPlistFileFault, WritesNothingWhereItMayNot) {
  struct Row {
    mode_t mode;
    QByteArray bytes;
    int errorsAfterTwoChanges;
    KZSaveProblem problem;
  };
  const QByteArray good = StoreFolder::plist("<key>siteName</key><string>a</string>");
  // A readable file: each failed write is traced. A file that cannot be read or moved: traced once, and
  // nothing is written.
  const Row rows[] = {{0500, good, 2, KZSaveProblem::NotAllowed},
                      {0500, "damaged", 1, KZSaveProblem::FileUnusable},
                      {0000, good, 1, KZSaveProblem::FileUnusable}};
  for (const Row& row : rows) {
    const OrdinaryUser user;
    const StoreFolder folder;
    folder.replace(row.bytes);
    const QByteArray place = folder.folder().toUtf8();
    ASSERT_EQ(::chmod(place.constData(), row.mode), 0);
    const TraceCollector watch;
    folder.reopen();
    StoreFolder::store().setCdnUrl("first");
    StoreFolder::store().setCdnUrl("second");
    EXPECT_EQ(watch.count(KZTraceLevel::Error), row.errorsAfterTwoChanges);
    EXPECT_EQ(StoreFolder::store().saveProblem(), row.problem);
    EXPECT_EQ(StoreFolder::store().cdnUrl(), "second");
    ASSERT_EQ(::chmod(place.constData(), 0700), 0);
    EXPECT_EQ(folder.bytes(), row.bytes);
    EXPECT_EQ(folder.names().size(), 1);
  }
}

TEST(KZPlistFileFault, KeepsAValueThatTheDiskRefusedAndTriesAgain) {
  const StoreFolder folder;
  const TraceCollector watch;
  KZPlistFileHandle& store = StoreFolder::store();
  QSignalSpy changes(&store, &KZPlistFileHandle::saveProblemChanged);
  store.setSiteName("old");
  const QByteArray before = folder.bytes();
  {
    const FullDisk full(100);
    store.setSiteName("new");
    store.setCdnUrl("also");
    EXPECT_EQ(watch.count(KZTraceLevel::Error), 2);
  }
  EXPECT_EQ(store.saveProblem(), KZSaveProblem::DiskFull);
  EXPECT_EQ(changes.size(), 1);
  EXPECT_EQ(store.siteName(), "new");
  EXPECT_EQ(folder.bytes(), before);
  EXPECT_EQ(folder.names(), QStringList{"preferences.plist"});
  store.setSiteName("new");
  EXPECT_EQ(store.saveProblem(), KZSaveProblem::None);
  EXPECT_EQ(changes.size(), 2);
  folder.reopen();
  EXPECT_EQ(store.siteName(), "new");
  EXPECT_EQ(store.cdnUrl(), "also");
}

TEST(KZPlistFileFault, SurvivesAFolderThatIsNoneOrGoesAway) {
  const StoreFolder folder;
  const TraceCollector watch;
  KZPlistFileHandle& store = StoreFolder::store();
  store.setSiteName("first");
  ASSERT_TRUE(QDir(folder.folder()).removeRecursively());
  store.setCdnUrl("second");
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 0);
  EXPECT_TRUE(folder.bytes().contains("first"));
  EXPECT_TRUE(folder.bytes().contains("second"));
  ASSERT_TRUE(QDir(folder.folder()).removeRecursively());
  QFile inTheWay(folder.folder());
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  store.setCdnUrl("third");
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
  EXPECT_EQ(store.saveProblem(), KZSaveProblem::Failed);
  EXPECT_EQ(store.cdnUrl(), "third");
}

TEST(KZPlistFileFault, RemovesOldFilesOfAProcessThatDiedWhileWriting) {
  const StoreFolder folder;
  for (const char* name : {"/.preferences.plist.abcdef", "/.preferences.plist.uvwxyz"}) {
    QFile left(folder.folder() + name);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    const bool isOld = QByteArray(name).endsWith('f');
    left.setFileTime(QDateTime::currentDateTime().addSecs(isOld ? -3600 : 0),
                     QFileDevice::FileModificationTime);
  }
  folder.reopen();
  EXPECT_EQ(folder.names(), QStringList{".preferences.plist.uvwxyz"});
}
