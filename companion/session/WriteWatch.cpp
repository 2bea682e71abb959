#include "companion/session/WriteWatch.h"

#include "companion/format/ValueCodec.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

WriteWatch::WriteWatch(LineWriter* writer) {
  connect(
      &KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
      [writer](const QString& key, const QVariant& before, const QVariant& after) {
        writer->print(
            {{"stored", key}, {"value", valuecodec::encode(after)}, {"before", valuecodec::encode(before)}});
      });
  const KZKeyChainHandle* keychain = &KZKeyChainHandle::sharedInstance();
  connect(
      keychain, &KZKeyChainHandle::itemWritten, this,
      [writer](const QString& account) {
        writer->print({{"kept", account}});
      },
      Qt::DirectConnection);
  connect(
      keychain, &KZKeyChainHandle::itemRemoved, this,
      [writer](const QString& account) {
        writer->print({{"removed", account}});
      },
      Qt::DirectConnection);
}
