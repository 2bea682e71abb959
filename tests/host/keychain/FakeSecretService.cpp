// A Secret Service with one fault, named by the first argument:
//   silent    never answers
//   locked    its default collection is locked; it asks its user, who is away, before it searches
//   absent    it has no default collection
//   slow      answers each call after 0.9 s
//   late      answers its first call after 2.5 s
//   dies      ends in the middle of a call
//   forgets   says that an item was created, and has none
//   dismissed has one item, which is locked; its user dismisses the prompt
//   accepted  has one item, which is locked; its user unlocks it at the prompt
//   keeping   has one item; it asks its user before it removes it, who says no
// All say that a collection appears, before they tell that they have any. It prints "ready" once it owns the
// name, and "prompt" when a call would prompt the user.

#include <gio/gio.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

constexpr unsigned long kSlowMicroseconds = 900000;
constexpr unsigned long kLateMicroseconds = 2500000;
constexpr unsigned kUserMilliseconds = 1500;
const char* const kCollection = "/org/freedesktop/secrets/collection/login";
const char* const kItem = "/org/freedesktop/secrets/collection/login/1";
const char* const kSession = "/org/freedesktop/secrets/session/1";
const char* const kPrompt = "/org/freedesktop/secrets/prompt/1";
const char* const kSecret = "kept";

struct Fake {
  std::string_view fault;
  GDBusConnection* bus = nullptr;
  bool hasItem = false;
  bool isItemLocked = false;
  int calls = 0;
};

void say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

GVariant* paths(const char* path) {
  return path ? g_variant_new_objv(&path, 1) : g_variant_new_objv(nullptr, 0);
}

GVariant* secret() {
  GVariantBuilder secrets;
  g_variant_builder_init(&secrets, G_VARIANT_TYPE("a{o(oayays)}"));
  GVariant* none = g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, nullptr, 0, 1);
  GVariant* value = g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, kSecret, std::strlen(kSecret), 1);
  g_variant_builder_add(&secrets, "{o@(oayays)}", kItem,
                        g_variant_new("(o@ay@ays)", kSession, none, value, "application/octet-stream"));
  return g_variant_new("(a{o(oayays)})", &secrets);
}

gboolean answerPrompt(gpointer data) {
  Fake& fake = *static_cast<Fake*>(data);
  const bool isDismissed = fake.fault != "accepted";
  fake.isItemLocked = fake.fault == "dismissed";
  g_dbus_connection_emit_signal(fake.bus, nullptr, kPrompt, "org.freedesktop.Secret.Prompt", "Completed",
                                g_variant_new("(bv)", isDismissed, paths(isDismissed ? nullptr : kItem)),
                                nullptr);
  return G_SOURCE_REMOVE;
}

GVariant* answerTo(Fake& fake, std::string_view member) {
  if (member == "ReadAlias") {
    if (fake.fault == "dies") _exit(1);
    return g_variant_new("(o)", fake.fault == "absent" ? "/" : kCollection);
  }
  if (member == "Get") return g_variant_new("(v)", g_variant_new_boolean(fake.fault == "locked"));
  if (member == "GetAll") return g_variant_new("(a{sv})", nullptr);
  if (member == "OpenSession") {
    g_dbus_connection_emit_signal(fake.bus, nullptr, "/org/freedesktop/secrets",
                                  "org.freedesktop.Secret.Service", "CollectionCreated",
                                  g_variant_new("(o)", kCollection), nullptr);
    return g_variant_new("(vo)", g_variant_new_string(""), kSession);
  }
  if (member == "SearchItems") {
    return g_variant_new("(@ao@ao)", paths(fake.hasItem && !fake.isItemLocked ? kItem : nullptr),
                         paths(fake.hasItem && fake.isItemLocked ? kItem : nullptr));
  }
  if (member == "GetSecrets") return secret();
  if (member == "CreateItem" && fake.fault == "forgets") return g_variant_new("(oo)", kItem, "/");
  if (member == "Unlock") return g_variant_new("(@aoo)", paths(nullptr), kPrompt);
  if (member == "Delete") return g_variant_new("(o)", kPrompt);
  if (member == "Prompt") {
    g_timeout_add(kUserMilliseconds, answerPrompt, &fake);
    return g_variant_new("()");
  }
  return nullptr;
}

// Only the plain session is supported; the library then asks again without encryption.
bool isEncryptedSession(GDBusMessage* message, std::string_view member) {
  if (member != "OpenSession") return false;
  const gchar* algorithm = nullptr;
  GVariant* input = nullptr;
  g_variant_get(g_dbus_message_get_body(message), "(&sv)", &algorithm, &input);
  g_variant_unref(input);
  return std::strcmp(algorithm, "plain") != 0;
}

GDBusMessage* replyTo(Fake& fake, GDBusMessage* message, std::string_view member) {
  if (isEncryptedSession(message, member)) {
    return g_dbus_message_new_method_error(message, "org.freedesktop.DBus.Error.NotSupported", "plain only");
  }
  GVariant* answer = answerTo(fake, member);
  if (!answer) {
    return g_dbus_message_new_method_error(message, "org.freedesktop.DBus.Error.UnknownMethod", "not here");
  }
  GDBusMessage* reply = g_dbus_message_new_method_reply(message);
  g_dbus_message_set_body(reply, answer);
  return reply;
}

// Runs on the bus's own thread, one message after another.
GDBusMessage* onMessage(GDBusConnection* bus, GDBusMessage* message, gboolean isIncoming, gpointer data) {
  Fake& fake = *static_cast<Fake*>(data);
  if (!isIncoming || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
    return message;
  const std::string_view member = g_dbus_message_get_member(message);
  const bool isAskedToSearch = fake.fault == "locked" && member == "SearchItems";
  if (isAskedToSearch || member == "Unlock" || member == "Prompt" || member == "CreateCollection")
    say("prompt");
  if (fake.fault == "slow") g_usleep(kSlowMicroseconds);
  if (fake.fault == "late" && fake.calls++ == 0) g_usleep(kLateMicroseconds);
  if (fake.fault != "silent" && !isAskedToSearch) {
    GDBusMessage* reply = replyTo(fake, message, member);
    g_dbus_connection_send_message(bus, reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(reply);
  }
  g_object_unref(message);
  return nullptr;
}

void onBus(GDBusConnection* bus, const gchar*, gpointer data) {
  static_cast<Fake*>(data)->bus = bus;
  g_dbus_connection_add_filter(bus, onMessage, data, nullptr);
}

void onName(GDBusConnection*, const gchar*, gpointer) {
  say("ready");
}
void onNoName(GDBusConnection*, const gchar*, gpointer) {
  _exit(2);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Fake fake = {.fault = argv[1]};
  for (const char* fault : {"slow", "late", "dismissed", "accepted", "keeping"})
    fake.hasItem = fake.hasItem || fake.fault == fault;
  fake.isItemLocked = fake.fault == "dismissed" || fake.fault == "accepted";
  g_bus_own_name(G_BUS_TYPE_SESSION, "org.freedesktop.secrets", G_BUS_NAME_OWNER_FLAGS_NONE, onBus, onName,
                 onNoName, &fake, nullptr);
  g_main_loop_run(g_main_loop_new(nullptr, FALSE));
}
