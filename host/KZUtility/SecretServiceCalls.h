#pragma once

#include <memory>

#include "host/KZUtility/KZKeychainBackend.h"

typedef struct _GCancellable GCancellable;

// What the worker of SecretServiceKeychain says to the Secret Service. Each call may block until it is
// cancelled.
namespace secretservice {

struct CancellableDeleter {
  void operator()(GCancellable* cancellable) const;
};
using Cancellable = std::unique_ptr<GCancellable, CancellableDeleter>;

Cancellable newCancellable();
void cancel(GCancellable* cancellable);

// While one lives, what the library has to say to this thread comes to this thread, not to the host's event
// loop.
class OwnContext final {
 public:
  OwnContext();
  ~OwnContext();
  Q_DISABLE_COPY_MOVE(OwnContext)

  void dispatch();

 private:
  void* m_context;
};

KZKeychainBackend::Answer read(const KZKeychainBackend::Item& item, GCancellable* cancellable);
KZKeychainBackend::Status write(const KZKeychainBackend::Item& item, const QByteArray& secret,
                                GCancellable* cancellable);
KZKeychainBackend::Status remove(const KZKeychainBackend::Item& item, GCancellable* cancellable);

}  // namespace secretservice
