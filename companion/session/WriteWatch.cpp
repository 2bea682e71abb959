#include "companion/session/WriteWatch.h"

#include <memory>
#include <utility>

#include "companion/session/ValueCodec.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/MemoryKeychain.h"
#include "host/KZUtility/SecretServiceKeychain.h"

namespace {

// Another keychain, whose writes are printed before they are done.
class PrintingKeychain final : public KZKeychainBackend {
 public:
  PrintingKeychain(LineWriter* writer, std::unique_ptr<KZKeychainBackend> keychain)
      : m_writer(writer), m_keychain(std::move(keychain)) {}

  Answer read(const Item& item) override { return m_keychain->read(item); }
  Status write(const Item& item, const QByteArray& secret) override {
    m_writer->print({{"kept", item.account}});
    return m_keychain->write(item, secret);
  }
  Status remove(const Item& item) override {
    m_writer->print({{"removed", item.account}});
    return m_keychain->remove(item);
  }

 private:
  LineWriter* m_writer;
  std::unique_ptr<KZKeychainBackend> m_keychain;
};

std::unique_ptr<KZKeychainBackend> newKeychain(KZKeyChainHandle::Storage storage) {
  if (storage == KZKeyChainHandle::Storage::System) return std::make_unique<SecretServiceKeychain>();
  return std::make_unique<MemoryKeychain>();
}

}  // namespace

WriteWatch::WriteWatch(LineWriter* writer, KZKeyChainHandle::Storage keychain) {
  connect(
      &KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
      [writer](const QString& key, const QVariant& before, const QVariant& after) {
        writer->print(
            {{"stored", key}, {"value", valuecodec::encode(after)}, {"before", valuecodec::encode(before)}});
      });
  KZKeyChainHandle::sharedInstance().useBackend(
      std::make_shared<PrintingKeychain>(writer, newKeychain(keychain)));
}

WriteWatch::~WriteWatch() {
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
}
