#include "tests/kit/Input.h"
#include "tests/world/World.h"

namespace {

using User = World::User;

const QString kNeedCredential =
    QStringLiteral(R"({"notify":26,"content":{"kKZResult":"kKZSuccess",)"
                   R"("QRT_ExchangeDiscover_ExchangeType":"QRT_ExchangeDiscover_ExchangeTypeOnpremise"}})");
const QString kApplied =
    QStringLiteral(R"({"notify":15,"content":{"kKZResult":"kKZSuccess","QRT_ExchangeDiscover_Exchange":{)"
                   R"("kKZCalendarIntegrationExchangeEmail":"a@b.example",)"
                   R"("kKZCalendarIntegrationExchangeExternalUrl":"https://mail.b.example/ews"}}})");

// A desktop with a keyboard and somebody who is told what has the focus.
struct Keyboard : World {
  using World::World;

  void press(xcb_keysym_t key, const QList<xcb_keysym_t>& held = {}) { server.press(key, held); }

  // Presses the key as often as there are controls, which must get the focus in that order.
  void expectWay(const QStringList& controls, xcb_keysym_t key = key::kTab,
                 const QList<xcb_keysym_t>& held = {}) {
    for (const QString& control : controls) {
      press(key, held);
      if (!reader.expectFocus(control)) return;
    }
  }

  void type(const char* text) {
    for (; *text != '\0'; ++text) press(static_cast<xcb_keysym_t>(*text));
  }

  ScreenReader reader{desktop.sessionBus()};
};

using WorldKeyboard = WorldTest;

TEST_F(WorldKeyboard, TabGoesThroughEveryPane) {
  const struct {
    User user;
    const char* pane;
    QStringList controls;
  } cases[] = {
      {User::SignedIn,
       "General",
       {"check box Start Brenn Mivra Meetings when my computer starts",
        "check box Schedule or start Mivra meetings from Microsoft Outlook"}},
      {User::SignedIn, "Account", {"button Change"}},
      {User::SignedIn,
       "Meetings",
       {"button Edit", "button Copy personal room", "button Copy video address", "combo box 7",
        "radio button Microsoft Outlook", "text Email address"}},
      {User::SignedIn, "Notifications", {"check box Meeting notifications", "combo box 15"}},
      {User::SignedIn, "Video devices", {"check box Automatically discover nearby devices"}},
      {User::Guest, "General", {"check box Start Brenn Mivra Meetings when my computer starts"}},
      {User::Guest, "Account", {"button Edit"}},
      {User::Guest, "Meetings", {"combo box 7", "radio button Microsoft Outlook", "text Email address"}},
  };
  std::optional<Keyboard> keyboard;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.pane);
    if (each.pane == std::string("General")) {
      keyboard.emplace(each.user);
      keyboard->show();
      keyboard->showPane("Meetings");
      keyboard->session.play({R"({"click":"m_outlookRadioBtn"})"});
    }
    keyboard->showPane(each.pane);
    const QString tab = QStringLiteral("page tab %1").arg(each.pane);
    keyboard->expectWay(each.controls + QStringList{tab, each.controls.first()});
    QStringList backwards{tab};
    for (const QString& control : each.controls) backwards.insert(1, control);
    keyboard->expectWay(backwards, key::kTab, {key::kShift});
  }
}

TEST_F(WorldKeyboard, KeysChooseThePaneAndCloseTheWindow) {
  Keyboard keyboard;
  keyboard.show();
  const auto expectPane = [&](const char* pane) {
    SCOPED_TRACE(pane);
    EXPECT_TRUE(kit::waitUntil([&] {
      return keyboard.session.play({R"({"get":"window"})"})
          .last()
          .contains(QStringLiteral(R"("selected":"%1")").arg(pane));
    }));
    keyboard.settle();
  };
  const struct {
    xcb_keysym_t key;
    xcb_keysym_t held;
    const char* pane;
  } cases[] = {{'3', key::kControl, "Meetings"},
               {key::kTab, key::kControl, "Notifications"},
               {key::kPageDown, key::kControl, "Video devices"},
               {key::kPageUp, key::kControl, "Notifications"},
               {'1', key::kControl, "General"},
               {'5', key::kControl, "Video devices"}};
  for (const auto& each : cases) {
    keyboard.press(each.key, {each.held});
    expectPane(each.pane);
  }
  // The pane's name is told, and its first control is one Tab away.
  keyboard.expectWay({"check box Automatically discover nearby devices", "page tab Video devices"});
  keyboard.press(key::kLeft);
  expectPane("Notifications");
  keyboard.press('w', {key::kControl});
  EXPECT_TRUE(kit::waitUntil(
      [&] { return keyboard.session.play({R"({"get":"window"})"}).last().contains(R"("visible":false)"); }));
}

TEST_F(WorldKeyboard, AnExchangeAccountNeedsNoMouse) {
  Keyboard keyboard(User::Guest);
  keyboard.show();
  keyboard.showPane("Meetings");
  keyboard.expectWay({"combo box 7", "radio button Microsoft Outlook"});
  keyboard.press(' ');
  keyboard.expectWay({"text Email address"});
  keyboard.type("a@b.example");
  keyboard.press(key::kReturn);
  // The credential is asked for while another pane is shown: it must not take what is typed there.
  keyboard.showPane("Notifications");
  keyboard.expectWay({"check box Meeting notifications"});
  keyboard.session.play({kNeedCredential});
  EXPECT_EQ(keyboard.reader.focused(), "check box Meeting notifications");
  keyboard.showPane("Meetings");
  keyboard.reader.expectFocus("text User name");
  keyboard.type("ann");
  keyboard.expectWay({"password Password"});
  keyboard.type("secret");
  keyboard.expectWay({"button Apply", "button Look up account"});
  keyboard.expectWay({"button Apply", "password Password", "text User name", "text Email address"}, key::kTab,
                     {key::kShift});
  keyboard.expectWay({"text User name", "password Password", "button Apply"});
  EXPECT_FALSE(keyboard.reader.texts().join("").contains("secret"));
  keyboard.reader.forget();
  keyboard.press(key::kReturn);
  EXPECT_TRUE(kit::waitUntil([&] { return keyboard.reader.announced() == QStringList("Applying…"); }));
  keyboard.session.play({kApplied});
  keyboard.reader.expectFocus("text Email address");
  // Told once, when it happens.
  keyboard.showPane("General");
  keyboard.showPane("Meetings");
  EXPECT_EQ(keyboard.reader.announced().join("; ").toStdString(),
            "Applying…; Applied successfully; General; Meetings");
}

TEST_F(WorldKeyboard, AGuestEditsTheAccount) {
  Keyboard keyboard(User::Guest);
  keyboard.show();
  keyboard.showPane("Account");
  keyboard.expectWay({"button Edit"});
  keyboard.press(key::kReturn);
  keyboard.reader.expectFocus("text Your name:");
  keyboard.type("Ann");
  keyboard.expectWay({"text Your email address:", "text Your name:", "text Your email address:"});
  keyboard.type("ann");
  keyboard.reader.forget();
  keyboard.press(key::kReturn);
  EXPECT_TRUE(kit::waitUntil([&] { return keyboard.reader.announced().contains("Invalid email address"); }));
  keyboard.expectWay({"button Save"}, key::kTab, {key::kControl});
  keyboard.expectWay({"text Your email address:"}, key::kTab, {key::kShift});
  keyboard.press(key::kEscape);
  keyboard.reader.expectFocus("button Edit");
}

}  // namespace
