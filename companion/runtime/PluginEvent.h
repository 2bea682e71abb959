#pragma once

#include <QString>
#include <QVariant>
#include <variant>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZTrace.h"

// An event between a host and its plug-in, with its secrets. A number without a row in the tables of
// KZCommands.h is an unnamed value of the enum.

struct PluginLoad {
  QString path;
};

struct CommandToPlugin {
  KZCommand command;
  Content content = {};
};

struct CommandToHost {
  KZCommand command;
  Content content = {};
};

struct NotificationToPlugin {
  KZNotify index;
  Content content = {};
};

// Null: not given.
struct PersonalRoomChange {
  QString joinUrl;
  QString sipUrl;
};

// A process-wide notification: a host needs a credential.
struct CredentialRequest {
  QString name;
  Dictionary userInfo;
};

// A process-wide notification that answers one.
struct CredentialResponse {
  QString name;
  Dictionary userInfo;
  const void* poster = nullptr;  // only to be compared
};

// The plug-in opened an address.
struct AddressRequest {
  QString address;
};

struct WarningShown {
  QString title;
  QString message;
};

// A value of the settings store changed; an invalid one: the key was, or is, not there.
struct StoreChange {
  QString key;
  QVariant before;
  QVariant after;
};

struct KeychainChange {
  enum class Kind { Written, Removed };
  QString account;
  Kind kind;
};

using PluginEvent = std::variant<PluginLoad, CommandToPlugin, CommandToHost, NotificationToPlugin,
                                 PersonalRoomChange, CredentialRequest, CredentialResponse, AddressRequest,
                                 WarningShown, StoreChange, KeychainChange, KZTraceRecord>;

// For std::visit: one function object of several lambdas.
template <typename... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;
