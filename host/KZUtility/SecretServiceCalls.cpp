// The library requires these to use its service interface, which has been stable since 2012.
#define SECRET_WITH_UNSTABLE
#define SECRET_API_SUBJECT_TO_CHANGE
#include "host/KZUtility/SecretServiceCalls.h"

#include <libsecret/secret.h>

#include <functional>

namespace secretservice {

namespace {

using Item = KZKeychainBackend::Item;
using Answer = KZKeychainBackend::Answer;
using Status = KZKeychainBackend::Status;

template <auto Free>
struct FreeWith {
  template <typename T>
  void operator()(T* object) const {
    Free(object);
  }
};
template <typename T>
using Object = std::unique_ptr<T, FreeWith<g_object_unref>>;
using Variant = std::unique_ptr<GVariant, FreeWith<g_variant_unref>>;
using Attributes = std::unique_ptr<GHashTable, FreeWith<g_hash_table_unref>>;
using Value = std::unique_ptr<SecretValue, FreeWith<secret_value_unref>>;
using ErrorText = std::unique_ptr<GError, FreeWith<g_error_free>>;

void freeItems(GList* items) {
  g_list_free_full(items, g_object_unref);
}
using Items = std::unique_ptr<GList, FreeWith<freeItems>>;

const SecretSchema& schema() {
  static const SecretSchema generic = [] {
    SecretSchema made = {};
    made.name = "org.freedesktop.Secret.Generic";
    made.attributes[0] = {"service", SECRET_SCHEMA_ATTRIBUTE_STRING};
    made.attributes[1] = {"account", SECRET_SCHEMA_ATTRIBUTE_STRING};
    return made;
  }();
  return generic;
}

Attributes attributesOf(const Item& item) {
  return Attributes(secret_attributes_build(&schema(), "service", item.service.toUtf8().constData(),
                                            "account", item.account.toUtf8().constData(), nullptr));
}

// One try against a connected service; a failure leaves `error` set when a new connection may help.
class Attempt final {
 public:
  explicit Attempt(GCancellable* cancellable) : m_cancellable(cancellable) {}
  ~Attempt() { g_clear_error(&m_error); }
  Q_DISABLE_COPY_MOVE(Attempt)

  bool isFailed() const { return m_error != nullptr; }

  // False for a locked collection: using it would show a prompt.
  bool connect() {
    m_service.reset(secret_service_get_sync(SECRET_SERVICE_OPEN_SESSION, m_cancellable, &m_error));
    if (!m_service) return false;
    // By default the process exits when the bus closes the connection.
    g_dbus_connection_set_exit_on_close(bus(), FALSE);
    const QByteArray collection = defaultCollection();
    return !collection.isEmpty() && isUnlocked(collection);
  }

  Answer read(const Item& item) {
    const Items found = search(item, SECRET_SEARCH_LOAD_SECRETS);
    if (m_error) return {.status = Status::Unavailable, .secret = {}};
    if (!found) return {.status = Status::NotFound, .secret = {}};
    const Value value(secret_item_get_secret(SECRET_ITEM(found->data)));
    if (!value) return {.status = Status::Unavailable, .secret = {}};
    gsize size = 0;
    const gchar* bytes = secret_value_get(value.get(), &size);
    return {.status = Status::Done, .secret = QByteArray(bytes ? bytes : "", static_cast<qsizetype>(size))};
  }

  Status write(const Item& item, const QByteArray& secret) {
    const Value value(secret_value_new(secret.constData(), secret.size(), "application/octet-stream"));
    const Attributes attributes = attributesOf(item);
    const bool isStored =
        secret_service_store_sync(m_service.get(), &schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                                  item.service.toUtf8().constData(), value.get(), m_cancellable, &m_error);
    return isStored ? Status::Done : Status::Unavailable;
  }

  Status remove(const Item& item) {
    const Items found = search(item, SECRET_SEARCH_ALL);
    if (m_error) return Status::Unavailable;
    for (GList* at = found.get(); at; at = at->next) {
      auto* each = SECRET_ITEM(at->data);
      if (secret_item_get_locked(each)) return Status::Unavailable;
      if (!secret_item_delete_sync(each, m_cancellable, &m_error)) return Status::Unavailable;
    }
    return found ? Status::Done : Status::NotFound;
  }

 private:
  GDBusConnection* bus() const { return g_dbus_proxy_get_connection(G_DBUS_PROXY(m_service.get())); }

  // Empty when there is none. Called directly, because the library's collection object costs ten round trips.
  QByteArray defaultCollection() {
    const Variant answer(g_dbus_proxy_call_sync(G_DBUS_PROXY(m_service.get()), "ReadAlias",
                                                g_variant_new("(s)", SECRET_COLLECTION_DEFAULT),
                                                G_DBUS_CALL_FLAGS_NONE, -1, m_cancellable, &m_error));
    if (!answer || !g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(o)"))) return {};
    const gchar* path = nullptr;
    g_variant_get(answer.get(), "(&o)", &path);
    const QByteArray collection(path);
    return collection == "/" ? QByteArray() : collection;
  }

  bool isUnlocked(const QByteArray& collection) {
    const Variant answer(g_dbus_connection_call_sync(
        bus(), g_dbus_proxy_get_name(G_DBUS_PROXY(m_service.get())), collection.constData(),
        "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.freedesktop.Secret.Collection", "Locked"), G_VARIANT_TYPE("(v)"),
        G_DBUS_CALL_FLAGS_NONE, -1, m_cancellable, &m_error));
    if (!answer) return false;
    GVariant* inner = nullptr;
    g_variant_get(answer.get(), "(v)", &inner);
    const Variant locked(inner);
    return g_variant_is_of_type(locked.get(), G_VARIANT_TYPE_BOOLEAN) && !g_variant_get_boolean(locked.get());
  }

  Items search(const Item& item, SecretSearchFlags flags) {
    const Attributes attributes = attributesOf(item);
    return Items(secret_service_search_sync(m_service.get(), &schema(), attributes.get(), flags,
                                            m_cancellable, &m_error));
  }

  GCancellable* m_cancellable;
  GError* m_error = nullptr;
  Object<SecretService> m_service;
};

// After a service has died, every call fails until the library has disconnected from it.
template <typename Result>
Result tried(GCancellable* cancellable, Result unavailable, const std::function<Result(Attempt&)>& call) {
  for (int tries = 0; tries < 2; ++tries) {
    Attempt attempt(cancellable);
    const Result result = attempt.connect() ? call(attempt) : unavailable;
    if (!attempt.isFailed()) return result;
    secret_service_disconnect();
    if (g_cancellable_is_cancelled(cancellable)) break;
  }
  return unavailable;
}

}  // namespace

void CancellableDeleter::operator()(GCancellable* cancellable) const {
  g_object_unref(cancellable);
}

Cancellable newCancellable() {
  return Cancellable(g_cancellable_new());
}
void cancel(GCancellable* cancellable) {
  g_cancellable_cancel(cancellable);
}

OwnContext::OwnContext() : m_context(g_main_context_new()) {
  g_main_context_push_thread_default(static_cast<GMainContext*>(m_context));
}

OwnContext::~OwnContext() {
  dispatch();
  g_main_context_pop_thread_default(static_cast<GMainContext*>(m_context));
  g_main_context_unref(static_cast<GMainContext*>(m_context));
}

void OwnContext::dispatch() {
  while (g_main_context_iteration(static_cast<GMainContext*>(m_context), FALSE)) continue;
}

Answer read(const Item& item, GCancellable* cancellable) {
  return tried<Answer>(cancellable, {.status = Status::Unavailable, .secret = {}},
                       [&](Attempt& attempt) { return attempt.read(item); });
}

Status write(const Item& item, const QByteArray& secret, GCancellable* cancellable) {
  return tried<Status>(cancellable, Status::Unavailable,
                       [&](Attempt& attempt) { return attempt.write(item, secret); });
}

Status remove(const Item& item, GCancellable* cancellable) {
  return tried<Status>(cancellable, Status::Unavailable,
                       [&](Attempt& attempt) { return attempt.remove(item); });
}

}  // namespace secretservice
