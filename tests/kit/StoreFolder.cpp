#include "tests/kit/StoreFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

StoreFolder::StoreFolder() {
  reopen();
}
StoreFolder::~StoreFolder() {
  store().close();
}

void StoreFolder::reopen() const {
  EXPECT_TRUE(store().open(folder()));
}

void StoreFolder::openWith(const QByteArray& bytes) const {
  replace(bytes);
  reopen();
}

QByteArray StoreFolder::plist(const QByteArray& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\"><dict>" +
         entries + "</dict></plist>\n";
}

QByteArray StoreFolder::bytes() const {
  QFile opened(file());
  return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

void StoreFolder::replace(const QByteArray& bytes) const {
  QFile::remove(file());
  QFile opened(file());
  if (opened.open(QIODevice::WriteOnly)) opened.write(bytes);
}

QStringList StoreFolder::names() const {
  return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QByteArray StoreFolder::setAsideBytes() const {
  const QStringList aside = names().filter(QStringLiteral("preferences.plist.damaged-"));
  QFile opened(folder() + u'/' + aside.value(0));
  return aside.size() == 1 && opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}
