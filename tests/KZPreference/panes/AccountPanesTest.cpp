#include <QLineEdit>
#include <QTest>
#include <functional>

#include "KZPreference/panes/account/NonSignInPrefAccountView.h"
#include "KZPreference/panes/account/PrefAccountView.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/StaticText.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

KZPlistFileHandle& profile() {
  return KZPlistFileHandle::sharedInstance();
}

class GuestAccountPaneTest : public RecordingHost {
 protected:
  GuestAccountPaneTest() {
    profile().setDisplayName("Ada");
    profile().setUserName("ada@example.com");
    command(1);
    command(2, Dictionary{{"kOpenPrefsViewType", "kPrefsAccountView"}});
    takeSent();
  }

  // Other panes have fields of the same names.
  static QLineEdit* field(const char* name) {
    return find<QWidget>("m_accountView")->findChild<QLineEdit*>(QString::fromLatin1(name));
  }
  static QLineEdit* name() { return field("m_nameInputTxt"); }
  static QLineEdit* email() { return field("m_emailInputTxt"); }
  static BRNHyperlinkTextField* link() { return find<BRNHyperlinkTextField>("m_editBtn"); }
  static bool isWarned() { return find<StaticText>("m_warningMsg")->isVisible(); }
  static bool isEditing() { return name()->isVisible(); }
  static void clickLink() { kit::click(*link()); }
  static void type(QLineEdit* input, const QString& text) { kit::type(*input, text); }
  static QString shownName() { return find<StaticText>("m_nameTxt")->text(); }
};

TEST_F(GuestAccountPaneTest, AnInvalidEmailStaysInTheFieldUntilItChanges) {
  clickLink();
  takeSent();
  type(email(), "ada@@example.com");
  clickLink();
  EXPECT_TRUE(isWarned());
  EXPECT_TRUE(isEditing());
  type(name(), "Grace");
  EXPECT_TRUE(isWarned());
  QTest::keyClicks(email(), "x");
  EXPECT_FALSE(isWarned());
  QTest::keyClick(email(), Qt::Key_Return);
  EXPECT_TRUE(isWarned());

  // A refresh drops the edit, but not the message.
  command(2);
  EXPECT_FALSE(isEditing());
  EXPECT_TRUE(isWarned());
  clickLink();
  EXPECT_EQ(name()->text(), "Ada");
  EXPECT_EQ(email()->text(), "ada@example.com");
  EXPECT_EQ(takeSent().size(), 1);
  EXPECT_EQ(profile().displayName(), "Ada");
}

TEST_F(GuestAccountPaneTest, EmptyFieldsMeanTheStoredOnes) {
  clickLink();
  type(name(), "");
  type(email(), "");
  clickLink();
  EXPECT_FALSE(isEditing());
  EXPECT_EQ(shownName(), "Ada");
  EXPECT_EQ(profile().userName(), "ada@example.com");
}

TEST_F(GuestAccountPaneTest, LongEntriesAreCutToTheHostsLimit) {
  clickLink();
  name()->setText(QString(100'000, u'n'));
  email()->setText("a@b.example" + QString(100'000, u'm'));
  QTest::keyClick(email(), Qt::Key_Return);
  EXPECT_EQ(profile().displayName(), QString(128, u'n'));
  EXPECT_EQ(profile().userName().size(), 128);
  EXPECT_EQ(shownName(), profile().displayName());
}

TEST_F(GuestAccountPaneTest, AnotherPaneAndEscapeGiveTheEditUp) {
  const auto escape = [] { QTest::keyClick(name(), Qt::Key_Escape); };
  const auto switchPanes = [] { clickPane("General"), clickPane("Account"); };
  for (const std::function<void()>& giveUp : {std::function<void()>(escape), {switchPanes}}) {
    clickLink();
    type(name(), "Grace");
    giveUp();
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shownName(), "Ada");
    EXPECT_EQ(profile().displayName(), "Ada");
  }
}

class AccountPaneTest : public RecordingHost {};

TEST_F(AccountPaneTest, MissingTextsLeaveTheirFields) {
  profile().setDisplayName("Ada");
  command(2);
  auto* pane = find<PrefAccountView>("m_accountView");
  takeTrace();
  pane->setSite("s", "e", QString());
  EXPECT_EQ(takeTrace(), QStringList{"PrefAccountView::setSite site:s, email:e, name:(null)"});
  EXPECT_EQ(find<StaticText>("m_siteTxt")->text(), "s");
  EXPECT_EQ(find<StaticText>("m_emailTxt")->text(), "e");
  EXPECT_EQ(find<StaticText>("m_nameTxt")->text(), "Ada");
}

}  // namespace
