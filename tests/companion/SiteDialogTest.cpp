#include "companion/app/SiteDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include "companion/services/SiteService.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/services/ServicesFixture.h"

namespace {

class SiteDialogTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    KZPlistFileHandle::sharedInstance().setSiteName("meetings.sandbox.example");
    dialog = new SiteDialog(&service, nullptr);
    dialog->show();
  }

  void TearDown() override {
    delete dialog;
    ServicesFixture::TearDown();
  }

  QPushButton* button(const char* title) const {
    for (auto* one : dialog->findChildren<QPushButton*>()) {
      if (one->text().remove(u'&') == title) return one;
    }
    return nullptr;
  }

  void enter(const QString& site) const {
    auto* field = dialog->findChild<QLineEdit*>();
    field->selectAll();
    QTest::keyClicks(field, site);
  }

  QString text() const { return dialog->findChild<QLabel*>("siteText")->text(); }
  bool showsFailure() const {
    return kit::waitUntil([this] { return button("Change")->isEnabled() && !text().isEmpty(); });
  }
  static QString storedSite() { return KZPlistFileHandle::sharedInstance().siteName(); }

  SiteService service{&host, &network, {}};
  QPointer<SiteDialog> dialog;
};

TEST_F(SiteDialogTest, ASiteThatAnswersIsTaken) {
  enter("CURRENT.sandbox.example ");
  QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
  EXPECT_FALSE(button("Change")->isEnabled());
  EXPECT_EQ(text(), "Asking the site.");
  EXPECT_TRUE(kit::waitUntil([this] { return dialog.isNull(); }));
  EXPECT_EQ(storedSite(), "current.sandbox.example");
}

TEST_F(SiteDialogTest, AFailedSiteShowsWhyAndIsUsedOnlyWhenTheUserInsists) {
  enter("error.meetings.sandbox.example");
  button("Change")->click();
  ASSERT_TRUE(showsFailure());
  EXPECT_TRUE(text().contains("error.meetings.sandbox.example has a problem")) << text().toStdString();
  EXPECT_EQ(storedSite(), "meetings.sandbox.example");
  ASSERT_TRUE(button("Use it anyway")->isVisible());

  enter("garbage.meetings.sandbox.example");
  EXPECT_TRUE(text().isEmpty()) << "the reason was another site's";
  EXPECT_FALSE(button("Use it anyway")->isVisible());
  button("Change")->click();
  ASSERT_TRUE(showsFailure());
  button("Use it anyway")->click();
  EXPECT_EQ(storedSite(), "garbage.meetings.sandbox.example");
  EXPECT_TRUE(kit::waitUntil([this] { return dialog.isNull(); }));
}

TEST_F(SiteDialogTest, WhatIsNoNameCannotBeUsedAnyway) {
  enter("no site");
  button("Change")->click();
  ASSERT_TRUE(showsFailure());
  EXPECT_TRUE(text().contains("Enter one such as")) << text().toStdString();
  enter(QString("outside.").repeated(30) + "example");
  button("Change")->click();
  ASSERT_TRUE(showsFailure());
  const auto* label = dialog->findChild<QLabel*>("siteText");
  EXPECT_GE(label->height(), label->heightForWidth(label->width())) << "the dialog grows with its text";
  enter("no site");
  EXPECT_FALSE(button("Use it anyway")->isVisible());
}

TEST_F(SiteDialogTest, AnAnswerAfterTheOldSiteWasKeptChangesNothing) {
  // The response may come between the click and the deletion of the dialog, which is prevented here.
  dialog->setAttribute(Qt::WA_DeleteOnClose, false);
  dialog->ask("current.sandbox.example");
  button("Keep the old site")->click();
  QTest::qWait(300);
  EXPECT_EQ(storedSite(), "meetings.sandbox.example");
}

}  // namespace
