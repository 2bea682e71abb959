#pragma once

#include <gtest/gtest.h>

#include "tests/kit/Input.h"
#include "tests/world/Desktop.h"
#include "tests/world/LiveSession.h"
#include "tests/world/ScreenReader.h"
#include "tests/world/XServer.h"

// The step that shows Preferences.
inline const QString kShow = QStringLiteral(R"({"command":2})");

// Skipped where a program is missing that a desktop needs.
class WorldTest : public testing::Test {
 protected:
  void SetUp() override {
    const QString missing = Desktop::missingPrograms();
    if (!missing.isEmpty()) GTEST_SKIP() << "not installed: " << missing.toStdString();
  }
};

// A desktop with Preferences of a signed-in user or a guest, not yet shown.
struct World {
  enum class User { SignedIn, Guest };

  explicit World(User user = User::SignedIn, const Desktop::Options& options = {})
      : desktop(options), session(desktop.environment()) {
    session.play(
        {user == User::SignedIn
             ? R"({"set":"store","values":{"siteName":"meet.brenn.example","displayName":"Ada Lovelace",)"
               R"("userName":"ada@brenn.example","preferenceInfo":{)"
               R"("QRT_Preference_PMRUrl":"https://meet.brenn.example/ada",)"
               R"("QRT_Preference_PMRSipUrl":"ada@meet.brenn.example"}}})"
             : R"({"command":1})"});
  }

  // Plays the steps that show the window and waits until it has the keyboard.
  void show(const QStringList& steps = {kShow}) {
    session.play(steps);
    EXPECT_TRUE(kit::waitUntil([this] { return !server.focusedFrame().isNull(); }));
    settle();
  }

  // Until no pane is fading.
  void settle() {
    while (session.play({R"({"wait":20})", R"({"get":"window"})"}).last().contains(R"("running":true)"))
      continue;
  }

  void showPane(const QString& label) {
    session.play({QStringLiteral(R"({"pane":"%1"})").arg(label)});
    settle();
  }

  Desktop desktop;
  XServer server{desktop.display()};
  LiveSession session;
};
