#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/KZUtility/KZKeychainBackend.h"

typedef struct _GCancellable GCancellable;

// Calls to the Secret Service. Each may block until it is cancelled. Any thread that has a context of its
// own.
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

// How a call is watched from another thread: cancelled, and told whenever the service has answered.
struct Watch {
  GCancellable* cancellable;
  std::function<void()> answered;
};

KZKeychainBackend::Answer read(const KZKeychainBackend::Item& item, const Watch& watch);
KZKeychainBackend::Status write(const KZKeychainBackend::Item& item, const QByteArray& secret,
                                const Watch& watch);
// Nothing when the service has asked its user, who said no.
std::optional<KZKeychainBackend::Status> remove(const KZKeychainBackend::Item& item, const Watch& watch);

// Returns when the user has answered the prompt.
void unlock(const QList<KZKeychainBackend::Item>& items);

}  // namespace secretservice
