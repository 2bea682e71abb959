#pragma once

#include <gtest/gtest.h>

#include "KZPreference/contract/PluginCommandSender.h"
#include "platform/WindowController.h"
#include "tests/kit/Input.h"
#include "tests/kit/TestHost.h"

// Sends the commands of objects that a test creates itself.
class CoreSender final : public PluginCommandSender {
 public:
  explicit CoreSender(KZPluginCoreMgr* core) : m_core(core) {}
  quint64 sendPluginCommand(KZCommand number, const Content& content) override {
    return m_core->sendPluginCommand(static_cast<quint64>(number), content);
  }

 private:
  KZPluginCoreMgr* m_core;
};

// A fixture with a plug-in and its host.
class RecordingHost : public testing::Test, public TestHost {
 protected:
  static void settle() { kit::settle(); }
  static QString controllerClass() {
    return window() ? QString::fromLatin1(window()->controller()->metaObject()->className()) : QString();
  }
  template <typename T>
  static T* find(const char* name) {
    auto* found = window() ? window()->findChild<T*>(QString::fromLatin1(name)) : nullptr;
    if (!found) qFatal("no control is called %s", name);
    return found;
  }
  static void clickPane(const QString& label, Qt::KeyboardModifiers modifiers = {}) {
    kit::clickItem(*window(), label, modifiers);
  }
};
