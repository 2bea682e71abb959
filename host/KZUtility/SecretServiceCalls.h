#pragma once

#include <memory>

#include "host/KZUtility/KZKeychainBackend.h"

typedef struct _GCancellable GCancellable;

// The calls that the worker of SecretServiceKeychain makes to the Secret Service. Each may block until it is
// cancelled.
namespace secretservice {

struct CancellableDeleter {
  void operator()(GCancellable* cancellable) const;
};
using Cancellable = std::unique_ptr<GCancellable, CancellableDeleter>;

Cancellable newCancellable();
void cancel(GCancellable* cancellable);

// While it exists, the library's callbacks for this thread run in `dispatch`, not in the host's event loop.
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
