#include "companion/app/TryOutView.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "companion/app/CopyTable.h"

namespace {

class TryOutViewTest : public testing::Test {
 protected:
  TryOutViewTest() {
    QList<SandboxAccount> accounts(30, {"other@sandbox.example", "", "", "happens"});
    accounts.prepend({"onprem@corp.sandbox.example", "CORP\\onprem", "correct horse", "works"});
    view.setAccounts(accounts);
    view.setSites({{"meetings.sandbox.example", "works"}, {"silent.sandbox.example", "never answers"}});
    view.resize(860, 400);
    view.show();
    QGuiApplication::clipboard()->clear();
  }

  CopyTable* table(const char* name) {
    for (CopyTable* one : view.findChildren<CopyTable*>()) {
      if (one->accessibleName() == name) return one;
    }
    return nullptr;
  }

  bool says(const QString& text) {
    for (const QLabel* label : view.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text().contains(text)) return true;
    }
    return false;
  }

  static QString copiedText() { return QGuiApplication::clipboard()->text(); }

  TryOutView view;
};

TEST_F(TryOutViewTest, CopiesACellByKeyboardAndByDoubleClickAndSaysSo) {
  CopyTable* accounts = table("Accounts to try");
  ASSERT_NE(accounts, nullptr);
  EXPECT_FALSE(says("Copied"));
  accounts->setCurrentCell(0, 1);
  QTest::keyClick(accounts, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copiedText(), "CORP\\onprem");
  EXPECT_TRUE(says("Copied"));
  QTest::keyClick(accounts, Qt::Key_Right);
  QTest::keyClick(accounts, Qt::Key_Return);
  EXPECT_EQ(copiedText(), "correct horse");
  const QPoint cell = accounts->visualItemRect(accounts->item(0, 0)).center();
  QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {}, cell);
  QTest::mouseDClick(accounts->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_EQ(copiedText(), "onprem@corp.sandbox.example");
  accounts->setCurrentCell(1, 2);  // empty
  QTest::keyClick(accounts, Qt::Key_Return);
  EXPECT_EQ(copiedText(), "onprem@corp.sandbox.example");
}

TEST_F(TryOutViewTest, ScrollsToTheCellThatTheKeyboardReaches) {
  CopyTable* accounts = table("Accounts to try");
  accounts->setCurrentCell(0, 0);
  for (int row = 1; row < accounts->rowCount(); ++row) {
    QTest::keyClick(accounts, Qt::Key_Down);
    const QPoint center = accounts->visualItemRect(accounts->currentItem()).center();
    EXPECT_TRUE(view.rect().contains(accounts->viewport()->mapTo(&view, center))) << row;
  }
}

TEST_F(TryOutViewTest, ASiteIsChosenWithItsButtonAndInTheWalkThrough) {
  QSignalSpy chosen(&view, &TryOutView::siteChosen);
  for (QPushButton* button : view.findChildren<QPushButton*>()) button->click();
  ASSERT_EQ(chosen.size(), 2);
  EXPECT_EQ(chosen.at(1).first().toString(), "silent.sandbox.example");
  chosen.clear();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
  for (QLabel* label : view.findChildren<QLabel*>()) {
    if (!label->text().contains("An update.")) continue;
    label->setFocus(Qt::TabFocusReason);
    QTest::keyClick(label, Qt::Key_Tab);
    QTest::keyClick(label, Qt::Key_Return);
  }
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen.first().first().toString(), "meetings.sandbox.example");
}

TEST_F(TryOutViewTest, ShowsWhatIsThere) {
  EXPECT_FALSE(says("not running"));
  view.setSites({});
  EXPECT_TRUE(table("Accounts to try")->isVisible());
  EXPECT_FALSE(table("Sites to try")->isVisible());
  view.setAccounts({});
  EXPECT_FALSE(table("Accounts to try")->isVisible());
  EXPECT_TRUE(says("not running"));
}

TEST_F(TryOutViewTest, NoRowIsCutOffHoweverNarrowThePage) {
  CopyTable* accounts = table("Accounts to try");
  for (const int width : {1200, 860, 500}) {
    view.resize(width, 400);
    QTest::qWait(20);
    const QRect last = accounts->visualItemRect(accounts->item(accounts->rowCount() - 1, 0));
    EXPECT_LE(last.bottom(), accounts->viewport()->height()) << width;
  }
}

}  // namespace
