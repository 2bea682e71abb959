#include "companion/app/TryOutView.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

namespace {

class TryOutViewTest : public testing::Test {
 protected:
  TryOutViewTest() {
    QList<SandboxDescription::Account> accounts(30, {"other@sandbox.example", "", "", "happens"});
    accounts.prepend({"onprem@corp.sandbox.example", "CORP\\onprem", "correct horse", "works"});
    view.setAccounts(accounts);
    view.setSites({{"meetings.sandbox.example", "works"}, {"silent.sandbox.example", "never answers"}});
    view.resize(860, 400);
    view.show();
    QGuiApplication::clipboard()->clear();
  }

  QTableWidget* table(const char* name) {
    for (QTableWidget* one : view.findChildren<QTableWidget*>()) {
      if (one->accessibleName() == name) return one;
    }
    return nullptr;
  }

  void press(const char* title) {
    for (QPushButton* button : view.findChildren<QPushButton*>()) {
      if (button->text().remove(u'&') == title) QTest::mouseClick(button, Qt::LeftButton);
    }
  }

  static QString copiedText() { return QGuiApplication::clipboard()->text(); }

  TryOutView view;
};

TEST_F(TryOutViewTest, CopiesTheSelectedCellByButtonKeyAndDoubleClick) {
  QTableWidget* accounts = table("Accounts to try");
  ASSERT_NE(accounts, nullptr);
  QSignalSpy copied(&view, &TryOutView::copied);
  press("Copy");
  EXPECT_EQ(copiedText(), "onprem@corp.sandbox.example");
  QTest::keyClick(accounts, Qt::Key_Right);
  QTest::keyClick(accounts, Qt::Key_Return);
  EXPECT_EQ(copiedText(), "CORP\\onprem");
  const QPoint cell = accounts->visualItemRect(accounts->item(0, 2)).center();
  QTest::mouseClick(accounts->viewport(), Qt::LeftButton, {}, cell);
  QTest::mouseDClick(accounts->viewport(), Qt::LeftButton, {}, cell);
  EXPECT_EQ(copiedText(), "correct horse");
  EXPECT_EQ(copied.size(), 3);
  accounts->setCurrentCell(1, 2);  // empty
  press("Copy");
  EXPECT_EQ(copiedText(), "correct horse");
}

TEST_F(TryOutViewTest, ASiteIsChosenByButtonAndByReturn) {
  QSignalSpy chosen(&view, &TryOutView::siteChosen);
  press("Use this site");
  QTableWidget* sites = table("Sites to try");
  QTest::keyClick(sites, Qt::Key_Down);
  QTest::keyClick(sites, Qt::Key_Return);
  ASSERT_EQ(chosen.size(), 2);
  EXPECT_EQ(chosen.at(0).first().toString(), "meetings.sandbox.example");
  EXPECT_EQ(chosen.at(1).first().toString(), "silent.sandbox.example");
}

TEST_F(TryOutViewTest, ShowsWhenThereIsNothingToTry) {
  const auto* introduction = view.findChild<QLabel*>();
  EXPECT_FALSE(introduction->text().contains("not running"));
  view.setSites({});
  view.setAccounts({});
  EXPECT_TRUE(introduction->text().contains("not running"));
  press("Copy");
  press("Use this site");
}

}  // namespace
